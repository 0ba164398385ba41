#include "message_table_case.h"

#include "clt_message_table.h"
#include "support/file_bytes.h"
#include "support/recorded_assertions.h"

#include <QFile>
#include <QStringList>

namespace {

/// The text in quotation marks, its line ends and tabs made visible.
QString quoted(QString text)
{
    text.replace(u'\\', QStringLiteral("\\\\"));
    text.replace(u'\n', QStringLiteral("\\n"));
    text.replace(u'\r', QStringLiteral("\\r"));
    text.replace(u'\t', QStringLiteral("\\t"));
    return u'"' + text + u'"';
}

QStringList linesOf(const Clt::Message &message)
{
    QStringList lines{message.key().displayText() + u' ' + Clt::severityToText(message.severity()) + u' ' +
                      Clt::stateToText(message.state()) + u' ' + QString::number(message.solution())};
    if (!message.sourceTitle().isEmpty())
        lines += QStringLiteral("  title ") + quoted(message.sourceTitle());
    if (!message.sourceText().isEmpty())
        lines += QStringLiteral("  text ") + quoted(message.sourceText());
    if (!message.sourceAction().isEmpty())
        lines += QStringLiteral("  action ") + quoted(message.sourceAction());
    return lines;
}

QStringList loadInto(Clt::MessageTable &table, const QString &fileName)
{
    const RecordedAssertions failed;
    const bool loaded = table.load(fileName);
    QStringList lines{loaded ? QStringLiteral("loaded") : QStringLiteral("not loaded")};
    for (const QString &assertion : failed.list())
        lines += QStringLiteral("assertion: ") + assertion;
    return lines;
}

} // namespace

MessageTableCase runMessageTableCase(const QString &caseFolder, const QString &workFolder)
{
    Clt::MessageTable table;
    QStringList lines;
    for (const char *name : {"/input.xml", "/input2.xml"}) {
        const QString fileName = caseFolder + QLatin1String(name);
        if (QFile::exists(fileName))
            lines += loadInto(table, fileName);
    }
    for (const auto &[key, message] : table)
        lines += linesOf(message);
    const QString saved = workFolder + QStringLiteral("/saved.xml");
    if (!table.save(saved))
        lines += QStringLiteral("not saved");
    return {lines.join(u'\n').toUtf8() + '\n', fileLines(saved).value_or(QByteArray())};
}
