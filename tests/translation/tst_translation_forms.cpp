// Files with plural forms and length variants, which a rewrite loses: what is kept beside them.

#include "clt_message_table.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"
#include "translation/translation_update.h"

#include <QDir>
#include <QTest>
#include <QTextStream>

#include <memory>

using Error::TranslationTable;

namespace {

QByteArray fileOf(const QByteArray &messages)
{
    return "<!DOCTYPE TS><TS version=\"2.1\" language=\"de_DE\"><context><name>Clt</name>" + messages +
           "</context></TS>\n";
}

const QByteArray plural = fileOf("<message numerus=\"yes\"><source>%n rows</source><translation>"
                                 "<numerusform>%n Zeile</numerusform><numerusform>%n Zeilen</numerusform>"
                                 "</translation></message>");

} // namespace

class tst_translation_forms : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_file = m_folder->path(QStringLiteral("client_de.ts"));
        m_copy = m_file + QStringLiteral(".before");
    }

    void onlyAFileWithFormsIsKept_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("kept");
        QTest::newRow("plural forms") << plural << true;
        QTest::newRow("plural forms to come")
            << fileOf("<message numerus=\"yes\"><source>a</source><translation/></message>") << true;
        QTest::newRow("length variants")
            << fileOf("<message><source>a</source><translation variants=\"yes\"><lengthvariant>long"
                      "</lengthvariant><lengthvariant>l</lengthvariant></translation></message>")
            << true;
        QTest::newRow("forms in the last message alone")
            << fileOf("<message><source>a</source><translation>b</translation></message><message "
                      "numerus=\"yes\"><source>c</source><translation><numerusform>d</numerusform>"
                      "</translation></message>")
            << true;
        QTest::newRow("no forms") << fileOf("<message numerus=\"no\"><source>a</source><translation>b"
                                            "</translation></message>")
                                  << false;
        QTest::newRow("a character by its number")
            << fileOf(
                   "<message><source>a</source><translation>b<byte value=\"x1b\"/></translation></message>")
            << false;
        QTest::newRow("elements beside the translation")
            << fileOf("<message><location line=\"1\"/><source>a</source><translation>b</translation>"
                      "<translatorcomment>c</translatorcomment></message>")
            << false;
    }

    void onlyAFileWithFormsIsKept()
    {
        QFETCH(const QByteArray, contents);
        QFETCH(const bool, kept);
        QVERIFY(writeBytes(m_file, contents));
        TranslationTable table;
        QVERIFY(table.load(m_file));
        QVERIFY(table.save(m_file));
        QCOMPARE(fileBytes(m_copy).value_or("none"), kept ? contents : QByteArray("none"));
        QCOMPARE(table.keptFile(), kept ? m_copy : QString());
        QVERIFY(!fileBytes(m_file)->contains("numerusform"));
    }

    void theFileIsKeptOnce()
    {
        QVERIFY(writeBytes(m_file, plural));
        TranslationTable table;
        QVERIFY(table.load(m_file));
        QVERIFY(table.save(m_file));
        table.addString(QStringLiteral("Clt"), QStringLiteral("new"));
        QVERIFY(table.save(m_file));
        QCOMPARE(table.keptFile(), QString());
        QCOMPARE(names(),
                 QStringList({QStringLiteral("client_de.ts"), QStringLiteral("client_de.ts.before")}));
        QCOMPARE(fileBytes(m_copy), plural);
    }

    void anEarlierCopyIsNeverOverwritten()
    {
        const QByteArray second = QByteArray(plural).replace("Zeilen", "Reihen");
        QVERIFY(writeBytes(m_copy, "the first"));
        QVERIFY(QDir().mkdir(m_copy + QStringLiteral(".2")));
        for (const QByteArray &contents : {plural, second})
            QVERIFY(rewrite(contents).endsWith(contents == plural ? QStringLiteral(".before.3")
                                                                  : QStringLiteral(".before.4")));
        QCOMPARE(fileBytes(m_copy), QByteArray("the first"));
        QCOMPARE(fileBytes(m_copy + QStringLiteral(".3")), plural);
        QCOMPARE(fileBytes(m_copy + QStringLiteral(".4")), second);
    }

    void aCopyWithTheSameBytesIsUsedAgain()
    {
        QCOMPARE(rewrite(plural), m_copy);
        QCOMPARE(rewrite(plural), m_copy);
        QCOMPARE(names().size(), 2);
    }

    void aFileThatCannotBeKeptIsNotReplaced()
    {
        QVERIFY(QDir().mkdir(m_copy + QStringLiteral(".nvxpart"))); // where the copy is written first
        QCOMPARE(rewrite(plural), QString());
        QCOMPARE(fileBytes(m_file), plural);
        QVERIFY(!QFile::exists(m_copy));
    }

    void aTableThatIsSavedElsewhereLeavesTheFileAlone()
    {
        const QString other = m_folder->path(QStringLiteral("other.ts"));
        QVERIFY(writeBytes(m_file, plural));
        QVERIFY(writeBytes(other, "old"));
        TranslationTable table;
        QVERIFY(table.load(m_file));
        QVERIFY(table.save(other));
        QCOMPARE(names(), QStringList({QStringLiteral("client_de.ts"), QStringLiteral("other.ts")}));
        QCOMPARE(fileBytes(m_file), plural);
        // It is still the file that would lose its forms.
        QVERIFY(table.save(m_folder->path(QStringLiteral("./client_de.ts"))));
        QCOMPARE(fileBytes(m_copy), plural);
    }

    void aDamagedFileWithFormsIsKeptUnderBothNames()
    {
        const QByteArray damaged = plural.left(plural.indexOf("</context>"));
        QVERIFY(rewrite(damaged, false).endsWith(QStringLiteral(".before")));
        QCOMPARE(fileBytes(m_copy), damaged);
        QCOMPARE(fileBytes(m_file + QStringLiteral(".damaged")), damaged);
    }

    void anUpdateNamesTheCopyAmongTheErrors()
    {
        const QString messages = m_folder->path(QStringLiteral("messages.xml"));
        QVERIFY(Clt::MessageTable().save(messages));
        QVERIFY(writeBytes(m_file, plural));
        QString told;
        QString errors;
        for (int run = 0; run < 2; ++run) {
            QTextStream log(&told);
            QTextStream errorLog(&errors);
            QVERIFY(Error::synchronizeTranslationTable(messages, m_file, log, errorLog));
        }
        QCOMPARE(errors, QStringLiteral("Plural forms were dropped; the old file is %1\n").arg(m_copy));
        QVERIFY(!told.contains(QStringLiteral(".before")));
    }

private:
    QStringList names() const { return QDir(m_folder->path()).entryList(QDir::Files, QDir::Name); }

    /// Writes the file, loads and saves it; the copy that was kept, empty when the save failed.
    QString rewrite(const QByteArray &contents, bool loads = true)
    {
        TranslationTable table;
        if (!writeBytes(m_file, contents) || table.load(m_file) != loads || !table.save(m_file))
            return {};
        return table.keptFile();
    }

    std::unique_ptr<TestFolder> m_folder;
    QString m_file;
    QString m_copy;
};

NVX_GUILESS_TEST(tst_translation_forms)
#include "tst_translation_forms.moc"
