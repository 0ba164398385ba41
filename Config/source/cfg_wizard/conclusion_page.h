#pragma once

#include "run/progress_view.h"

#include <QTimer>
#include <QWizardPage>

class cfg_utilitys;

namespace Nvx::Wizard {
class ProgressList;
}

/// The last page. One second after it is shown it performs the installation run and lists its progress; the
/// page is complete when the run is. During its lifetime it is the engine's progress view.
class ConclusionPage final : public QWizardPage, public Nvx::Run::ProgressView
{
    Q_OBJECT

public:
    explicit ConclusionPage(cfg_utilitys &engine, QWidget *parent = nullptr);
    ~ConclusionPage() override;

    void initializePage() override;
    void cleanupPage() override;
    bool isComplete() const override;

    void appendRow(const QString &text) override;
    void clear() override;
    void runCompleteChanged() override;

public slots:
    /// Performs the run, unless one is in progress. The run processes events, so the page may be hidden or
    /// deleted when it ends.
    void handleFinalize();

private:
    cfg_utilitys &m_engine;
    Nvx::Wizard::ProgressList *m_progress;
    QTimer m_start{this};
    bool m_running = false;
};
