// A translation file that is replaced by the translators' answer, in a run that is killed.

#include "localization/translation_job.h"
#include "support/killed_rewrite.h"
#include "support/recording_reporter.h"
#include "support/test_folder.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString downloadOption = u"--download"_s;

/// A file that takes some milliseconds to read, compare and write.
QByteArray withTranslation(const QByteArray &translation)
{
    const QByteArray message =
        "<message><source>Solve</source><translation>" + translation + "</translation></message>\n";
    return "<TS version=\"2.1\" language=\"de_DE\"><context><name>Clt</name>\n" + message.repeated(3000) +
           "</context></TS>\n";
}

QString rootOf(const QString &fileName)
{
    return QFileInfo(fileName).dir().absoluteFilePath(u"../.."_s);
}

bool download(const QString &fileName)
{
    const QString root = rootOf(fileName);
    RecordingReporter reporter;
    Localization::TranslationJob job(Localization::LocaleFolders(root, reporter), root + u"/share"_s,
                                     root + u"/job"_s, {u"*.ts"_s}, reporter,
                                     [](std::chrono::milliseconds) {});
    job.download();
    return true;
}

KilledRewrite downloadOf(const QString &fileName)
{
    return {.fileName = fileName,
            .original = withTranslation("Rechnen"),
            .rewrite = download,
            .makesCopy = false};
}

} // namespace

class tst_download_killed : public QObject
{
    Q_OBJECT

private slots:
    void theEarlierFileOrTheAnswerIsThere()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"Locale/de-DE/client.ts"_s);
        writeFile(fileName);
        writeFile(folder.path(u"share/deu/client.ts"_s), withTranslation("Lösen"));
        checkKilledRewrite(downloadOf(fileName), {downloadOption, fileName}, 15);
        QCOMPARE(readFile(fileName), withTranslation("Lösen"));
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == downloadOption)
        return rewriteForever(downloadOf(arguments.value(2)));
    tst_download_killed test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_download_killed.moc"
