#pragma once

#include <QLineEdit>

namespace Window {

/// The field for the text that the rows of a table are filtered by. Ctrl+F gives it the focus, Escape clears
/// it.
class FilterField : public QLineEdit
{
    Q_OBJECT

public:
    explicit FilterField(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace Window
