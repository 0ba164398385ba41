// A translation file with plural forms after a rewrite that was killed.

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

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kills = 25;
const QString rewriteOption = u"--rewrite"_s;

/// A file that takes some milliseconds to read, copy and write.
QByteArray withForms()
{
    const QByteArray message =
        "<message numerus=\"yes\"><source>%n rows</source><translation><numerusform>%n "
        "Zeile</numerusform></translation></message>\n";
    return "<TS version=\"2.1\"><context><name>Clt</name>\n" + message.repeated(5000) + "</context></TS>\n";
}

QString copyOf(const QString &fileName)
{
    return fileName + u".before"_s;
}

bool rewrite(const QString &fileName)
{
    Translation::TranslationTable table;
    return table.load(fileName) && table.save(fileName);
}

/// Rewrites the file again and again until this program is killed. Restores the forms before it removes the
/// copy, and pauses after each rewrite; otherwise hardly any kill would find a copy.
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
        const QString fileName = folder.path(u"client_de.ts"_s);
        QVERIFY(writeBytes(fileName, withForms()));
        QVERIFY(rewrite(fileName));
        const QByteArray rewritten = fileBytes(fileName).value();
        QVERIFY(!rewritten.contains("numerusform"));

        int copiesFound = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const QDateTime before = QFileInfo(fileName).lastModified();
            QProcess writer;
            writer.start(QCoreApplication::applicationFilePath(), {rewriteOption, fileName});
            QVERIFY(writer.waitForStarted());
            // The writer must have started, and is killed at a different point each time. On Windows an open
            // file cannot be replaced, so this does not read it.
            QVERIFY(QTest::qWaitFor([&] { return QFileInfo(fileName).lastModified() != before; }, 20'000));
            QVERIFY(!writer.waitForFinished(13 * kill % 100));
            writer.kill();
            QVERIFY(writer.waitForFinished());

            const QByteArray left = fileBytes(fileName).value();
            const bool hasCopy = QFile::exists(copyOf(fileName));
            QVERIFY(left == withForms() || (left == rewritten && hasCopy));
            QVERIFY(!hasCopy || fileBytes(copyOf(fileName)) == withForms());
            copiesFound += hasCopy ? 1 : 0;
        }
        qInfo("%d of %d kills found the copy", copiesFound, kills);
        QVERIFY(copiesFound > 0);

        // The next run completes the rewrite and removes unfinished files.
        QVERIFY(Nvx::Util::replaceWholeFile(fileName, withForms()));
        QFile::remove(copyOf(fileName));
        QVERIFY(rewrite(fileName));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList({u"client_de.ts"_s, u"client_de.ts.before"_s}));
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
