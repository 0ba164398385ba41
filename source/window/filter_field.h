#pragma once

#include <QLineEdit>

namespace Window {

/// A field into which one types what the rows of a table should hold. Ctrl+F goes there, Escape empties it.
class FilterField : public QLineEdit
{
    Q_OBJECT

public:
    explicit FilterField(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace Window
