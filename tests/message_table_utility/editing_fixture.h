#pragma once

#include "utility_fixture.h"

#include <QComboBox>
#include <QPlainTextEdit>

/// The window with its table open and on the screen; the new message "Alpha" is selected.
struct EditingFixture : UtilityFixture
{
    EditingFixture()
    {
        if (!window.openFile(tableFile))
            qFatal("cannot open the table");
        window.show();
        activate();
        select(1);
        view()->setFocus();
    }

    /// As it is after a progress dialog.
    void activate()
    {
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window is not active");
    }

    QPlainTextEdit *field(const char *name) { return child<QPlainTextEdit>(name); }
    QString label(const char *name) { return child<QLabel>(name)->text(); }
    bool isShown(const char *name) { return child<QWidget>(name)->isVisible(); }
    Clt::Message alpha() { return window.messages().message(messageOf("client", "B::run", "Alpha").key()); }

    /// Selects only that row, whatever keys the test has pressed.
    void select(int row)
    {
        view()->selectionModel()->setCurrentIndex(
            view()->model()->index(row, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    void choose(const char *name, const QString &text)
    {
        auto *choice = child<QComboBox>(name);
        choice->setCurrentText(text);
        emit choice->activated(choice->currentIndex());
    }

    /// Presses a key where the focus is.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    /// Chooses an action of the File menu with the keyboard.
    void chooseInFileMenu(const char *name)
    {
        const auto *menu = child<QMenu>("menuFile");
        press(Qt::Key_F, Qt::AltModifier);
        if (!QTest::qWaitFor([menu] { return menu->isVisible(); }))
            qFatal("Alt+F does not open the menu");
        const auto entries = menu->actions().size();
        for (qsizetype entry = 0; entry < entries && menu->activeAction() != action(name); ++entry)
            QTest::keyClick(child<QMenu>("menuFile"), Qt::Key_Down);
        QTest::keyClick(child<QMenu>("menuFile"), Qt::Key_Return);
        if (window.isVisible())
            activate();
    }

    static void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }
};
