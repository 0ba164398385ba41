// Every text on the pages fits, in every language and at the usual text sizes. If the variable NVX_PICTURES
// is set, pictures of the pages are saved in the folder that it names.

#include "cad/cad_systems.h"
#include "cfg_wizard/feature_page.h"
#include "cfg_wizard/interface_language.h"
#include "nvx_util/languages.h"
#include "nvx_util/system.h"
#include "support/checkout.h"
#include "support/test_class.h"
#include "support/text.h"
#include "wizard/wizard_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGlyphRun>
#include <QRawFont>
#include <QTest>
#include <QTextLayout>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using Nvx::Wizard::fontsOfLanguage;
using Nvx::Wizard::InterfaceFont;
using Nvx::Wizard::InterfaceTranslators;

namespace {

QString nameOf(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return label ? label->text() : button ? button->text() : widget.objectName();
}

bool holdsItsText(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label && label->wordWrap())
        return label->heightForWidth(label->width()) <= label->height();
    return widget.width() >= widget.sizeHint().width() && widget.height() >= widget.sizeHint().height();
}

bool isText(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return (label && !label->text().trimmed().isEmpty()) || qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QComboBox *>(&widget);
}

// The texts of the current page that do not fit.
QStringList crampedTexts(const QWizard &wizard)
{
    QStringList cramped;
    const auto widgets = wizard.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() || !isText(*widget))
            continue;
        const QWidget &parent = *widget->parentWidget();
        const QRect inWindow(widget->mapTo(&wizard, QPoint()), widget->size());
        if (!holdsItsText(*widget) || !parent.rect().contains(widget->geometry()) ||
            !wizard.rect().contains(inWindow))
            cramped << nameOf(*widget);
    }
    return cramped;
}

// The check boxes of a machine with many CAD systems.
void labelBoxes(FeaturePage &page)
{
    using Nvx::Cad::Launcher;
    for (const auto &system : Nvx::Cad::cadSystems())
        page.setFound(system.launcher, system.launcher != Launcher::TamselMep);
    page.setLabel(Launcher::Creo, u"Creo Parametric 1.0 2.0 3.0"_s);
    page.setLabel(Launcher::Nx, u"UGS NX 8.5 8.5.0 9.0 9.5 9.5.0 10.0 10.5.0 11.0"_s);
    page.setLabel(Launcher::TamselArchitecture, u"Tamsel Architecture 2015 2016 2017 2018"_s);
}

} // namespace

class tst_page_layout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_font = QApplication::font();
        m_pictures = qEnvironmentVariable("NVX_PICTURES");
    }
    void cleanup() { QApplication::setFont(m_font); }

    void everyTextFits_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("percent");
        const QStringList locales = Nvx::Util::System::validLocales();
        for (const QString &locale : locales) {
            for (const int percent : {100, 150, 200})
                QTest::addRow("%s, text of %d %%", qPrintable(locale), percent) << locale << percent;
        }
    }

    void everyTextFits()
    {
        QFETCH(QString, locale);
        QFETCH(int, percent);
        QFont font = m_font;
        font.setPointSizeF(m_font.pointSizeF() * percent / 100);
        QApplication::setFont(font);
        const InterfaceTranslators translators(inCheckout(NVX_LANGUAGES_FOLDER), locale);
        const InterfaceFont interfaceFont(locale);

        WizardFixture fixture;
        ClassWizard &wizard = fixture.build(u"-L"_s + locale);
        labelBoxes(*wizard.findChild<FeaturePage *>());
        wizard.show();
        QVERIFY(QTest::qWaitForWindowExposed(&wizard));
        checkPage(wizard, u"welcome"_s);
        const QSize size = wizard.size();
        wizard.next();
        QCoreApplication::processEvents();
        checkPage(wizard, u"launchers"_s);
        wizard.next();
        fixture.progress().addItem(u"C:\\Program Files\\"_s + QString(u"a-long-folder\\"_s).repeated(9));
        fixture.progress().addItem(QCoreApplication::translate(
            "cfg_utilitys", "The installation or update is complete. Click finish to continue."));
        QCoreApplication::processEvents();
        checkPage(wizard, u"conclusion"_s);
        QCOMPARE(wizard.size(), size);
        const QRect area = fixture.progress().viewport()->rect();
        for (int row = 0; row < 2; ++row) {
            const QRect shown = fixture.progress().visualItemRect(fixture.progress().item(row));
            QVERIFY(shown.left() >= 0 && shown.right() <= area.right());
        }
    }

    void aCharacterHasItsShapeInTheLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        for (const Nvx::Util::Language &language : Nvx::Util::languages) {
            if (!language.fonts.front().isEmpty())
                QTest::newRow(language.locale.data()) << QString(language.locale);
        }
    }

    void aCharacterHasItsShapeInTheLanguage()
    {
        QFETCH(QString, locale);
        const QFont before = QApplication::font();
        {
            const InterfaceFont interfaceFont(locale);
            QTextLayout layout(u"直"_s, QApplication::font());
            layout.beginLayout();
            layout.createLine();
            layout.endLayout();
            QCOMPARE(layout.glyphRuns().size(), 1);
            const QString family = layout.glyphRuns().first().rawFont().familyName();
            QVERIFY2(fontsOfLanguage(locale).contains(family), qPrintable(family));
        }
        QCOMPARE(QApplication::font(), before);
    }

private:
    void checkPage(ClassWizard &wizard, const QString &page)
    {
        const QStringList cramped = crampedTexts(wizard);
        if (!m_pictures.isEmpty()) {
            QFETCH(QString, locale);
            QFETCH(int, percent);
            const QString file = u"%1/%2-%3-%4.png"_s.arg(m_pictures, locale, page).arg(percent);
            QVERIFY2(wizard.grab().save(file), qPrintable(file));
        }
        QVERIFY2(cramped.isEmpty(), qPrintable(page + u": "_s + cramped.join(u" | "_s)));
    }

    QFont m_font;
    QString m_pictures;
};

NVX_TEST(tst_page_layout)
#include "tst_page_layout.moc"
