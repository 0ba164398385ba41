#include "translation_case.h"

#include "support/file_bytes.h"
#include "support/recorded_assertions.h"
#include "translation/error_translation_table.h"
#include "translation/translation_update.h"

#include <QDir>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString tableName = u"table.ts"_s;
const QString messagesName = u"messages.xml"_s;

QString synchronized()
{
    QString report;
    QTextStream log(&report);
    const bool done = Translation::synchronizeTranslationTable(messagesName, tableName, log, log);
    log << (done ? "done\n" : "failed\n");
    log.flush();
    return report;
}

QString loadedAndSaved(const QString &savedName)
{
    Translation::TranslationTable table;
    QString report = table.load(tableName) ? u"loaded\n"_s : u"not loaded: "_s + table.errorString() + u'\n';
    if (!table.save(savedName))
        report += u"not saved\n"_s;
    return report;
}

} // namespace

// The files are named without their folder, so that the log is the same everywhere. The case's files are
// copied before the current folder changes: on Windows their path may depend on the current drive.
TranslationCase runTranslationCase(const QString &caseFolder, const QString &workFolder)
{
    const QDir folder(caseFolder);
    const QDir work(workFolder);
    for (const QString &name : {tableName, messagesName})
        QFile::copy(folder.filePath(name), work.filePath(name));
    const bool fromMessages = folder.exists(messagesName);

    const QString before = QDir::currentPath();
    QDir::setCurrent(workFolder);
    const QString savedName = fromMessages ? tableName : u"saved.ts"_s;
    const RecordedAssertions failed;
    TranslationCase result;
    result.report = (fromMessages ? synchronized() : loadedAndSaved(savedName)).toUtf8();
    for (const QString &assertion : failed.list())
        result.report += "assertion: " + assertion.toUtf8() + '\n';
    result.saved = fileLines(savedName);
    result.damaged = fileBytes(tableName + u".damaged"_s);
    QDir::setCurrent(before);
    return result;
}
