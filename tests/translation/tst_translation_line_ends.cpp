// The bytes of a saved translation file. LINE_END is the line end of the operating system.

#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_translation_line_ends : public QObject
{
    Q_OBJECT

private slots:
    void savedFileHasTheLineEndsOfTheSystem()
    {
        Translation::TranslationContext context(u"A::f"_s);
        const Translation::TranslationMessage message = {u"two\nlines\rand more"_s, u"zwei"_s, QString(),
                                                         QString()};
        context.append(message);
        Translation::TranslationTable table;
        table.setVersion(u"2.1"_s);
        table.setLanguage(u"de_DE"_s);
        table.setContext(context);
        const TestFolder folder;
        const QString fileName = folder.path(u"client_de.ts"_s);
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

        Translation::TranslationTable loaded;
        QVERIFY(loaded.load(fileName));
        QVERIFY(loaded.contains(u"A::f"_s, message.source));
        QVERIFY(loaded.save(fileName));
        QCOMPARE(fileBytes(fileName), expected);
    }
};

NVX_GUILESS_TEST(tst_translation_line_ends)
#include "tst_translation_line_ends.moc"
