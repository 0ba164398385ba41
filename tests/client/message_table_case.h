#pragma once

#include <QByteArray>
#include <QString>

/// The results of reading and writing a message table.
struct MessageTableCase
{
    QByteArray lines; ///< results, failed assertions and messages, one per line
    QByteArray saved; ///< the file that the table was saved to
};

/// Loads "input.xml" and, if it exists, "input2.xml" of the case's folder into one table, and saves that in
/// the other folder.
MessageTableCase runMessageTableCase(const QString &caseFolder, const QString &workFolder);
