#include "nvx_util/languages.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/text.h"
#include "wizard/wizard_fixture.h"

#include <QComboBox>
#include <QFile>
#include <QTest>
#include <QTimer>

using Nvx::Util::System;

class tst_welcome_page : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<WizardFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void itSaysWhatTheWizardDoes()
    {
        show(QString());
        QStringList texts;
        const auto labels = m_fixture->wizard->currentPage()->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            texts << label->text();
        texts.removeAll(text(" "));
        QCOMPARE(texts, QStringList({text("This wizard will configure Velmora NVX 2017 for your system."),
                                     text("Change language")}));
    }

    void itOffersTheLanguagesInTheirOrder()
    {
        QStringList offered;
        const QComboBox &box = show(QString());
        for (int i = 0; i < box.count(); ++i)
            offered << box.itemText(i) + text("=") + box.itemData(i).toString();
        QStringList expected;
        for (const Nvx::Util::Language &language : Nvx::Util::languages)
            expected << text(language.name) + text("=") + language.locale;
        QCOMPARE(offered, expected);
    }

    void theRunsLanguageIsSelected_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("selected");
        QTest::newRow("the system's") << QString() << text("English");
        QTest::newRow("of the command line") << text("-Lja-JP") << text("Japanese");
        QTest::newRow("spelled in capitals") << text("-LIT-IT") << text("Italian");
        QTest::newRow("not offered") << text("-Lde") << QString();
        QTest::newRow("none named") << text("-L") << text("Korean");
    }

    void theRunsLanguageIsSelected()
    {
        QFETCH(QString, options);
        System::setLocale(text("ko-KR"));
        QTEST(show(options).currentText(), "selected");
    }

    void theSameLanguageOnlyMovesOn_data() { theRunsLanguageIsSelected_data(); }

    void theSameLanguageOnlyMovesOn()
    {
        QFETCH(QString, options);
        System::setLocale(text("ko-KR"));
        show(options);
        const QStringList before = m_fixture->lines();
        m_fixture->button(QWizard::NextButton).click();
        QCOMPARE(m_fixture->wizard->currentPage()->title(), text("CAD Launchers "));
        QCOMPARE(m_fixture->lines(), before);
    }

    void anotherLanguageEndsTheEventLoop()
    {
        QComboBox &languages = show(QString());
        QTimer::singleShot(0, this, [&] {
            languages.setCurrentText(text("Japanese"));
            m_fixture->button(QWizard::NextButton).click();
        });
        QCOMPARE(QApplication::exec(), 901);
        QCOMPARE(m_fixture->wizard->currentPage()->title(), text("Welcome"));
    }

    void anotherLanguageIsSetUpAtOnce()
    {
        writeFile(m_fixture->installed("ja-JP/VistrelResources.dll"), "Japanese");
        show(text("-Lde-DE")).setCurrentText(text("Japanese"));
        const auto before = m_fixture->lines().size();
        QCOMPARE(m_fixture->wizard->nextId(), -1);
        const RunState &state = m_fixture->engine->state();
        QCOMPARE(state.locale, text("ja-JP"));
        QCOMPARE(state.currentLocale, text("ja-JP"));
        QVERIFY(state.runMode == RunMode::Install);
        QCOMPARE(System::getLocale(), text("ja-JP"));
        QCOMPARE(readFile(m_fixture->installed("VistrelResources.dll")), QByteArray("Japanese"));
        const QStringList lines = m_fixture->lines().mid(before);
        QVERIFY(lines.contains(text("   2 Install Language ja-JP")));
        QCOMPARE(lines.filter(text("ChangeLanguage = ")),
                 QStringList({text("   0 ChangeLanguage = en-US"), text("   0 ChangeLanguage = ja-JP")}));
    }

    void theShortcutIsMadeAnewAroundTheLanguage()
    {
        writeFile(m_fixture->test.path(text("Desktop/Velmora NVX 2017.lnk")), "named in the old language");
        m_fixture->machine.desktop = m_fixture->test.path(text("Desktop"));
        show(QString()).setCurrentText(text("French"));
        const auto before = m_fixture->lines().size();
        m_fixture->wizard->nextId();

        const QStringList lines = m_fixture->lines().mid(before);
        const QString desktop = text("   0 Desktop=") + m_fixture->machine.desktop;
        QCOMPARE(lines.first(), desktop);
        QCOMPARE(lines.at(1), text("   2 Install Language fr-FR"));
        QVERIFY(lines.last().startsWith(text("   0 Create shortcut ")));
        QCOMPARE(lines.at(lines.size() - 2), desktop);
        QVERIFY(!QFile::exists(m_fixture->test.path(text("Desktop/Velmora NVX 2017.lnk"))));
        QCOMPARE(m_fixture->machine.shellLinks.size(), 1);
    }

    void choosingAloneChangesNothing()
    {
        QComboBox &languages = show(QString());
        const QStringList before = m_fixture->lines();
        for (int i = 0; i < languages.count(); ++i)
            languages.setCurrentIndex(i);
        QTest::keyClick(m_fixture->wizard.get(), Qt::Key_Escape); // looks at the page, too
        QCOMPARE(m_fixture->lines(), before);
        QCOMPARE(m_fixture->engine->state().locale, text("en-US"));
    }

private:
    QComboBox &show(const QString &options)
    {
        return *m_fixture->show(options).findChild<QComboBox *>(text("m_languages"));
    }

    std::unique_ptr<WizardFixture> m_fixture;
};

NVX_TEST(tst_welcome_page)
#include "tst_welcome_page.moc"
