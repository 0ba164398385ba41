#pragma once

#include "window/dialogs.h"

#include <QList>
#include <QString>

#include <functional>

/// Dialogs that are not shown: they record all requests and return what the test sets.
class RecordingDialogs : public Window::Dialogs
{
public:
    struct Box
    {
        QString title;
        QString text;
    };

    // What they return; an empty file name stands for a cancelled dialog.
    QString fileToChoose;
    Window::UnsavedChoice choice = Window::UnsavedChoice::Cancel;
    bool isConfirmed = false;

    // Called while a warning is shown.
    std::function<void()> whileWarning;

    // The requests.
    QList<Window::FileQuestion> openQuestions;
    QList<Window::FileQuestion> saveQuestions;
    QList<Box> warnings;
    QList<Box> notices;
    QList<Box> unsavedQuestions;
    QList<Box> confirmations;

    QString fileToOpen(QWidget *, const Window::FileQuestion &question) override
    {
        openQuestions.append(question);
        return fileToChoose;
    }

    QString fileToSave(QWidget *, const Window::FileQuestion &question) override
    {
        saveQuestions.append(question);
        return fileToChoose;
    }

    void warn(QWidget *, const QString &title, const QString &text) override
    {
        warnings.append({title, text});
        if (whileWarning)
            whileWarning();
    }

    void inform(QWidget *, const QString &title, const QString &text) override
    {
        notices.append({title, text});
    }

    Window::UnsavedChoice askAboutUnsaved(QWidget *, const QString &title, const QString &text) override
    {
        unsavedQuestions.append({title, text});
        return choice;
    }

    bool confirm(QWidget *, const QString &title, const QString &question) override
    {
        confirmations.append({title, question});
        return isConfirmed;
    }
};
