#pragma once

#include <QString>

#include <vector>

namespace Error {

/// One string to translate.
struct TranslationMessage
{
    QString source;
    QString translation;
    QString type; ///< "unfinished", "obsolete", or empty for a finished translation
    QString comment;
};

using TranslationMessages = std::vector<TranslationMessage>;

} // namespace Error
