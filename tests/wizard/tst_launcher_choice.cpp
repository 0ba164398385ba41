// From the CAD systems of a machine through the check boxes of the page to the steps of the run.

#include "cfg_wizard/start_up.h"
#include "nvx_util/registry_key.h"
#include "support/test_class.h"
#include "wizard/wizard_fixture.h"

#include <QCheckBox>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::RegistryKey;
using Nvx::Wizard::runProgram;

namespace {

RegistryKey spaceClaim()
{
    return RegistryKey(u"HKEY_LOCAL_MACHINE\\Software\\Classes\\SpaceClaim.Location"_s);
}

} // namespace

class tst_launcher_choice : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<WizardFixture>();
        QVERIFY(spaceClaim().setText(u"Version"_s, u"2016"_s));
    }

    void cleanup()
    {
        spaceClaim().removeWhole();
        m_fixture.reset();
    }

    void aCheckedBoxInstallsItsLauncher_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<bool>("unticks");
        QTest::addColumn<bool>("configured");
        QTest::newRow("left checked") << u"-I"_s << false << true;
        QTest::newRow("unchecked") << u"-I"_s << true << false;
        QTest::newRow("no mode, unchecked") << QString() << true << false;
    }

    void aCheckedBoxInstallsItsLauncher()
    {
        QFETCH(QString, options);
        QFETCH(bool, unticks);
        cfg_utilitys &engine = start(options);
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&] { act(unticks); });
        poll.start(50);
        QCOMPARE(runProgram(engine), 0);
        QCOMPARE(m_boxes, QStringList({u"SpaceClaim "_s}));
        QTEST(m_fixture->lines().contains(u"   0 SpaceClaim"_s), "configured");
    }

    void anUninstallRemovesTheLaunchersOfAllSystemsFound()
    {
        cfg_utilitys &engine = start(u"-U"_s);
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&] { act(false); });
        poll.start(50);
        QCOMPARE(runProgram(engine), 0);
        QVERIFY(m_fixture->lines().contains(u"   0 SpaceClaim"_s));
    }

private:
    cfg_utilitys &start(const QString &options) const
    {
        cfg_utilitys &engine = m_fixture->start(options);
        Nvx::Cad::SharedFolders folders;
        folders.spaceClaimAddin = m_fixture->test.path(u"Addins"_s);
        engine.setSharedFolders(folders);
        return engine;
    }

    // Goes through the pages, records which check boxes are enabled and checked, and unchecks them if asked
    // to.
    void act(bool unticks)
    {
        const ClassWizard *wizard = shownWizard();
        if (!wizard)
            return;
        const auto boxes = wizard->currentPage()->findChildren<QCheckBox *>();
        if (!boxes.isEmpty())
            m_boxes.clear();
        for (QCheckBox *box : boxes) {
            if (!box->isEnabled() && !box->isChecked())
                continue;
            m_boxes << box->text();
            if (unticks)
                box->click();
        }
        for (const auto which : {QWizard::NextButton, QWizard::FinishButton}) {
            if (wizard->button(which)->isVisible() && wizard->button(which)->isEnabled())
                wizard->button(which)->click();
        }
    }

    QStringList m_boxes;
    std::unique_ptr<WizardFixture> m_fixture;
};

NVX_TEST(tst_launcher_choice)
#include "tst_launcher_choice.moc"
