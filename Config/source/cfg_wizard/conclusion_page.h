#pragma once

#include "run/progress_view.h"

#include <QTimer>
#include <QWizardPage>

class cfg_utilitys;
class ProgressList;

/// The last page. One second after it is shown it performs the installation run, whose progress it lists;
/// when the run is complete, so is the page. While it lives, it is the engine's progress view.
class ConclusionPage final : public QWizardPage, public ProgressView
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
    /// Performs the run, unless one is under way. The run processes events: when it is over, the page may be
    /// hidden or gone.
    void handleFinalize();

private:
    cfg_utilitys &m_engine;
    ProgressList *m_progress;
    QTimer m_start{this};
    bool m_running = false;
};
