// The copies of files with plural forms and other parts that a rewrite loses.

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

using namespace Qt::Literals::StringLiterals;

using Translation::TranslationTable;

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
        m_file = m_folder->path(u"client_de.ts"_s);
        m_copy = m_file + u".before"_s;
    }

    void onlyAFileThatARewriteCutsIsCopied_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("isCopied");
        QTest::newRow("plural forms") << plural << true;
        QTest::newRow("plural forms not translated yet")
            << fileOf("<message numerus=\"yes\"><source>a</source><translation/></message>") << true;
        QTest::newRow("length variants")
            << fileOf("<message><source>a</source><translation variants=\"yes\"><lengthvariant>long"
                      "</lengthvariant><lengthvariant>l</lengthvariant></translation></message>")
            << true;
        QTest::newRow("forms only in the last message")
            << fileOf("<message><source>a</source><translation>b</translation></message><message "
                      "numerus=\"yes\"><source>c</source><translation><numerusform>d</numerusform>"
                      "</translation></message>")
            << true;
        QTest::newRow("no forms") << fileOf("<message numerus=\"no\"><source>a</source><translation>b"
                                            "</translation></message>")
                                  << false;
        QTest::newRow("character by its number")
            << fileOf(
                   "<message><source>a</source><translation>b<byte value=\"x1b\"/></translation></message>")
            << false;
        QTest::newRow("locations")
            << fileOf("<message><location line=\"1\"/><source>a</source><translation>b</translation>"
                      "</message>")
            << false;
        QTest::newRow("language of the sources")
            << QByteArray("<TS version=\"2.1\" sourcelanguage=\"en\"><context/></TS>") << false;
        QTest::newRow("translators' comments")
            << fileOf("<message><source>a</source><translation>b</translation>"
                      "<translatorcomment>c</translatorcomment></message>")
            << true;
        QTest::newRow("id")
            << fileOf("<message id=\"a\"><source>a</source><translation>b</translation></message>") << true;
        QTest::newRow("second translation")
            << fileOf("<message><source>a</source><translation>b</translation><translation>c</translation>"
                      "</message>")
            << true;
        QTest::newRow("second source")
            << fileOf("<message><source>a</source><source>b</source></message>") << true;
        QTest::newRow("second comment")
            << fileOf("<message><source>a</source><comment>b</comment><comment>c</comment></message>")
            << true;
        QTest::newRow("context that occurs again")
            << QByteArray("<TS><context><name>a</name></context><context><name>a</name></context></TS>")
            << true;
        QTest::newRow("number of no character")
            << fileOf("<message><source>a<byte value=\"x110000\"/></source></message>") << true;
        QTest::newRow("text between elements") << fileOf("<message>a<source>a</source></message>") << true;
        QTest::newRow("comment") << fileOf("<!-- a --><message><source>a</source></message>") << true;
    }

    void onlyAFileThatARewriteCutsIsCopied()
    {
        QFETCH(const QByteArray, contents);
        QFETCH(const bool, isCopied);
        QVERIFY(writeBytes(m_file, contents));
        TranslationTable table;
        QVERIFY(table.load(m_file));
        QVERIFY(table.save(m_file));
        QCOMPARE(fileBytes(m_copy).value_or("none"), isCopied ? contents : QByteArray("none"));
        QCOMPARE(table.backupFile(), isCopied ? m_copy : QString());
        QVERIFY(!fileBytes(m_file)->contains("numerusform"));
    }

    void theFileIsCopiedOnce()
    {
        QVERIFY(writeBytes(m_file, plural));
        TranslationTable table;
        QVERIFY(table.load(m_file));
        QVERIFY(table.save(m_file));
        table.addString(u"Clt"_s, u"new"_s);
        QVERIFY(table.save(m_file));
        QCOMPARE(table.backupFile(), QString());
        QCOMPARE(names(), QStringList({u"client_de.ts"_s, u"client_de.ts.before"_s}));
        QCOMPARE(fileBytes(m_copy), plural);
    }

    void existingCopyIsNeverOverwritten()
    {
        const QByteArray second = QByteArray(plural).replace("Zeilen", "Reihen");
        QVERIFY(writeBytes(m_copy, "the first"));
        QVERIFY(QDir().mkdir(m_copy + u".2"_s));
        for (const QByteArray &contents : {plural, second})
            QVERIFY(rewrite(contents).endsWith(contents == plural ? u".before.3"_s : u".before.4"_s));
        QCOMPARE(fileBytes(m_copy), QByteArray("the first"));
        QCOMPARE(fileBytes(m_copy + u".3"_s), plural);
        QCOMPARE(fileBytes(m_copy + u".4"_s), second);
    }

    void copyWithTheSameBytesIsReused()
    {
        QCOMPARE(rewrite(plural), m_copy);
        QCOMPARE(rewrite(plural), m_copy);
        QCOMPARE(names().size(), 2);
    }

    void fileThatCannotBeCopiedIsNotReplaced()
    {
        QVERIFY(QDir().mkdir(m_copy + u".nvxpart"_s)); // the temporary file of the copy
        QCOMPARE(rewrite(plural), QString());
        QCOMPARE(fileBytes(m_file), plural);
        QVERIFY(!QFile::exists(m_copy));
    }

    void textBetweenContextsIsListed()
    {
        QCOMPARE(leftFrom("<TS>\nstray<context><name>A</name></context>text</TS>"),
                 QStringList({u"Line 2: \"stray\" is not kept"_s, u"Line 2: \"text\" is not kept"_s}));
    }

    void secondCodecIsListedWithTheLinesWhereBothBegin()
    {
        const QStringList left = leftFrom("<TS>\n<defaultcodec>A\n\n</defaultcodec>\n"
                                          "<defaultcodec>B\n\n</defaultcodec></TS>");
        QCOMPARE(left.size(), 1);
        QVERIFY2(left.first().startsWith(u"Line 2: "_s) && left.first().contains(u"line 5"_s),
                 qPrintable(left.first()));
    }

    void savingElsewhereLeavesTheFile()
    {
        const QString other = m_folder->path(u"other.ts"_s);
        QVERIFY(writeBytes(m_file, plural));
        QVERIFY(writeBytes(other, "old"));
        TranslationTable table;
        QVERIFY(table.load(m_file));
        QVERIFY(table.save(other));
        QCOMPARE(names(), QStringList({u"client_de.ts"_s, u"other.ts"_s}));
        QCOMPARE(fileBytes(m_file), plural);
        // Saving to the file itself still makes the copy.
        QVERIFY(table.save(m_folder->path(u"./client_de.ts"_s)));
        QCOMPARE(fileBytes(m_copy), plural);
    }

    void damagedFileWithFormsIsCopiedUnderBothNames()
    {
        const QByteArray damaged = plural.left(plural.indexOf("</context>"));
        QVERIFY(rewrite(damaged, false).endsWith(u".before"_s));
        QCOMPARE(fileBytes(m_copy), damaged);
        QCOMPARE(fileBytes(m_file + u".damaged"_s), damaged);
    }

    void updateReportsTheCopyAsAnError()
    {
        const QString messages = m_folder->path(u"messages.xml"_s);
        QVERIFY(Clt::MessageTable().save(messages));
        QVERIFY(writeBytes(m_file, plural));
        QString output;
        QString errors;
        for (int run = 0; run < 2; ++run) {
            QTextStream log(&output);
            QTextStream errorLog(&errors);
            QVERIFY(Translation::synchronizeTranslationTable(messages, m_file, log, errorLog));
        }
        QVERIFY2(errors.endsWith(
                     u"<numerusform> is not kept\n"
                     "Parts of the file were dropped; the previous file is kept as %1\n"_s.arg(m_copy)),
                 qPrintable(errors));
        QCOMPARE(errors.count(u".before\n"_s), 1);
        QVERIFY(!output.contains(u".before"_s));
    }

private:
    QStringList names() const { return QDir(m_folder->path()).entryList(QDir::Files, QDir::Name); }

    /// What reading such a file leaves over.
    QStringList leftFrom(const QByteArray &contents)
    {
        TranslationTable table;
        if (!writeBytes(m_file, contents) || !table.load(m_file))
            return {};
        return table.leftovers().texts(10);
    }

    /// Writes, loads and saves the file. Returns the name of the copy; empty if the save failed.
    QString rewrite(const QByteArray &contents, bool loads = true)
    {
        TranslationTable table;
        if (!writeBytes(m_file, contents) || table.load(m_file) != loads || !table.save(m_file))
            return {};
        return table.backupFile();
    }

    std::unique_ptr<TestFolder> m_folder;
    QString m_file;
    QString m_copy;
};

NVX_GUILESS_TEST(tst_translation_forms)
#include "tst_translation_forms.moc"
