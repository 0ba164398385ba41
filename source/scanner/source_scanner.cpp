#include "scanner/source_scanner.h"

#include "scanner/source_text.h"

#include <QFile>
#include <QLoggingCategory>

#include <algorithm>

namespace Scan {

namespace {

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

QSet<Clt::MessageKey> KeySets::keys(CallFamily family) const
{
    const Lines &lines = m_lines[static_cast<std::size_t>(family)];
    return {lines.keyBegin(), lines.keyEnd()};
}

// The calls come in the order of the text.
void KeySets::insert(CallFamily family, const Clt::MessageKey &key, int line)
{
    int &first = m_lines[static_cast<std::size_t>(family)][key];
    if (first == 0)
        first = line;
}

SourceScanner::SourceScanner(const QString &process, const QString &fileName)
    : m_process(process)
    , m_fileName(fileName)
{
}

bool SourceScanner::scan()
{
    m_keys = KeySets();
    m_errorText.clear();
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        m_errorText = QStringLiteral("Cannot open file");
        return false;
    }
    const QByteArray contents = file.readAll();
    // The messages of the part that is missing would count as obsolete, and nobody would be told.
    if (file.error() != QFileDevice::NoError) {
        m_errorText = QStringLiteral("Cannot read file");
        return false;
    }
    // All encodings that are read write a macro's name in the same bytes.
    if (namesMacro(viewOf(contents)))
        scanText(toSourceText(contents));
    return !hasError();
}

void SourceScanner::scanText(const QByteArray &text)
{
    Parser parser(viewOf(text), traceToLog());
    if (const std::optional<SourceError> error = parser.parse()) {
        m_errorText = error->text();
        return;
    }
    for (const Call &call : parser.calls())
        m_keys.insert(call.family, {call.tag, call.context, m_process}, call.line);
}

// Two families may have one key: an error and a message with the same tag.
void addKeys(FoundKeys &found, const SourceScanner &scanner)
{
    for (const KeySets::Lines &lines : scanner.keys().lines()) {
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
