#include "message_table_case.h"

#include "clt_message_table.h"
#include "support/file_bytes.h"
#include "support/recorded_assertions.h"

#include <QFile>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

// The text in quotation marks, with its line ends and tabs visible.
QString quoted(QString text)
{
    text.replace(u'\\', u"\\\\"_s);
    text.replace(u'\n', u"\\n"_s);
    text.replace(u'\r', u"\\r"_s);
    text.replace(u'\t', u"\\t"_s);
    return u'"' + text + u'"';
}

QStringList linesOf(const Clt::Message &message)
{
    QStringList lines{message.key().displayText() + u' ' + Clt::severityToText(message.severity()) + u' ' +
                      Clt::stateToText(message.state()) + u' ' + QString::number(message.solution())};
    if (!message.sourceTitle().isEmpty())
        lines += u"  title "_s + quoted(message.sourceTitle());
    if (!message.sourceText().isEmpty())
        lines += u"  text "_s + quoted(message.sourceText());
    if (!message.sourceAction().isEmpty())
        lines += u"  action "_s + quoted(message.sourceAction());
    return lines;
}

QStringList loadInto(Clt::MessageTable &table, const QString &fileName)
{
    const RecordedAssertions failed;
    const bool loaded = table.load(fileName);
    QStringList lines{loaded ? u"loaded"_s : u"not loaded: "_s + table.errorString()};
    lines += table.leftovers().texts(20);
    for (const QString &assertion : failed.list())
        lines += u"assertion: "_s + assertion;
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
    const QString saved = workFolder + u"/saved.xml"_s;
    if (!table.save(saved))
        lines += u"not saved"_s;
    return {lines.join(u'\n').toUtf8() + '\n', fileLines(saved).value_or(QByteArray())};
}
