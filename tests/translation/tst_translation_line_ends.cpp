// The bytes of a saved translation file. Lines end as the operating system ends them: LINE_END.

#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"

#include <QTest>

class tst_translation_line_ends : public QObject
{
    Q_OBJECT

private slots:
    void savedTableHasTheLineEndsOfTheSystem()
    {
        Error::TranslationContext context(QStringLiteral("A::f"));
        const Error::TranslationMessage message = {QStringLiteral("two\nlines\rand more"),
                                                   QStringLiteral("zwei"), QString(), QString()};
        context.append(message);
        Error::TranslationTable table;
        table.setVersion(QStringLiteral("2.1"));
        table.setLanguage(QStringLiteral("de_DE"));
        table.setContext(context);
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("client_de.ts"));
        QVERIFY(table.save(fileName));

        const QByteArray expected = QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                               "<!DOCTYPE TS>\n"
                                               "<TS version=\"2.1\" language=\"de_DE\">\n"
                                               "   <defaultcodec></defaultcodec>\n"
                                               "   <context>\n"
                                               "      <name>A::f</name>\n"
                                               "      <message>\n"
                                               "         <source>two\nlines&#13;and more</source>\n"
                                               "         <translation type=\"\">zwei</translation>\n"
                                               "      </message>\n"
                                               "   </context>\n"
                                               "</TS>\n")
                                        .replace("\n", LINE_END);
        QCOMPARE(fileBytes(fileName), expected);

        Error::TranslationTable loaded;
        QVERIFY(loaded.load(fileName));
        QVERIFY(loaded.contains(QStringLiteral("A::f"), message.source));
        QVERIFY(loaded.save(fileName));
        QCOMPARE(fileBytes(fileName), expected);
    }
};

NVX_GUILESS_TEST(tst_translation_line_ends)
#include "tst_translation_line_ends.moc"
