#include "scanner/source_scanner.h"

#include "nvx_util/regular_file.h"
#include "scanner/parser.h"
#include "scanner/project_folders.h"
#include "scanner/source_text.h"

#include <QLoggingCategory>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Scan {

namespace {

using Nvx::Util::Done;
using Nvx::Util::Failure;
using Nvx::Util::Outcome;

Q_LOGGING_CATEGORY(scannerLog, "nvx.scanner", QtWarningMsg)

Parser::Trace traceToLog()
{
    if (!scannerLog().isDebugEnabled())
        return {};
    return [](const QString &line) { qCDebug(scannerLog, "%s", qUtf8Printable(line)); };
}

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

SourceScanner::SourceScanner(const QString &process, const QString &fileName)
    : m_process(process)
    , m_fileName(fileName)
{
}

const Outcome &SourceScanner::scan()
{
    m_keys.clear();
    m_outcome = scanFile();
    return m_outcome;
}

Outcome SourceScanner::scanFile()
{
    const auto [contents, wasOpened, problem] = Nvx::Util::readRegularFile(m_fileName, maximumFileSize);
    m_openProblem = wasOpened ? QString() : problem;
    if (!wasOpened)
        return Failure{u"Cannot open file"_s};
    // The messages of an unread part would silently become obsolete.
    if (!contents)
        return Failure{u"Cannot read file"_s};
    // Every supported encoding writes a macro's name in the same bytes.
    if (!namesMacro(viewOf(*contents)))
        return Done();
    return scanText(toSourceText(*contents));
}

Outcome SourceScanner::scanText(const QByteArray &text)
{
    Parser parser(viewOf(text), traceToLog());
    if (Outcome parsed = parser.parse(); !parsed)
        return parsed;
    // The calls are in the order of the text, so the first call of a key sets its line.
    for (const Call &call : parser.calls()) {
        int &line = m_keys[call.family][{call.tag, call.context, m_process}];
        if (line == 0)
            line = call.line;
    }
    return Done();
}

QSet<Clt::MessageKey> SourceScanner::keys(CallFamily family) const
{
    const auto found = m_keys.find(family);
    if (found == m_keys.end())
        return {};
    return {found->second.keyBegin(), found->second.keyEnd()};
}

// Two families may share a key: an error and a message with the same tag.
void addKeys(FoundKeys &found, const SourceScanner &scanner)
{
    for (const auto &[family, lines] : scanner.keys()) {
        for (auto key = lines.keyValueBegin(); key != lines.keyValueEnd(); ++key) {
            SourcePlace &place = found[key->first];
            if (place.line == 0)
                place = {scanner.fileName(), key->second};
            else if (place.file == scanner.fileName())
                place.line = std::min(place.line, key->second);
        }
    }
}

} // namespace Scan
