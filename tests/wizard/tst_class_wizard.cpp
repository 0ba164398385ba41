#include "support/test_class.h"
#include "support/text.h"
#include "wizard/wizard_fixture.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QTest>

namespace {

const QString allPages = text("Welcome|CAD Launchers |Conclusion ");

// The widgets that the Tab key reaches on the current page, the wizard's own buttons last, by their names or
// texts.
QStringList tabOrder(QWizard &wizard)
{
    QStringList order;
    QWidget *first = QApplication::focusWidget();
    QWidget *widget = first;
    do {
        const auto *button = qobject_cast<QAbstractButton *>(widget);
        order << (button ? button->text() : widget->objectName());
        QTest::keyClick(&wizard, Qt::Key_Tab);
        widget = QApplication::focusWidget();
    } while (widget && widget != first && order.size() < 50);
    return order;
}

} // namespace

class tst_class_wizard : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<WizardFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void everyModeShowsExactlyItsPages_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("titles");
        QTest::newRow("no mode") << QString() << allPages;
        QTest::newRow("silent without a mode") << text("-S") << allPages;
        QTest::newRow("a language without a mode") << text("-Lde-DE") << allPages;
        QTest::newRow("install") << text("-I") << text("CAD Launchers |Conclusion ");
        QTest::newRow("uninstall") << text("-U") << text("Conclusion ");
    }

    void everyModeShowsExactlyItsPages()
    {
        QFETCH(QString, options);
        const ClassWizard &wizard = m_fixture->show(options);
        QTEST(titlesOf(wizard), "titles");
        QCOMPARE(wizard.currentPage()->title(), titlesOf(wizard).section(QLatin1Char('|'), 0, 0));
    }

    void theSubtitlesAreOneBlank()
    {
        const ClassWizard &wizard = m_fixture->show(QString());
        const QList<int> ids = wizard.pageIds();
        QCOMPARE(ids.size(), 3);
        for (const int id : ids)
            QCOMPARE(wizard.page(id)->subTitle(), text(" "));
    }

    void theWindowIsDressedForTheProduct()
    {
        const ClassWizard &wizard = m_fixture->show(QString());
        QCOMPARE(wizard.windowTitle(), text("NVX 2017 Configuration Wizard"));
        QCOMPARE(wizard.wizardStyle(), QWizard::ModernStyle);
        QVERIFY(!wizard.testOption(QWizard::HaveHelpButton));
        QVERIFY(wizard.testOption(QWizard::NoCancelButton));
        QVERIFY(!wizard.pixmap(QWizard::BannerPixmap).isNull());
        for (const auto page : {WizardPlan::Page::Welcome, WizardPlan::Page::Feature})
            QCOMPARE(wizard.page(int(page))->pixmap(QWizard::LogoPixmap).isNull(),
                     page == WizardPlan::Page::Welcome);
    }

    void thePagesFollowEachOther()
    {
        ClassWizard &wizard = m_fixture->show(QString());
        wizard.next();
        QCOMPARE(wizard.currentPage()->title(), text("CAD Launchers "));
        wizard.next();
        QCOMPARE(wizard.currentPage()->title(), text("Conclusion "));
        QVERIFY(m_fixture->button(QWizard::FinishButton).isVisible());
        QVERIFY(!m_fixture->button(QWizard::NextButton).isVisible());
    }

    void finishIsLogged()
    {
        ClassWizard &wizard = m_fixture->show(text("-U"));
        QTRY_VERIFY(m_fixture->button(QWizard::FinishButton).isEnabled());
        QTest::mouseClick(&m_fixture->button(QWizard::FinishButton), Qt::LeftButton);
        QVERIFY(!wizard.isVisible());
        QCOMPARE(wizard.result(), int(QDialog::Accepted));
        QCOMPARE(m_fixture->lines().last(), text("   0 Program exiting"));
    }

    void escapeClosesThePagesBeforeARun_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("welcome") << QString();
        QTest::newRow("launchers") << text("-I");
    }

    void escapeClosesThePagesBeforeARun()
    {
        QFETCH(QString, options);
        ClassWizard &wizard = m_fixture->show(options);
        QTest::keyClick(&wizard, Qt::Key_Escape);
        QVERIFY(!wizard.isVisible());
        QCOMPARE(m_fixture->runs(), 0);
    }

    void escapeLeavesTheWindowOfARunAlone()
    {
        ClassWizard &wizard = m_fixture->show(text("-U"));
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F5})
            QTest::keyClick(&wizard, key);
        QVERIFY(wizard.isVisible());
        QTRY_VERIFY(m_fixture->button(QWizard::FinishButton).isEnabled());
        QTest::keyClick(&wizard, Qt::Key_Escape);
        QVERIFY(!wizard.isVisible());
    }

    void theTabKeyFollowsThePage()
    {
        ClassWizard &wizard = m_fixture->show(QString());
        wizard.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&wizard));
        QCOMPARE(tabOrder(wizard), QStringList({text("m_languages"), text("&Next >")}));

        wizard.next();
        const auto boxes = wizard.currentPage()->findChildren<QCheckBox *>();
        QCOMPARE(boxes.size(), 8);
        for (QCheckBox *box : boxes)
            box->setEnabled(true);
        boxes.first()->setFocus();
        QCOMPARE(tabOrder(wizard),
                 QStringList({text("Pro/ENGINEER Creo"), text("SolidWorks"), text("Brevant"), text("UGS NX"),
                              text("Tamsel"), text("Tamsel Architecture"), text("Tamsel MEP"),
                              text("SpaceClaim"), text("< &Back"), text("&Next >")}));

        wizard.next();
        QCOMPARE(tabOrder(wizard), QStringList({text("m_progress"), text("< &Back")}));
    }

    void everyControlHasANameForTheReaders()
    {
        const ClassWizard &wizard = m_fixture->show(QString());
        QStringList names;
        const auto widgets = wizard.findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            const bool isControl = qobject_cast<QAbstractButton *>(widget) ||
                                   qobject_cast<QComboBox *>(widget) || qobject_cast<QListWidget *>(widget);
            if (!isControl || !widget->isVisibleTo(widget->parentWidget()))
                continue;
            QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(interface && !interface->text(QAccessible::Name).isEmpty(),
                     qPrintable(widget->objectName()));
            names << interface->text(QAccessible::Name) << widget->accessibleName();
        }
        QVERIFY(names.contains(text("Change language")));
        QVERIFY(names.contains(text("Progress")));
        QVERIFY(names.contains(text("SolidWorks")));
    }

private:
    std::unique_ptr<WizardFixture> m_fixture;
};

NVX_TEST(tst_class_wizard)
#include "tst_class_wizard.moc"
