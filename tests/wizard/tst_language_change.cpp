// A change of language while the program runs, with the real translations.

#include "cfg_wizard/feature_page.h"
#include "cfg_wizard/interface_language.h"
#include "cfg_wizard/start_up.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/checkout.h"
#include "support/test_class.h"
#include "support/text.h"
#include "wizard/wizard_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::RegistryKey;
using Nvx::Util::System;
using Nvx::Wizard::runProgram;

namespace {

QString catalogue(const QString &locale, const QString &name)
{
    return inCheckout(NVX_LANGUAGES_FOLDER) + u'/' + locale + u'/' + name;
}

// The texts of a wizard: the titles of its pages, its Next button and the selected language.
QString textsOf(const ClassWizard &wizard)
{
    const auto *languages = wizard.findChild<QComboBox *>(u"m_languages"_s);
    return titlesOf(wizard) + u'|' + wizard.button(QWizard::NextButton)->text() + u'|' +
           languages->currentText();
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
            const QString toolkit = u"qt_%1.qm"_s.arg(text(locale).replace(u'-', u'_'));
            for (const QString &name : {u"nvxconfig.qm"_s, toolkit}) {
                const QString target = m_fixture->test.path(u"NVX/%1/%2"_s.arg(text(locale), name));
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
        QTest::newRow("silent without a mode") << u"-S"_s;
    }

    void aChangeRebuildsThePagesInTheNewLanguage()
    {
        QFETCH(QString, options);
        m_choices = {u"de-DE"_s, u"ja-JP"_s, u"en-US"_s};
        cfg_utilitys &engine = m_fixture->start(options);
        m_poll.start();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_seen, QStringList({u"Welcome|CAD Launchers |Conclusion |&Next >|English"_s,
                                      u"Willkommen|CAD-Startprogramme |Abschluss |&Weiter >|Deutsch"_s,
                                      u"ようこそ|CAD ランチャー |最終ステップ |次へ(&N) >|日本語"_s,
                                      u"Welcome|CAD Launchers |Conclusion |&Next >|English"_s}));
        QCOMPARE(engine.state().locale, u"en-US"_s);
        QVERIFY(!engine.state().runComplete);
    }

    void everyRebuildLooksForRunningProgramsAndCadSystemsAgain()
    {
        RegistryKey nx(u"HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\10.0"_s);
        const auto tidy = qScopeGuard([&] { nx.removeWhole(); });
        m_choices = {u"de-DE"_s, u"ja-JP"_s};
        m_afterChoice = [&] {
            // A CAD system is installed and started during the first wizard, and removed during the second.
            if (m_choices.size() == 1) {
                nx.setText(u"UGII_BASE_DIR"_s, u"C:\\NX 10"_s);
                m_fixture->machine.running.add(u"C:\\CAD\\xtop.exe"_s);
                m_fixture->machine.running.add(u"C:\\NVX 2017\\NVXMonitor.exe"_s);
            } else {
                nx.removeWhole();
            }
        };
        cfg_utilitys &engine = m_fixture->start(QString());
        m_poll.start();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_foundNx, QList<bool>({false, true, false}));
        QCOMPARE(m_questions,
                 QList<qsizetype>({0, 2, 4})); // the recording machine still lists terminated processes
    }

    void thePagesAreInTheLanguageOfTheCommandLine()
    {
        cfg_utilitys &engine = m_fixture->start(u"-Lde-DE"_s);
        m_poll.start();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_seen, QStringList(u"Willkommen|CAD-Startprogramme |Abschluss |&Weiter >|Deutsch"_s));
    }

    void thePagesAreInTheStoredLanguage_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("no locale") << u"-L"_s;
        QTest::newRow("reading abandoned") << u"-Lde-DE -X"_s;
    }

    // The language of the command line applies only after it has been set up.
    void thePagesAreInTheStoredLanguage()
    {
        QFETCH(QString, options);
        System::setLocale(u"ja-JP"_s);
        m_fixture->machine.answer = Nvx::Util::BoxAnswer::No;
        cfg_utilitys &engine = m_fixture->start(options);
        QVERIFY(engine.state().locale != u"ja-JP"_s);
        m_poll.start();
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_seen, QStringList(u"ようこそ|CAD ランチャー |最終ステップ |次へ(&N) >|日本語"_s));
    }

private:
    // In each new wizard, records its texts and then either selects the next language and continues or closes
    // the window.
    void act()
    {
        ClassWizard *wizard = shownWizard();
        if (!wizard)
            return;
        m_seen << textsOf(*wizard);
        const QCheckBox *nx = wizard->findChild<QCheckBox *>(u"UGS NX"_s);
        m_foundNx << (nx->isEnabled() && nx->isChecked());
        m_questions << m_fixture->machine.boxes.size();
        QVERIFY(wizard->currentPage() == wizard->page(wizard->pageIds().first()));
        if (m_choices.isEmpty()) {
            wizard->close();
            return;
        }
        auto *languages = wizard->findChild<QComboBox *>(u"m_languages"_s);
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
