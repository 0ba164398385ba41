// A message table with a comment, which is dropped, after a synchronisation and a Save that were killed.

#include "message_table_utility/message_store.h"
#include "support/killed_rewrite.h"
#include "support/test_folder.h"
#include "synchronisation/message_table_synchronisation.h"
#include "synchronisation/progress_log.h"

#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A table that takes some milliseconds to read, copy and write.
QByteArray withComment()
{
    QByteArray table = "<messageTable>\n<!-- reviewed in spring -->\n";
    for (int number = 0; number < 5000; ++number)
        table += "<message "
                 "severity=\"Status\"><key><process>client</process><context>Flow::run</context><tag>Tag" +
                 QByteArray::number(number) +
                 "</tag></key><text>The value is out of range.</text></message>\n";
    return table + "</messageTable>\n";
}

/// The project has no sources, so all messages become obsolete.
bool synchronize(const QString &fileName)
{
    QString text;
    QTextStream output(&text);
    QTextStream errors(&text);
    Synchronisation::ProgressLog log(output, Synchronisation::ProgressLog::Progress::Hidden);
    const QString project = QFileInfo(fileName).dir().filePath(u"project/client.vcxproj"_s);
    return bool(Synchronisation::synchronizeMessageTable(fileName, project, log, errors).outcome);
}

/// What the window does.
bool save(const QString &fileName)
{
    Clt::MessageTable table;
    MessageWindow::MessageStore store;
    if (!table.load(fileName))
        return false;
    store.reset(std::move(table));
    return store.save(fileName);
}

KilledRewrite rewriteOf(const QString &operation, const QString &fileName)
{
    return {.fileName = fileName,
            .original = withComment(),
            .rewrite = operation == "--synchronize"_L1 ? synchronize : save};
}

} // namespace

class tst_message_table_killed : public QObject
{
    Q_OBJECT

private slots:
    void theOldOrTheNewTableIsThereAndACopyOfWhatWasDropped_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("synchronisation") << u"--synchronize"_s << QByteArray("<state>Obsolete</state>");
        QTest::newRow("Save in the window") << u"--save"_s << QByteArray("ErrorTable.xsd");
    }

    void theOldOrTheNewTableIsThereAndACopyOfWhatWasDropped()
    {
        QFETCH(const QString, operation);
        QFETCH(const QByteArray, written);
        const TestFolder folder;
        writeFile(folder.path(u"project/client.vcxproj"_s), "<Project><ItemGroup/></Project>");
        const QString fileName = folder.path(u"errors.xml"_s);
        checkKilledRewrite(rewriteOf(operation, fileName), {operation, fileName}, 15);
        QVERIFY(readFile(fileName).contains(written));
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--synchronize"_L1 || arguments.value(1) == "--save"_L1)
        return rewriteForever(rewriteOf(arguments.at(1), arguments.value(2)));
    tst_message_table_killed test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_message_table_killed.moc"
