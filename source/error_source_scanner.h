#pragma once

#include "clt_message_key.h"
#include "error_source_parser.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>

namespace Scan {

/// The keys found, apart by family of calls.
class KeySets
{
public:
    const QSet<Clt::MessageKey> &keys(CallFamily family) const
    {
        return m_sets[static_cast<std::size_t>(family)];
    }
    void insert(CallFamily family, const Clt::MessageKey &key);

    /// One set for each family.
    const std::array<QSet<Clt::MessageKey>, callFamilyCount> &sets() const { return m_sets; }

private:
    std::array<QSet<Clt::MessageKey>, callFamilyCount> m_sets;
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

private:
    void scanText(const QByteArray &text);

    QString m_process;
    QString m_fileName;
    QString m_errorText;
    KeySets m_keys;
};

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
