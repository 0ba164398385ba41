#include "nvx_util/languages.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/text.h"
#include "wizard/wizard_fixture.h"

#include <QComboBox>
#include <QFile>
#include <QTest>
#include <QTimer>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using Nvx::Util::System;

class tst_welcome_page : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<WizardFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void thePageDescribesTheWizard()
    {
        show(QString());
        QStringList texts;
        const auto labels = m_fixture->wizard->currentPage()->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            texts << label->text();
        texts.removeAll(u" "_s);
        QCOMPARE(texts, QStringList({u"This wizard will configure Velmora NVX 2017 for your system."_s,
                                     u"Change language"_s}));
    }

    void thePageListsTheLanguagesInTheOrderOfTheTable()
    {
        QStringList offered;
        const QComboBox &box = show(QString());
        for (int i = 0; i < box.count(); ++i)
            offered << box.itemText(i) + u"="_s + box.itemData(i).toString();
        QStringList expected;
        for (const Nvx::Util::Language &language : Nvx::Util::languages)
            expected << text(language.name) + u"="_s + language.locale;
        QCOMPARE(offered, expected);
    }

    void theRunsLanguageIsSelected_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("selected");
        QTest::newRow("the system's") << QString() << u"English"_s;
        QTest::newRow("of the command line") << u"-Lja-JP"_s << u"Japanese"_s;
        QTest::newRow("spelled in capitals") << u"-LIT-IT"_s << u"Italian"_s;
        QTest::newRow("not offered") << u"-Lde"_s << QString();
        QTest::newRow("no locale") << u"-L"_s << u"Korean"_s;
    }

    void theRunsLanguageIsSelected()
    {
        QFETCH(QString, options);
        System::setLocale(u"ko-KR"_s);
        QTEST(show(options).currentText(), "selected");
    }

    void anUnchangedLanguageLeadsToTheNextPage_data() { theRunsLanguageIsSelected_data(); }

    void anUnchangedLanguageLeadsToTheNextPage()
    {
        QFETCH(QString, options);
        System::setLocale(u"ko-KR"_s);
        show(options);
        const QStringList before = m_fixture->lines();
        m_fixture->button(QWizard::NextButton).click();
        QCOMPARE(m_fixture->wizard->currentPage()->title(), u"CAD Launchers "_s);
        QCOMPARE(m_fixture->lines(), before);
    }

    void anotherLanguageEndsTheEventLoop()
    {
        QComboBox &languages = show(QString());
        QTimer::singleShot(0, this, [&] {
            languages.setCurrentText(u"Japanese"_s);
            m_fixture->button(QWizard::NextButton).click();
        });
        QCOMPARE(QApplication::exec(), 901);
        QCOMPARE(m_fixture->wizard->currentPage()->title(), u"Welcome"_s);
    }

    void anotherLanguageIsSetUpAtOnce()
    {
        writeFile(m_fixture->installed("ja-JP/VistrelResources.dll"), "Japanese");
        show(u"-Lde-DE"_s).setCurrentText(u"Japanese"_s);
        const auto before = m_fixture->lines().size();
        QCOMPARE(m_fixture->wizard->nextId(), -1);
        const RunState &state = m_fixture->engine->state();
        QCOMPARE(state.locale, u"ja-JP"_s);
        QCOMPARE(state.currentLocale, u"ja-JP"_s);
        QVERIFY(state.runMode == RunMode::Install);
        QCOMPARE(System::getLocale(), u"ja-JP"_s);
        QCOMPARE(readFile(m_fixture->installed("VistrelResources.dll")), QByteArray("Japanese"));
        const QStringList lines = m_fixture->lines().mid(before);
        QVERIFY(lines.contains(u"   2 Install Language ja-JP"_s));
        QCOMPARE(lines.filter(u"ChangeLanguage = "_s),
                 QStringList({u"   0 ChangeLanguage = en-US"_s, u"   0 ChangeLanguage = ja-JP"_s}));
    }

    void theShortcutIsRemovedAndCreatedAgain()
    {
        writeFile(m_fixture->test.path(u"Desktop/Velmora NVX 2017.lnk"_s), "named in the old language");
        m_fixture->machine.desktop = m_fixture->test.path(u"Desktop"_s);
        show(QString()).setCurrentText(u"French"_s);
        const auto before = m_fixture->lines().size();
        m_fixture->wizard->nextId();

        const QStringList lines = m_fixture->lines().mid(before);
        const QString desktop = u"   0 Desktop="_s + m_fixture->machine.desktop;
        QCOMPARE(lines.first(), desktop);
        QCOMPARE(lines.at(1), u"   2 Install Language fr-FR"_s);
        QVERIFY(lines.last().startsWith(u"   0 Create shortcut "_s));
        QCOMPARE(lines.at(lines.size() - 2), desktop);
        QVERIFY(!QFile::exists(m_fixture->test.path(u"Desktop/Velmora NVX 2017.lnk"_s)));
        QCOMPARE(m_fixture->machine.shellLinks.size(), 1);
    }

    void selectingALanguageAloneChangesNothing()
    {
        QComboBox &languages = show(QString());
        const QStringList before = m_fixture->lines();
        for (int i = 0; i < languages.count(); ++i)
            languages.setCurrentIndex(i);
        QTest::keyClick(m_fixture->wizard.get(), Qt::Key_Escape); // also calls nextId
        QCOMPARE(m_fixture->lines(), before);
        QCOMPARE(m_fixture->engine->state().locale, u"en-US"_s);
    }

private:
    QComboBox &show(const QString &options)
    {
        return *m_fixture->show(options).findChild<QComboBox *>(u"m_languages"_s);
    }

    std::unique_ptr<WizardFixture> m_fixture;
};

NVX_TEST(tst_welcome_page)
#include "tst_welcome_page.moc"
