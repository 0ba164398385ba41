#include "cfg_wizard/conclusion_page.h"

#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_wizard/progress_list.h"

#include <QAbstractButton>
#include <QEventLoopLocker>
#include <QPointer>
#include <QVBoxLayout>
#include <QWizard>

using namespace Qt::Literals::StringLiterals;

ConclusionPage::ConclusionPage(cfg_utilitys &engine, QWidget *parent)
    : QWizardPage(parent)
    , m_engine(engine)
    , m_progress(new Nvx::Wizard::ProgressList(this))
{
    setObjectName(u"ConclusionPage"_s);
    setTitle(tr("Conclusion "));
    setSubTitle(u" "_s);
    m_progress->setObjectName(u"m_progress"_s);
    m_progress->setAccessibleName(tr("Progress"));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_progress);

    m_start.setObjectName(u"m_start"_s);
    m_start.setSingleShot(true);
    m_start.setTimerType(Qt::PreciseTimer); // a coarse one may be early
    m_start.setInterval(1000);
    connect(&m_start, &QTimer::timeout, this, &ConclusionPage::handleFinalize);
    m_engine.setProgressView(this);
}

ConclusionPage::~ConclusionPage()
{
    m_engine.setProgressView(nullptr);
}

void ConclusionPage::initializePage()
{
    if (m_running)
        return; // the page is complete when it ends
    m_engine.clearRunComplete();
    m_start.start();
}

void ConclusionPage::cleanupPage()
{
    m_start.stop();
}

bool ConclusionPage::isComplete() const
{
    return m_engine.state().runComplete;
}

void ConclusionPage::appendRow(const QString &text)
{
    m_progress->appendRow(text);
}

void ConclusionPage::clear()
{
    m_progress->clear();
}

void ConclusionPage::runCompleteChanged()
{
    emit completeChanged();
}

void ConclusionPage::handleFinalize()
{
    if (m_running)
        return;
    m_running = true;
    // The launchers' check boxes are read during the run. Its end enables the button again.
    if (wizard())
        wizard()->button(QWizard::BackButton)->setEnabled(false);

    const QPointer<ConclusionPage> self(this);
    const QEventLoopLocker eventLoop; // closing the window would end the event loop
    m_engine.ProcessInstallation();
    if (self)
        m_running = false;
}
