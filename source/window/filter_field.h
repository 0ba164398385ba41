#pragma once

#include <QLineEdit>

class QToolBar;

namespace Window {

/// A field into which one types what the rows of a table should hold. Ctrl+F goes there, Escape empties it.
class FilterField : public QLineEdit
{
    Q_OBJECT

public:
    explicit FilterField(QWidget *parent = nullptr);

    /// Makes a field at the right end of a tool bar; what is added to the tool bar later stands behind it.
    static FilterField *atEndOf(QToolBar &toolBar);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace Window
