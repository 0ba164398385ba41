#include "help/context_help.h"
#include "support/test_class.h"

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace Nvx::Help;
using namespace Qt::Literals::StringLiterals;

class tst_help_button : public QObject
{
    Q_OBJECT

private slots:
    void aHelpButtonShowsAnIconAndNoText_data()
    {
        QTest::addColumn<bool>("flat");
        QTest::newRow("raised") << false;
        QTest::newRow("flat") << true;
    }

    void aHelpButtonShowsAnIconAndNoText()
    {
        QFETCH(bool, flat);
        QPushButton button(u"text"_s);
        styleHelpButton(button, flat ? HelpButtonFrame::Flat : HelpButtonFrame::Raised);
        QVERIFY(!button.icon().pixmap(24).isNull());
        QCOMPARE(button.text(), QString());
        QCOMPARE(button.accessibleName(), u"Help"_s);
        QCOMPARE(button.isFlat(), flat);
    }

    void enterNeverOpensHelp()
    {
        QDialog dialog;
        QVBoxLayout layout(&dialog);
        QPushButton help;
        help.setDefault(true);
        styleHelpButton(help);
        layout.addWidget(&help);
        QVERIFY(!help.isDefault());
        QVERIFY(!help.autoDefault());

        int opened = 0;
        connect(&help, &QPushButton::clicked, this, [&opened] { ++opened; });
        dialog.show();
        help.setFocus();
        QTest::keyClick(&help, Qt::Key_Return);
        QCOMPARE(opened, 0);
        QTest::keyClick(&help, Qt::Key_Space);
        QCOMPARE(opened, 1);
    }

    void onlyTheHelpButtonIsRemovedFromTheTitleBar()
    {
        QDialog dialog;
        const Qt::WindowFlags without = dialog.windowFlags() & ~Qt::WindowContextHelpButtonHint;
        dialog.setWindowFlags(without | Qt::WindowContextHelpButtonHint);
        removeTitleBarHelpButton(dialog);
        QCOMPARE(dialog.windowFlags(), without);
    }
};

NVX_TEST(tst_help_button)
#include "tst_help_button.moc"
