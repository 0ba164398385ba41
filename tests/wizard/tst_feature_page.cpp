#include "cfg_wizard/feature_page.h"
#include "engine/engine_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QTest>
#include <QWizard>

namespace {

void addBoxRows()
{
    QTest::addColumn<int>("launcher");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("gridRow");
    const auto row = [](Launcher launcher, const char *label, int gridRow) {
        QTest::newRow(label) << int(launcher) << text(label) << gridRow;
    };
    row(Launcher::Creo, "Pro/ENGINEER Creo", 7);
    row(Launcher::SolidWorks, "SolidWorks", 8);
    row(Launcher::Brevant, "Brevant", 9);
    row(Launcher::Nx, "UGS NX", 10);
    row(Launcher::Tamsel, "Tamsel", 12);
    row(Launcher::TamselArchitecture, "Tamsel Architecture", 13);
    row(Launcher::TamselMep, "Tamsel MEP", 14);
    row(Launcher::SpaceClaim, "SpaceClaim", 16);
}

} // namespace

class tst_feature_page : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        m_page = std::make_unique<FeaturePage>(m_fixture->start(text("-I")));
    }
    void cleanup()
    {
        m_page.reset();
        m_fixture.reset();
    }

    void everyBoxLiesInItsRow_data() { addBoxRows(); }

    void everyBoxLiesInItsRow()
    {
        QFETCH(QString, label);
        const QGridLayout &grid = layout();
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        QVERIFY(boxWith(label));
        grid.getItemPosition(grid.indexOf(boxWith(label)), &row, &column, &rows, &columns);
        QTEST(row, "gridRow");
        QCOMPARE(rows, 1);
        QCOMPARE(columns, 3);
    }

    void theGridHoldsTheDescriptionAndEightBoxes()
    {
        const QGridLayout &grid = layout();
        QCOMPARE(grid.count(), 9);
        QCOMPARE(grid.columnMinimumWidth(0), 60);
        QCOMPARE(grid.rowMinimumHeight(0), 40);
        const auto *description = qobject_cast<QLabel *>(grid.itemAtPosition(0, 0)->widget());
        QVERIFY(description);
        int row = -1;
        int column = -1;
        int rows = 0;
        int columns = 0;
        grid.getItemPosition(grid.indexOf(description), &row, &column, &rows, &columns);
        QCOMPARE(QList<int>({row, column, rows, columns}), QList<int>({0, 0, 1, 3}));
        QCOMPARE(description->text(),
                 text("NVX launchers will be installed for the CAD systems that are checked."));
    }

    void whatWasFoundIsEnabledAndTicked_data() { addBoxRows(); }

    void whatWasFoundIsEnabledAndTicked()
    {
        QFETCH(int, launcher);
        QFETCH(QString, label);
        const auto which = static_cast<Launcher>(launcher);
        const QCheckBox *box = boxWith(label);
        m_page->setFound(which, true);
        QVERIFY(box->isEnabled() && box->isChecked() && m_page->isTicked(which));
        m_page->setFound(which, false);
        QVERIFY(!box->isEnabled() && !box->isChecked() && !m_page->isTicked(which));
        m_page->setLabel(which, text("with versions 1 2"));
        QCOMPARE(box->text(), text("with versions 1 2"));
    }

    void aTickReachesItsLauncherAndNoOther_data() { addBoxRows(); }

    void aTickReachesItsLauncherAndNoOther()
    {
        QFETCH(int, launcher);
        QFETCH(QString, label);
        for (int i = 0; i < launcherCount; ++i)
            m_page->setFound(static_cast<Launcher>(i), true);
        QCheckBox *box = boxWith(label);
        m_page->show();
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(5, box->height() / 2));
        for (int i = 0; i < launcherCount; ++i)
            QCOMPARE(m_page->isTicked(static_cast<Launcher>(i)), i != launcher);
        QTest::keyClick(box, Qt::Key_Space);
        QVERIFY(m_page->isTicked(static_cast<Launcher>(launcher)));
    }

private:
    const QGridLayout &layout() const { return *qobject_cast<QGridLayout *>(m_page->layout()); }

    QCheckBox *boxWith(const QString &label) const
    {
        const auto boxes = m_page->findChildren<QCheckBox *>();
        for (QCheckBox *box : boxes) {
            if (box->text() == label)
                return box;
        }
        return nullptr;
    }

    std::unique_ptr<EngineFixture> m_fixture;
    std::unique_ptr<FeaturePage> m_page;
};

NVX_TEST(tst_feature_page)
#include "tst_feature_page.moc"
