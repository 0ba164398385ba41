#pragma once

#include "clt_message.h"

#include <QFrame>

class QDialogButtonBox;
class QLabel;

namespace MessageWindow {

/// What the user of the product sees of a message, with sample arguments.
struct PreviewTexts
{
    QString title; ///< empty if the severity has none
    QString text;
    QString action; ///< empty if the severity has none
    Clt::Answers buttons;
};

/// The texts of a message as the user sees them: its places are filled with "<1>" to "<9>". A question offers
/// the answers that the end of its tag names ("Save? Yes, No; Yes"), any other message that is shown in a box
/// OK, a status no button.
PreviewTexts previewOf(const Clt::Message &message);

/// A label for a text that is not ours: plain, in as many lines as it needs.
QLabel *plainLabel(const QString &name);

/// Shows a message as the product does: in a message box, or a status as a line.
class MessagePreview : public QFrame
{
    Q_OBJECT

public:
    explicit MessagePreview(QWidget *parent = nullptr);

    void showMessage(const Clt::Message &message);

private:
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_text;
    QLabel *m_action;
    QDialogButtonBox *m_buttons;
};

} // namespace MessageWindow
