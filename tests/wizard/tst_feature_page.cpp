#include "cad/cad_systems.h"
#include "cfg_wizard/feature_page.h"
#include "engine/engine_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QTest>
#include <QWizard>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

namespace {

void addRowsOfTheTable()
{
    QTest::addColumn<int>("launcher");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("gridRow");
    for (const CadSystem &system : cadSystems())
        QTest::newRow(system.label) << static_cast<int>(system.launcher) << QString::fromLatin1(system.label)
                                    << system.gridRow;
}

} // namespace

class tst_feature_page : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        m_page = std::make_unique<FeaturePage>(m_fixture->start(u"-I"_s));
    }
    void cleanup()
    {
        m_page.reset();
        m_fixture.reset();
    }

    void everyCheckBoxIsInItsRow_data() { addRowsOfTheTable(); }

    void everyCheckBoxIsInItsRow()
    {
        QFETCH(QString, label);
        const QGridLayout &grid = layout();
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        QVERIFY(checkBoxWith(label));
        grid.getItemPosition(grid.indexOf(checkBoxWith(label)), &row, &column, &rows, &columns);
        QTEST(row, "gridRow");
        QCOMPARE(rows, 1);
        QCOMPARE(columns, 3);
    }

    void theTabKeyFollowsTheRows()
    {
        const auto checkBoxes = m_page->findChildren<QCheckBox *>();
        QCOMPARE(checkBoxes.size(), static_cast<qsizetype>(cadSystems().size()));
        int previousRow = 0;
        for (QCheckBox *checkBox : checkBoxes) {
            const int row = rowOf(*checkBox);
            QVERIFY2(row > previousRow, qPrintable(checkBox->text()));
            previousRow = row;
        }
    }

    void theGridContainsTheDescriptionAndTheCheckBoxes()
    {
        const QGridLayout &grid = layout();
        QCOMPARE(grid.count(), 1 + static_cast<int>(cadSystems().size()));
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
                 u"NVX launchers will be installed for the CAD systems that are checked."_s);
    }

    void aFoundSystemIsEnabledAndChecked_data() { addRowsOfTheTable(); }

    void aFoundSystemIsEnabledAndChecked()
    {
        QFETCH(int, launcher);
        QFETCH(QString, label);
        const auto which = static_cast<Launcher>(launcher);
        const QCheckBox *checkBox = checkBoxWith(label);
        m_page->setFound(which, true);
        QVERIFY(checkBox->isEnabled() && checkBox->isChecked() && m_page->isChecked(which));
        m_page->setFound(which, false);
        QVERIFY(!checkBox->isEnabled() && !checkBox->isChecked() && !m_page->isChecked(which));
        m_page->setLabel(which, u"with versions 1 2"_s);
        QCOMPARE(checkBox->text(), u"with versions 1 2"_s);
    }

    void aClickUnchecksItsLauncherAndNoOther_data() { addRowsOfTheTable(); }

    void aClickUnchecksItsLauncherAndNoOther()
    {
        QFETCH(int, launcher);
        QFETCH(QString, label);
        for (const CadSystem &system : cadSystems())
            m_page->setFound(system.launcher, true);
        QCheckBox *checkBox = checkBoxWith(label);
        m_page->show();
        QTest::mouseClick(checkBox, Qt::LeftButton, {}, QPoint(5, checkBox->height() / 2));
        for (const CadSystem &system : cadSystems())
            QCOMPARE(m_page->isChecked(system.launcher), system.launcher != static_cast<Launcher>(launcher));
        QTest::keyClick(checkBox, Qt::Key_Space);
        QVERIFY(m_page->isChecked(static_cast<Launcher>(launcher)));
    }

private:
    const QGridLayout &layout() const { return *qobject_cast<QGridLayout *>(m_page->layout()); }

    int rowOf(QCheckBox &checkBox) const
    {
        int row = -1;
        int column = -1;
        int rows = 0;
        int columns = 0;
        layout().getItemPosition(layout().indexOf(&checkBox), &row, &column, &rows, &columns);
        return row;
    }

    QCheckBox *checkBoxWith(const QString &label) const
    {
        const auto checkBoxes = m_page->findChildren<QCheckBox *>();
        for (QCheckBox *checkBox : checkBoxes) {
            if (checkBox->text() == label)
                return checkBox;
        }
        return nullptr;
    }

    std::unique_ptr<EngineFixture> m_fixture;
    std::unique_ptr<FeaturePage> m_page;
};

NVX_TEST(tst_feature_page)
#include "tst_feature_page.moc"
