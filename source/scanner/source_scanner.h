#pragma once

#include "clt_message_key.h"
#include "nvx_util/result.h"
#include "scanner/call.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <map>

namespace Scan {

/// The keys found in one file by family of calls, each with the line of its first call in that family.
using KeySets = std::map<CallFamily, QHash<Clt::MessageKey, int>>;

/// Finds the keys of the reporting macros' calls in one C++ source file. The debug messages of the logging
/// category "nvx.scanner", off by default, show how it reads the file.
class SourceScanner
{
public:
    SourceScanner(const QString &process, const QString &fileName);

    /// Reads the file, which must be a regular one of at most maximumFileSize. Fails with "Cannot open file",
    /// "Cannot read file", or "MESSAGE (line LINE)"; there are no keys then.
    const Nvx::Util::Outcome &scan();

    /// The result of the last scan.
    bool hasError() const { return !m_outcome; }
    const QString &errorText() const { return m_outcome.error(); }

    /// Why the file cannot be opened, as text for the user; empty if it was opened.
    const QString &openProblem() const { return m_openProblem; }

    const KeySets &keys() const { return m_keys; }

    /// The keys of one family.
    QSet<Clt::MessageKey> keys(CallFamily family) const;

    const QString &fileName() const { return m_fileName; }

private:
    Nvx::Util::Outcome scanFile();
    Nvx::Util::Outcome scanText(const QByteArray &text);

    QString m_process;
    QString m_fileName;
    Nvx::Util::Outcome m_outcome = Nvx::Util::Done();
    QString m_openProblem;
    KeySets m_keys;
};

/// Where a message is raised.
struct SourcePlace
{
    QString file; ///< as passed to the scanner
    int line = 0;
};

/// The keys found in several files, each with the place of its first call.
using FoundKeys = QHash<Clt::MessageKey, SourcePlace>;

/// Adds the keys of a scanner. A key that was found in an earlier file keeps its place.
void addKeys(FoundKeys &found, const SourceScanner &scanner);

} // namespace Scan
