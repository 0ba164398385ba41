#include "translation_case.h"

#include "support/file_bytes.h"
#include "support/recorded_assertions.h"
#include "translation/error_translation_table.h"
#include "translation/translation_update.h"

#include <QDir>
#include <QTextStream>

namespace {

const QString tableName = QStringLiteral("table.ts");
const QString messagesName = QStringLiteral("messages.xml");

QString synchronized()
{
    QString told;
    QTextStream log(&told);
    const bool done = Error::synchronizeTranslationTable(messagesName, tableName, log, log);
    log << (done ? "done\n" : "failed\n");
    log.flush();
    return told;
}

QString loadedAndSaved(const QString &savedName)
{
    Error::TranslationTable table;
    QString told = table.load(tableName) ? QStringLiteral("loaded\n")
                                         : QStringLiteral("not loaded: ") + table.errorString() + u'\n';
    if (!table.save(savedName))
        told += QStringLiteral("not saved\n");
    return told;
}

} // namespace

// The files are named without their folder, so that the log is the same everywhere. What is of the case is
// asked for first: on Windows its path may be one of the drive that is current until then.
TranslationCase runTranslationCase(const QString &caseFolder, const QString &workFolder)
{
    const QDir folder(caseFolder);
    const QDir work(workFolder);
    for (const QString &name : {tableName, messagesName})
        QFile::copy(folder.filePath(name), work.filePath(name));
    const bool fromMessages = folder.exists(messagesName);

    const QString before = QDir::currentPath();
    QDir::setCurrent(workFolder);
    const QString savedName = fromMessages ? tableName : QStringLiteral("saved.ts");
    const RecordedAssertions failed;
    TranslationCase result;
    result.told = (fromMessages ? synchronized() : loadedAndSaved(savedName)).toUtf8();
    for (const QString &assertion : failed.list())
        result.told += "assertion: " + assertion.toUtf8() + '\n';
    result.saved = fileLines(savedName);
    result.damaged = fileBytes(tableName + QStringLiteral(".damaged"));
    QDir::setCurrent(before);
    return result;
}
