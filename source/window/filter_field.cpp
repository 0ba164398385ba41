#include "window/filter_field.h"

#include <QKeyEvent>
#include <QShortcut>

using namespace Qt::Literals::StringLiterals;

namespace Window {

FilterField::FilterField(QWidget *parent)
    : QLineEdit(parent)
{
    constexpr int widthInCharacters = 28;
    setObjectName(u"filterField"_s);
    setPlaceholderText(tr("Filter (Ctrl+F)"));
    setToolTip(tr("Shows only the rows that contain this text"));
    setAccessibleName(tr("Filter"));
    setClearButtonEnabled(true);
    setMaximumWidth(widthInCharacters * fontMetrics().averageCharWidth());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto *shortcut = new QShortcut(QKeySequence::Find, this);
    connect(shortcut, &QShortcut::activated, this, [this] {
        setFocus(Qt::ShortcutFocusReason);
        selectAll();
    });
}

void FilterField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace Window
