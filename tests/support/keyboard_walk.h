#pragma once

#include <QAccessible>
#include <QApplication>
#include <QList>
#include <QStringList>
#include <QTest>
#include <QWidget>

// What somebody who uses the keyboard or a screen reader finds in a window.

/// The visible parts of a window, without its own windows, that take the focus as stated.
inline QList<QWidget *> controlsOf(const QWidget &window, Qt::FocusPolicy policy)
{
    QList<QWidget *> controls;
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->window() == &window && widget->isVisible() && widget->isEnabled() &&
            (widget->focusPolicy() & policy) != 0)
            controls.append(widget);
    }
    return controls;
}

/// The object name and class, for a failed test.
inline QString shownName(const QWidget &control)
{
    return control.objectName() + QLatin1Char(' ') + QString::fromLatin1(control.metaObject()->className());
}

/// Those that a screen reader cannot name; empty if there are none.
inline QString namelessControls(const QWidget &window)
{
    QStringList nameless;
    const QList<QWidget *> controls = controlsOf(window, Qt::StrongFocus);
    for (QWidget *control : controls) {
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
        if (!accessible || accessible->text(QAccessible::Name).isEmpty())
            nameless.append(shownName(*control));
    }
    return nameless.join(QLatin1String(", "));
}

/// The controls in the order in which the Tab key reaches them from the one that has the focus.
inline QList<QWidget *> tabOrder()
{
    constexpr int maximum = 60;
    QList<QWidget *> reached;
    for (QWidget *control = QApplication::focusWidget();
         control && !reached.contains(control) && reached.size() < maximum;
         control = QApplication::focusWidget()) {
        reached.append(control);
        QTest::keyClick(control, Qt::Key_Tab);
    }
    return reached;
}

/// Those that the Tab key does not reach; empty if there are none.
inline QString unreachableControls(const QWidget &window)
{
    const QList<QWidget *> reached = tabOrder();
    QStringList unreachable;
    const QList<QWidget *> controls = controlsOf(window, Qt::TabFocus);
    for (const QWidget *control : controls) {
        if (!reached.contains(control))
            unreachable.append(shownName(*control));
    }
    return unreachable.join(QLatin1String(", "));
}
