#include "cfg_wizard/feature_page.h"

#include "cad/cad_systems.h"
#include "cfg_utilities/cfg_utilitys.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>

#include <algorithm>
#include <vector>

using Nvx::Cad::CadSystem;
using Nvx::Cad::Launcher;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int columnsSpanned = 3;

std::vector<CadSystem> systemsInOrderOfRows()
{
    const std::span<const CadSystem> all = Nvx::Cad::cadSystems();
    std::vector<CadSystem> systems(all.begin(), all.end());
    std::sort(systems.begin(), systems.end(),
              [](const CadSystem &a, const CadSystem &b) { return a.gridRow < b.gridRow; });
    return systems;
}

// At the resolution of the densest screen.
QPixmap logo()
{
    const QString resource = u":/images/logo1.png"_s;
    return QIcon(resource).pixmap(QPixmap(resource).size(), qApp->devicePixelRatio());
}

} // namespace

FeaturePage::FeaturePage(cfg_utilitys &engine, QWidget *parent)
    : QWizardPage(parent)
    , m_engine(engine)
{
    setObjectName(u"FeaturePage"_s);
    setTitle(tr("CAD Launchers "));
    setSubTitle(u" "_s);
    setPixmap(QWizard::LogoPixmap, logo());

    auto *layout = new QGridLayout(this);
    layout->setColumnMinimumWidth(0, 60);
    layout->setColumnStretch(2, 1); // spanned by every widget, so the description has the full width
    addDescription(*layout);
    addCheckBoxes(*layout);
    m_engine.setLauncherCheckBoxes(this);
}

FeaturePage::~FeaturePage()
{
    m_engine.setLauncherCheckBoxes(nullptr);
}

void FeaturePage::addDescription(QGridLayout &layout)
{
    auto *description =
        new QLabel(tr("NVX launchers will be installed for the CAD systems that are checked."), this);
    description->setObjectName(u"m_description"_s);
    layout.setRowMinimumHeight(0, std::max(40, 2 * description->sizeHint().height()));
    description->setWordWrap(true);
    layout.addWidget(description, 0, 0, 1, columnsSpanned);
}

void FeaturePage::addCheckBoxes(QGridLayout &layout)
{
    const std::vector<CadSystem> systems = systemsInOrderOfRows();
    int nextRow = systems.front().gridRow;
    for (const CadSystem &system : systems) {
        for (; nextRow < system.gridRow; ++nextRow)
            layout.setRowMinimumHeight(nextRow, fontMetrics().height() / 2); // between two groups
        auto *checkBox = new QCheckBox(tr(system.label), this);
        checkBox->setObjectName(system.objectName);
        layout.addWidget(checkBox, system.gridRow, 1, 1, columnsSpanned);
        m_checkBoxes.insert(system.launcher, checkBox);
        ++nextRow;
    }
    layout.setRowStretch(nextRow, 1);
}

void FeaturePage::setFound(Launcher launcher, bool found)
{
    m_checkBoxes.value(launcher)->setEnabled(found);
    m_checkBoxes.value(launcher)->setChecked(found);
}

void FeaturePage::setLabel(Launcher launcher, const QString &label)
{
    m_checkBoxes.value(launcher)->setText(label);
}

bool FeaturePage::isChecked(Launcher launcher) const
{
    return m_checkBoxes.value(launcher)->isChecked();
}
