// The pages in the languages that are shipped: a change of language while the program runs, and whether every
// text has its room.

#include "cfg_wizard/feature_page.h"
#include "cfg_wizard/interface_translators.h"
#include "cfg_wizard/start_up.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/text.h"
#include "wizard/wizard_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

#include <functional>

using Nvx::Util::RegistryKey;
using Nvx::Util::System;

namespace {

QString catalogue(const QString &locale, const QString &name)
{
    return text(NVX_LANGUAGES_FOLDER) + QLatin1Char('/') + locale + QLatin1Char('/') + name;
}

ClassWizard *shownWizard()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *wizard = qobject_cast<ClassWizard *>(window);
        if (wizard && wizard->isVisible())
            return wizard;
    }
    return nullptr;
}

// What the pages of a wizard say: the titles, the button that leads on, and the selected language.
QString textsOf(const ClassWizard &wizard)
{
    const auto *languages = wizard.findChild<QComboBox *>(text("m_languages"));
    return titlesOf(wizard) + QLatin1Char('|') + wizard.button(QWizard::NextButton)->text() +
           QLatin1Char('|') + languages->currentText();
}

} // namespace

class tst_language_change : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_poll.setInterval(20);
        connect(&m_poll, &QTimer::timeout, this, &tst_language_change::act);
    }

    void init()
    {
        m_fixture = std::make_unique<WizardFixture>();
        for (const char *locale : {"de-DE", "ja-JP"}) {
            QVERIFY(QDir().mkpath(m_fixture->installed(locale)));
            const QString toolkit =
                text("qt_%1.qm").arg(text(locale).replace(QLatin1Char('-'), QLatin1Char('_')));
            for (const QString &name : {text("nvxconfig.qm"), toolkit}) {
                const QString target = m_fixture->test.path(text("NVX/%1/%2").arg(text(locale), name));
                QVERIFY(QFile::copy(catalogue(text(locale), name), target));
            }
        }
        m_choices.clear();
        m_seen.clear();
        m_foundNx.clear();
        m_questions.clear();
        m_afterChoice = nullptr;
    }

    void cleanup()
    {
        m_poll.stop();
        m_fixture.reset();
    }

    void aChangeRebuildsThePagesInTheNewLanguage_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("no mode") << QString();
        QTest::newRow("silent without a mode") << text("-S");
    }

    void aChangeRebuildsThePagesInTheNewLanguage()
    {
        QFETCH(QString, options);
        m_choices = {text("de-DE"), text("ja-JP"), text("en-US")};
        cfg_utilitys &engine = m_fixture->start(options);
        m_poll.start();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_seen, QStringList({text("Welcome|CAD Launchers |Conclusion |&Next >|English"),
                                      text("Willkommen|CAD-Startprogramme |Abschluss |&Weiter >|Deutsch"),
                                      text("ようこそ|CAD ランチャー |最終ステップ |次へ(&N) >|日本語"),
                                      text("Welcome|CAD Launchers |Conclusion |&Next >|English")}));
        QCOMPARE(engine.state().locale, text("en-US"));
        QVERIFY(!engine.state().runComplete);
    }

    void everyRebuildLooksForRunningProgramsAndCadSystemsAgain()
    {
        RegistryKey nx(text("HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\10.0"));
        const auto tidy = qScopeGuard([&] { nx.removeWhole(); });
        m_choices = {text("de-DE"), text("ja-JP")};
        m_afterChoice = [&] {
            // A CAD system is installed and started during the first wizard, and removed during the second.
            if (m_choices.size() == 1) {
                nx.setText(text("UGII_BASE_DIR"), text("C:\\NX 10"));
                m_fixture->machine.running.add(text("C:\\CAD\\xtop.exe"));
                m_fixture->machine.running.add(text("C:\\NVX 2017\\NVXMonitor.exe"));
            } else {
                nx.removeWhole();
            }
        };
        cfg_utilitys &engine = m_fixture->start(QString());
        m_poll.start();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_foundNx, QList<bool>({false, true, false}));
        QCOMPARE(m_questions, QList<qsizetype>({0, 2, 4})); // what was ended is still listed on this machine
    }

    void theLanguageOfTheCommandLineIsThatOfThePages()
    {
        cfg_utilitys &engine = m_fixture->start(text("-Lde-DE"));
        m_poll.start();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_seen, QStringList(text("Willkommen|CAD-Startprogramme |Abschluss |&Weiter >|Deutsch")));
    }

    void thePagesAreInTheRememberedLanguage_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("none named") << text("-L");
        QTest::newRow("reading abandoned") << text("-Lde-DE -X");
    }

    // The run's own language counts only once it has been set up.
    void thePagesAreInTheRememberedLanguage()
    {
        QFETCH(QString, options);
        System::setLocale(text("ja-JP"));
        m_fixture->machine.answer = Nvx::Util::Answer::No;
        cfg_utilitys &engine = m_fixture->start(options);
        QVERIFY(engine.state().locale != text("ja-JP"));
        m_poll.start();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_seen, QStringList(text("ようこそ|CAD ランチャー |最終ステップ |次へ(&N) >|日本語")));
    }

private:
    // On each new wizard: notes its texts, then chooses the next language and goes on, or closes the window.
    void act()
    {
        ClassWizard *wizard = shownWizard();
        if (!wizard)
            return;
        m_seen << textsOf(*wizard);
        const QCheckBox *nx = wizard->findChild<QCheckBox *>(text("UGS NX"));
        m_foundNx << (nx->isEnabled() && nx->isChecked());
        m_questions << m_fixture->machine.boxes.size();
        QVERIFY(wizard->currentPage() == wizard->page(wizard->pageIds().first()));
        if (m_choices.isEmpty()) {
            wizard->close();
            return;
        }
        auto *languages = wizard->findChild<QComboBox *>(text("m_languages"));
        languages->setCurrentIndex(languages->findData(m_choices.takeFirst()));
        if (m_afterChoice)
            m_afterChoice();
        wizard->button(QWizard::NextButton)->click();
    }

    QTimer m_poll;
    QStringList m_choices;
    QStringList m_seen;
    QList<bool> m_foundNx;
    QList<qsizetype> m_questions;
    std::function<void()> m_afterChoice;
    std::unique_ptr<WizardFixture> m_fixture;
};

NVX_TEST(tst_language_change)
#include "tst_language_change.moc"
