// The rewrite of a translation file with plural forms, killed while it is at it.

#include "nvx_util/whole_file.h"
#include "support/file_bytes.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTest>
#include <QThread>

namespace {

constexpr int kills = 25;
const QString rewriteOption = QStringLiteral("--rewrite");

/// A file that takes some milliseconds to read, to keep and to write.
QByteArray withForms()
{
    const QByteArray message =
        "<message numerus=\"yes\"><source>%n rows</source><translation><numerusform>%n "
        "Zeile</numerusform></translation></message>\n";
    return "<TS version=\"2.1\"><context><name>Clt</name>\n" + message.repeated(5000) + "</context></TS>\n";
}

QString copyOf(const QString &fileName)
{
    return fileName + QStringLiteral(".before");
}

bool rewrite(const QString &fileName)
{
    Error::TranslationTable table;
    return table.load(fileName) && table.save(fileName);
}

/// Rewrites the file again and again until somebody kills this program. The file has its forms again before
/// its copy goes, and a rest follows, or hardly a kill would find the copy.
int rewriteForever(const QString &fileName)
{
    while (Nvx::Util::replaceWholeFile(fileName, withForms()) &&
           (!QFile::exists(copyOf(fileName)) || QFile::remove(copyOf(fileName))) && rewrite(fileName))
        QThread::msleep(50);
    return 1;
}

} // namespace

class tst_translation_killed : public QObject
{
    Q_OBJECT

private slots:
    void formsAreInTheFileOrInItsCopy()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("client_de.ts"));
        QVERIFY(writeBytes(fileName, withForms()));
        QVERIFY(rewrite(fileName));
        const QByteArray rewritten = fileBytes(fileName).value();
        QVERIFY(!rewritten.contains("numerusform"));

        int keptAtTheKill = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const QDateTime before = QFileInfo(fileName).lastModified();
            QProcess writer;
            writer.start(QCoreApplication::applicationFilePath(), {rewriteOption, fileName});
            QVERIFY(writer.waitForStarted());
            // It must be at it when it is killed, at another point each time. On Windows a file that is open
            // cannot be replaced, so this does not read it.
            QVERIFY(QTest::qWaitFor([&] { return QFileInfo(fileName).lastModified() != before; }, 20'000));
            QVERIFY(!writer.waitForFinished(13 * kill % 100));
            writer.kill();
            QVERIFY(writer.waitForFinished());

            const QByteArray left = fileBytes(fileName).value();
            const bool hasCopy = QFile::exists(copyOf(fileName));
            QVERIFY(left == withForms() || (left == rewritten && hasCopy));
            QVERIFY(!hasCopy || fileBytes(copyOf(fileName)) == withForms());
            keptAtTheKill += hasCopy ? 1 : 0;
        }
        qInfo("%d of %d kills found the copy", keptAtTheKill, kills);
        QVERIFY(keptAtTheKill > 0);

        // The next run does the rest, and takes away what the killed one was writing.
        QVERIFY(Nvx::Util::replaceWholeFile(fileName, withForms()));
        QFile::remove(copyOf(fileName));
        QVERIFY(rewrite(fileName));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList({QStringLiteral("client_de.ts"), QStringLiteral("client_de.ts.before")}));
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == rewriteOption)
        return rewriteForever(arguments.value(2));
    tst_translation_killed test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_translation_killed.moc"
