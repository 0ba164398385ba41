#include "cad/cad_systems.h"
#include "support/test_class.h"
#include "support/text.h"
#include "wizard/wizard_fixture.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Wizard::WizardPlan;

namespace {

const QString allPages = u"Welcome|CAD Launchers |Conclusion "_s;

// A null image for a null picture.
QImage pixelsOf(const QPixmap &picture)
{
    return picture.isNull() ? QImage() : picture.toImage().convertToFormat(QImage::Format_ARGB32);
}

// The widgets of the current page in the order of the Tab key, then the wizard's buttons, by their names or
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
        QTest::newRow("silent without a mode") << u"-S"_s << allPages;
        QTest::newRow("a language without a mode") << u"-Lde-DE"_s << allPages;
        QTest::newRow("install") << u"-I"_s << u"CAD Launchers |Conclusion "_s;
        QTest::newRow("uninstall") << u"-U"_s << u"Conclusion "_s;
    }

    void everyModeShowsExactlyItsPages()
    {
        QFETCH(QString, options);
        const ClassWizard &wizard = m_fixture->show(options);
        QTEST(titlesOf(wizard), "titles");
        QCOMPARE(wizard.currentPage()->title(), titlesOf(wizard).section(u'|', 0, 0));
    }

    void everySubtitleIsOneBlank()
    {
        const ClassWizard &wizard = m_fixture->show(QString());
        const QList<int> ids = wizard.pageIds();
        QCOMPARE(ids.size(), 3);
        for (const int id : ids)
            QCOMPARE(wizard.page(id)->subTitle(), u" "_s);
    }

    void theWindowHasTheProductsTitleAndStyle()
    {
        const ClassWizard &wizard = m_fixture->show(QString());
        QCOMPARE(wizard.windowTitle(), u"NVX 2017 Configuration Wizard"_s);
        QCOMPARE(wizard.wizardStyle(), QWizard::ModernStyle);
        QVERIFY(!wizard.testOption(QWizard::HaveHelpButton));
        QVERIFY(wizard.testOption(QWizard::NoCancelButton));
    }

    void theTitleBarHasNoHelpButton()
    {
        const ClassWizard &wizard = m_fixture->show(QString());
        QVERIFY(!wizard.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    }

    void theBannerIsAtTheTopOfEveryPage()
    {
        const ClassWizard &wizard = m_fixture->show(QString());
        const QPixmap shown = wizard.pixmap(QWizard::BannerPixmap);
        const QPixmap banner(u":/image/banner.png"_s);
        QVERIFY(!banner.isNull());
        QCOMPARE(shown.width(), banner.width());
        // Large text needs a higher one.
        QCOMPARE(pixelsOf(shown),
                 pixelsOf(banner.scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
        const QList<int> ids = wizard.pageIds();
        for (const int id : ids)
            QCOMPARE(wizard.page(id)->pixmap(QWizard::BannerPixmap).cacheKey(), shown.cacheKey());
    }

    void onlyTheLaunchersPageHasTheLogo()
    {
        const ClassWizard &wizard = m_fixture->show(QString());
        const QPixmap logo(u":/images/logo1.png"_s);
        QVERIFY(!logo.isNull());
        const QList<int> ids = wizard.pageIds();
        for (const int id : ids) {
            const QWizardPage &page = *wizard.page(id);
            const bool hasLogo = id == int(WizardPlan::Page::Feature);
            QCOMPARE(pixelsOf(page.pixmap(QWizard::LogoPixmap)), hasLogo ? pixelsOf(logo) : QImage());
            QVERIFY(page.pixmap(QWizard::WatermarkPixmap).isNull());
            QVERIFY(page.pixmap(QWizard::BackgroundPixmap).isNull());
        }
    }

    void theWindowAndItsPagesHaveTheNamesOfTheirClasses()
    {
        const ClassWizard &wizard = m_fixture->show(QString());
        QStringList names{wizard.objectName()};
        const QList<int> ids = wizard.pageIds();
        for (const int id : ids)
            names << wizard.page(id)->objectName();
        QCOMPARE(names,
                 QStringList({u"ClassWizard"_s, u"WelcomePage"_s, u"FeaturePage"_s, u"ConclusionPage"_s}));
    }

    void everyWidgetOfAPageHasItsName_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("shown"); // the text of a label or a check box, the class of a list
        const auto row = [](WizardPlan::Page page, const char *name, const char *shown) {
            QTest::newRow(name) << int(page) << text(shown);
        };
        row(WizardPlan::Page::Welcome, "m_intro",
            "This wizard will configure Velmora NVX 2017 for your system.");
        row(WizardPlan::Page::Welcome, "m_changeLanguage", "Change language");
        row(WizardPlan::Page::Welcome, "m_languages", "QComboBox");
        row(WizardPlan::Page::Feature, "m_description",
            "NVX launchers will be installed for the CAD systems that are checked.");
        row(WizardPlan::Page::Feature, "m_cbCreo", "Pro/ENGINEER Creo");
        row(WizardPlan::Page::Feature, "m_cbSolidworks", "SolidWorks");
        row(WizardPlan::Page::Feature, "m_cbBrevant", "Brevant");
        row(WizardPlan::Page::Feature, "UGS NX", "UGS NX");
        row(WizardPlan::Page::Feature, "Tamsel", "Tamsel");
        row(WizardPlan::Page::Feature, "Tamsel ARCH", "Tamsel Architecture");
        row(WizardPlan::Page::Feature, "Tamsel MEP", "Tamsel MEP");
        row(WizardPlan::Page::Feature, "m_cbSpaceclaim", "SpaceClaim");
        row(WizardPlan::Page::Conclusion, "m_progress", "Nvx::Wizard::ProgressList");
    }

    void everyWidgetOfAPageHasItsName()
    {
        QFETCH(int, page);
        const ClassWizard &wizard = m_fixture->build(QString());
        const auto found = wizard.page(page)->findChildren<QWidget *>(text(QTest::currentDataTag()));
        QCOMPARE(found.size(), 1);
        const QVariant ofWidget = found.first()->property("text");
        const QString className = text(found.first()->metaObject()->className());
        QTEST(ofWidget.isValid() ? ofWidget.toString() : className, "shown");
    }

    void thePagesFollowEachOther()
    {
        ClassWizard &wizard = m_fixture->show(QString());
        wizard.next();
        QCOMPARE(wizard.currentPage()->title(), u"CAD Launchers "_s);
        wizard.next();
        QCOMPARE(wizard.currentPage()->title(), u"Conclusion "_s);
        QVERIFY(m_fixture->button(QWizard::FinishButton).isVisible());
        QVERIFY(!m_fixture->button(QWizard::NextButton).isVisible());
    }

    void finishIsLogged()
    {
        ClassWizard &wizard = m_fixture->show(u"-U"_s);
        QTRY_VERIFY(m_fixture->button(QWizard::FinishButton).isEnabled());
        QTest::mouseClick(&m_fixture->button(QWizard::FinishButton), Qt::LeftButton);
        QVERIFY(!wizard.isVisible());
        QCOMPARE(wizard.result(), int(QDialog::Accepted));
        QCOMPARE(m_fixture->lines().last(), u"   0 Program exiting"_s);
    }

    void escapeClosesThePagesBeforeARun_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("welcome") << QString();
        QTest::newRow("launchers") << u"-I"_s;
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
        ClassWizard &wizard = m_fixture->show(u"-U"_s);
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
        QCOMPARE(tabOrder(wizard), QStringList({u"m_languages"_s, u"&Next >"_s}));

        wizard.next();
        const auto boxes = wizard.currentPage()->findChildren<QCheckBox *>();
        QCOMPARE(boxes.size(), static_cast<qsizetype>(Nvx::Cad::cadSystems().size()));
        for (QCheckBox *box : boxes)
            box->setEnabled(true);
        boxes.first()->setFocus();
        QCOMPARE(tabOrder(wizard),
                 QStringList({u"Pro/ENGINEER Creo"_s, u"SolidWorks"_s, u"Brevant"_s, u"UGS NX"_s, u"Tamsel"_s,
                              u"Tamsel Architecture"_s, u"Tamsel MEP"_s, u"SpaceClaim"_s, u"< &Back"_s,
                              u"&Next >"_s}));

        wizard.next();
        QCOMPARE(tabOrder(wizard), QStringList({u"m_progress"_s, u"< &Back"_s}));
    }

    void everyControlHasAnAccessibleName()
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
        QVERIFY(names.contains(u"Change language"_s));
        QVERIFY(names.contains(u"Progress"_s));
        QVERIFY(names.contains(u"SolidWorks"_s));
    }

private:
    std::unique_ptr<WizardFixture> m_fixture;
};

NVX_TEST(tst_class_wizard)
#include "tst_class_wizard.moc"
