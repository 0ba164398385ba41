// Files that fail when they are read, and files that cannot be opened.

#include "support/odd_files.h"
#include "support/test_class.h"
#include "utility_fixture.h"

#include <QTest>

class tst_message_table_odd_files : public QObject
{
    Q_OBJECT

private slots:
    void unreadableTableIsReportedAndTheOldOneRemains_data() { addUnreadableFileRows(); }

    void unreadableTableIsReportedAndTheOldOneRemains()
    {
        QFETCH(const QString, file);
        UtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        QVERIFY(!f.window.openFile(file));
        QCOMPARE(f.dialogs.warnings.size(), 1);
        const QString warning = f.dialogs.warnings.first().text;
        QVERIFY2(warning.endsWith(file + u'\n' + errorOf(file)), qPrintable(warning));
        QCOMPARE(f.window.fileName(), f.tableFile);
        QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
    }
};

NVX_TEST(tst_message_table_odd_files)
#include "tst_message_table_odd_files.moc"
