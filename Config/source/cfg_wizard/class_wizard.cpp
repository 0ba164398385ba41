#include "cfg_wizard/class_wizard.h"

#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_wizard/conclusion_page.h"
#include "cfg_wizard/feature_page.h"
#include "cfg_wizard/welcome_page.h"
#include "help/context_help.h"
#include "nvx_util/product.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPixmap>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using Page = Nvx::Wizard::WizardPlan::Page;

namespace {

// The pages' header is as high as its picture, so large text needs a higher one.
QPixmap bannerFor(const QFontMetrics &text)
{
    QPixmap banner(u":/image/banner.png"_s);
    const int wanted = 3 * text.lineSpacing() + 16;
    if (banner.height() >= wanted)
        return banner;
    return banner.scaled(banner.width(), wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

ClassWizard::ClassWizard(cfg_utilitys &engine, const QList<Page> &pages)
    : m_engine(engine)
{
    setObjectName(u"ClassWizard"_s);
    Nvx::Help::removeTitleBarHelpButton(*this);
    for (const Page page : pages)
        setPage(static_cast<int>(page), makePage(page));
    setLook();
    equalisePageHeights();
}

QWizardPage *ClassWizard::makePage(Page page)
{
    switch (page) {
    case Page::Welcome:
        return new WelcomePage(m_engine, static_cast<int>(Page::Feature), this);
    case Page::Feature:
        return new FeaturePage(m_engine, this);
    case Page::Conclusion:
        break;
    }
    return new ConclusionPage(m_engine, this);
}

void ClassWizard::setLook()
{
    setPixmap(QWizard::BannerPixmap, bannerFor(fontMetrics()));
    setWindowTitle(tr("%1 %2 Configuration Wizard").arg(Nvx::Product::name, Nvx::Product::release));
    setWizardStyle(QWizard::ModernStyle);
    setOption(QWizard::HaveHelpButton, false);
    setOption(QWizard::NoCancelButton, true);
}

// The window has the same height on every page.
void ClassWizard::equalisePageHeights()
{
    int tallest = 0;
    const QList<int> ids = pageIds();
    for (const int id : ids)
        tallest = std::max(tallest, page(id)->sizeHint().height());
    for (const int id : ids)
        page(id)->setMinimumHeight(tallest);
}

void ClassWizard::accept()
{
    m_engine.log(LogLevel::step, tr("Program exiting"));
    QWizard::accept();
}

// Escape would close the window during a run, which would continue without it.
void ClassWizard::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel) && currentId() == static_cast<int>(Page::Conclusion) &&
        !currentPage()->isComplete())
        return;
    QWizard::keyPressEvent(event);
}
