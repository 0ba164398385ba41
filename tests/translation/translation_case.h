#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The result of one case.
struct TranslationCase
{
    QByteArray report;                 ///< the log, the result and the failed assertions, a line each
    std::optional<QByteArray> saved;   ///< the file that was written, with "\n" as line ends
    std::optional<QByteArray> damaged; ///< the copy of a damaged file
};

/// Runs the case of that folder in the work folder, which must be empty.
TranslationCase runTranslationCase(const QString &caseFolder, const QString &workFolder);
