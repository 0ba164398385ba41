#pragma once

#include <QByteArray>
#include <QString>

/// What became of one case of a message table's reading and writing.
struct MessageTableCase
{
    QByteArray told;  ///< results, failed assertions and messages, a line each
    QByteArray saved; ///< the file that the table was saved to
};

/// Loads "input.xml" of the case's folder, and "input2.xml" if it has one, into one table and saves that into
/// the other folder.
MessageTableCase runMessageTableCase(const QString &caseFolder, const QString &workFolder);
