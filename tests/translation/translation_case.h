#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// What became of one case of a translation file.
struct TranslationCase
{
    QByteArray told;                   ///< the log, the result and the failed assertions, a line each
    std::optional<QByteArray> saved;   ///< the file that was written, its line ends as "\n"
    std::optional<QByteArray> damaged; ///< the old file as it was kept
};

/// Runs the case of that folder in the work folder, which holds nothing before.
TranslationCase runTranslationCase(const QString &caseFolder, const QString &workFolder);
