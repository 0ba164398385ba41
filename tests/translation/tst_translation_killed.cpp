// A translation file with plural forms after a rewrite that was killed.

#include "support/killed_rewrite.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString rewriteOption = u"--rewrite"_s;

/// A file that takes some milliseconds to read, copy and write.
QByteArray withForms()
{
    const QByteArray message =
        "<message numerus=\"yes\"><source>%n rows</source><translation><numerusform>%n "
        "Zeile</numerusform></translation></message>\n";
    return "<TS version=\"2.1\"><context><name>Clt</name>\n" + message.repeated(5000) + "</context></TS>\n";
}

bool rewrite(const QString &fileName)
{
    Translation::TranslationTable table;
    return table.load(fileName) && table.save(fileName);
}

KilledRewrite rewriteOf(const QString &fileName)
{
    return {.fileName = fileName, .original = withForms(), .rewrite = rewrite};
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
        checkKilledRewrite(rewriteOf(fileName), {rewriteOption, fileName}, 25);
        QVERIFY(!readFile(fileName).contains("numerusform"));
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == rewriteOption)
        return rewriteForever(rewriteOf(arguments.value(2)));
    tst_translation_killed test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_translation_killed.moc"
