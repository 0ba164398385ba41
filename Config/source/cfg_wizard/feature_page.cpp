#include "cfg_wizard/feature_page.h"

#include "cfg_utilities/cfg_utilitys.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>

namespace {

struct BoxPlace
{
    Launcher launcher;
    const char *name;
    const char *text;
    int row;
};

// The rows that no box is in part the boxes into groups.
constexpr BoxPlace boxPlaces[] = {
    {Launcher::Creo, "m_cbCreo", QT_TRANSLATE_NOOP("FeaturePage", "Pro/ENGINEER Creo"), 7},
    {Launcher::SolidWorks, "m_cbSolidworks", QT_TRANSLATE_NOOP("FeaturePage", "SolidWorks"), 8},
    {Launcher::Brevant, "m_cbBrevant", QT_TRANSLATE_NOOP("FeaturePage", "Brevant"), 9},
    {Launcher::Nx, "UGS NX", QT_TRANSLATE_NOOP("FeaturePage", "UGS NX"), 10},
    {Launcher::Tamsel, "Tamsel", QT_TRANSLATE_NOOP("FeaturePage", "Tamsel"), 12},
    {Launcher::TamselArchitecture, "Tamsel ARCH", QT_TRANSLATE_NOOP("FeaturePage", "Tamsel Architecture"),
     13},
    {Launcher::TamselMep, "Tamsel MEP", QT_TRANSLATE_NOOP("FeaturePage", "Tamsel MEP"), 14},
    {Launcher::SpaceClaim, "m_cbSpaceclaim", QT_TRANSLATE_NOOP("FeaturePage", "SpaceClaim"), 16},
};
constexpr int rowsBetweenGroups[] = {11, 15};
constexpr int columnsSpanned = 3;

// As sharp as the densest screen shows it.
QPixmap logo()
{
    const auto resource = QStringLiteral(":/images/logo1.png");
    return QIcon(resource).pixmap(QPixmap(resource).size(), qApp->devicePixelRatio());
}

} // namespace

FeaturePage::FeaturePage(cfg_utilitys &engine, QWidget *parent)
    : QWizardPage(parent)
    , m_engine(engine)
{
    setObjectName(QStringLiteral("FeaturePage"));
    setTitle(tr("CAD Launchers "));
    setSubTitle(QStringLiteral(" "));
    setPixmap(QWizard::LogoPixmap, logo());

    auto *layout = new QGridLayout(this);
    layout->setColumnMinimumWidth(0, 60);
    layout->setColumnStretch(2, 1); // shared by all, so that the description has the whole width

    auto *description =
        new QLabel(tr("NVX launchers will be installed for the CAD systems that are checked."), this);
    description->setObjectName(QStringLiteral("m_description"));
    layout->setRowMinimumHeight(0, std::max(40, 2 * description->sizeHint().height()));
    description->setWordWrap(true);
    layout->addWidget(description, 0, 0, 1, columnsSpanned);

    for (const BoxPlace &place : boxPlaces) {
        auto *box = new QCheckBox(tr(place.text), this);
        box->setObjectName(QString::fromLatin1(place.name));
        layout->addWidget(box, place.row, 1, 1, columnsSpanned);
        m_boxes[static_cast<size_t>(place.launcher)] = box;
    }
    for (const int row : rowsBetweenGroups)
        layout->setRowMinimumHeight(row, fontMetrics().height() / 2);
    layout->setRowStretch(boxPlaces[launcherCount - 1].row + 1, 1);
    m_engine.setLauncherBoxes(this);
}

FeaturePage::~FeaturePage()
{
    m_engine.setLauncherBoxes(nullptr);
}

void FeaturePage::setFound(Launcher launcher, bool found)
{
    box(launcher).setEnabled(found);
    box(launcher).setChecked(found);
}

void FeaturePage::setLabel(Launcher launcher, const QString &label)
{
    box(launcher).setText(label);
}

bool FeaturePage::isTicked(Launcher launcher) const
{
    return box(launcher).isChecked();
}
