// The bytes of a saved table, with the operating system's line ends (LINE_END).

#include "clt_message_table.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_message_table_line_ends : public QObject
{
    Q_OBJECT

private slots:
    void savedTableHasTheLineEndsOfTheSystem()
    {
        Clt::Message message;
        message.setKey({u"Tag"_s, u"A::f"_s, u"client"_s});
        message.setSeverity(Clt::Severity::Warning);
        message.setText(u"two\nlines\rand more"_s);
        Clt::MessageTable table;
        table.insert(message);
        const TestFolder folder;
        const QString fileName = folder.path(u"errors.xml"_s);
        QVERIFY(table.save(fileName));

        const QByteArray expected =
            QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<messageTable xmlns=\"http://www.velmora.example/nvx/messageTable\""
                       " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
                       " xsi:schemaLocation=\"http://www.velmora.example/nvx/messageTable ErrorTable.xsd\">\n"
                       "   <message severity=\"Warning\">\n"
                       "      <key>\n"
                       "         <process>client</process>\n"
                       "         <context>A::f</context>\n"
                       "         <tag>Tag</tag>\n"
                       "      </key>\n"
                       "      <text>two\nlines&#13;and more</text>\n"
                       "   </message>\n"
                       "</messageTable>\n")
                .replace("\n", LINE_END);
        QCOMPARE(fileBytes(fileName), expected);

        Clt::MessageTable loaded;
        QVERIFY(loaded.load(fileName));
        QCOMPARE(loaded.message(message.key()).text(), message.text());
        QVERIFY(loaded.save(fileName));
        QCOMPARE(fileBytes(fileName), expected);
    }
};

NVX_GUILESS_TEST(tst_message_table_line_ends)
#include "tst_message_table_line_ends.moc"
