#pragma once

#include "clt_message_key.h"
#include "scanner/source_parser.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>

namespace Scan {

/// The keys found in one file, apart by family of calls, each with the line of its first call in the family.
class KeySets
{
public:
    using Lines = QHash<Clt::MessageKey, int>;

    QSet<Clt::MessageKey> keys(CallFamily family) const;

    /// A key that the family has already keeps its line.
    void insert(CallFamily family, const Clt::MessageKey &key, int line);

    /// The keys of each family with their lines.
    const std::array<Lines, callFamilyCount> &lines() const { return m_lines; }

private:
    std::array<Lines, callFamilyCount> m_lines;
};

/// Finds the keys of the reporting macros' calls in one C++ source file. The debug lines of the logging
/// category "nvx.scanner", off unless asked for, tell how it reads the file.
class SourceScanner
{
public:
    SourceScanner(const QString &process, const QString &fileName);

    /// Reads the file. False when there is an error; there are no keys then.
    bool scan();

    bool hasError() const { return !m_errorText.isEmpty(); }

    /// "Cannot open file", "Cannot read file", or "MESSAGE (line LINE)"; empty when there is no error.
    const QString &errorText() const { return m_errorText; }

    const KeySets &keys() const { return m_keys; }

    const QString &fileName() const { return m_fileName; }

private:
    void scanText(const QByteArray &text);

    QString m_process;
    QString m_fileName;
    QString m_errorText;
    KeySets m_keys;
};

/// Where a message is raised.
struct SourcePlace
{
    QString file; ///< as the scanner was given it
    int line = 0;
};

/// The keys found in several files, each with the place of its first call.
using FoundKeys = QHash<Clt::MessageKey, SourcePlace>;

/// Adds the keys of a scanner. A key that was found in an earlier file keeps its place.
void addKeys(FoundKeys &found, const SourceScanner &scanner);

enum class Continuation
{
    GoOn,
    Stop
};

/// Receives a file's finished scanner; its file is the one at the index.
using FileReceiver = std::function<Continuation(qsizetype index, const SourceScanner &scanner)>;

/// Scans the files, some at the same time on so many threads (0: one for each processor), and hands each to
/// the receiver, on the calling thread and in the order of the list. Returns when the last has been received
/// or the receiver wants to stop.
void scanFiles(const QString &process, const QStringList &fileNames, const FileReceiver &receive,
               int threadCount = 0);

} // namespace Scan
