#pragma once

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

/// The visible progress dialog; null if there is none.
inline QProgressDialog *shownProgress()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *dialog = qobject_cast<QProgressDialog *>(widget);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

/// Calls the function repeatedly in the event loop until it returns true.
template<typename Try>
class UntilTrue : public QObject
{
public:
    explicit UntilTrue(Try attempt)
        : m_attempt(attempt)
    {
        m_timer.start(1);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            if (m_attempt())
                m_timer.stop();
        });
    }

    bool isDone() const { return !m_timer.isActive(); }

private:
    Try m_attempt;
    QTimer m_timer;
};

/// Clicks the button of the progress dialog as soon as it is visible; stores its title and its label.
class ProgressCanceller : public QObject
{
public:
    ProgressCanceller()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            if (const QProgressDialog *progress = shownProgress()) {
                m_timer.stop();
                title = progress->windowTitle();
                label = progress->labelText();
                progress->findChild<QPushButton *>()->click();
            }
        });
        m_timer.start(1);
    }

    QString title;
    QString label;

private:
    QTimer m_timer;
};
