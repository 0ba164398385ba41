#pragma once

#include <QString>

#include <vector>

namespace Translation {

/// One string to translate.
struct TranslationMessage
{
    QString source;
    QString translation;
    QString type; ///< "unfinished", "obsolete", or empty for a finished translation
    QString comment;
};

using TranslationMessages = std::vector<TranslationMessage>;

} // namespace Translation
