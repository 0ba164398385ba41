#include "message_table_utility/message_preview.h"

#include "message_checks/message_remarks.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace MessageWindow {

namespace {

const QStringList &sampleArguments()
{
    static const QStringList arguments = [] {
        QStringList samples;
        for (int number = 1; number <= 9; ++number)
            samples.append(u"<%1>"_s.arg(number));
        return samples;
    }();
    return arguments;
}

/// The answers that the tag of a question names; OK if it names none.
Clt::Answers answersOf(const QString &tag)
{
    static const QRegularExpression ending(u"\\? ((?:Ok|Yes|No|Abort|Cancel|Discard)"
                                           "(?:, (?:Ok|Yes|No|Abort|Cancel|Discard))*); "_s);
    const QRegularExpressionMatch match = ending.match(tag, tag.lastIndexOf(u'?'));
    return match.hasMatch() ? Clt::textToAnswers(match.capturedView(1)) : Clt::Answers(Clt::Answer::Ok);
}

QStyle::StandardPixmap iconOf(Clt::Severity severity)
{
    switch (severity) {
    case Clt::Severity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case Clt::Severity::Critical:
        return QStyle::SP_MessageBoxCritical;
    case Clt::Severity::Question:
        return QStyle::SP_MessageBoxQuestion;
    case Clt::Severity::Information:
    case Clt::Severity::Status:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

} // namespace

QLabel *plainLabel(const QString &name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

PreviewTexts previewOf(const Clt::Message &message)
{
    Clt::Message filled = message;
    filled.applyArguments(sampleArguments());
    PreviewTexts texts;
    if (Checks::hasTitle(message.severity()))
        texts.title = filled.sourceTitle();
    texts.text = filled.sourceText();
    if (Checks::hasAction(message.severity()))
        texts.action = filled.sourceAction();
    if (message.severity() == Clt::Severity::Question)
        texts.buttons = answersOf(message.key().tag);
    else if (message.severity() != Clt::Severity::Status)
        texts.buttons = Clt::Answer::Ok;
    return texts;
}

MessagePreview::MessagePreview(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel)
    , m_title(plainLabel(u"previewTitle"_s))
    , m_text(plainLabel(u"previewText"_s))
    , m_action(plainLabel(u"previewAction"_s))
    , m_buttons(new QDialogButtonBox)
{
    constexpr int textColumn = 1;
    setObjectName(u"messagePreview"_s);
    setAccessibleName(tr("Preview"));
    setFrameShape(StyledPanel);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_buttons->setObjectName(u"previewButtons"_s);

    auto *layout = new QGridLayout(this);
    layout->addWidget(m_icon, 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(m_title, 0, textColumn);
    layout->addWidget(m_text, 1, textColumn);
    layout->addWidget(m_action, 2, textColumn);
    layout->addWidget(m_buttons, 3, 0, 1, 2);
    layout->setColumnStretch(textColumn, 1);
}

void MessagePreview::showMessage(const Clt::Message &message)
{
    const PreviewTexts texts = previewOf(message);
    const bool isBox = message.severity() != Clt::Severity::Status;
    const int size = style()->pixelMetric(QStyle::PM_LargeIconSize);
    m_icon->setVisible(isBox);
    m_icon->setPixmap(style()->standardIcon(iconOf(message.severity())).pixmap(size));
    const std::array<std::pair<QLabel *, const QString *>, 3> labels{
        {{m_title, &texts.title}, {m_text, &texts.text}, {m_action, &texts.action}}};
    for (const auto &[label, text] : labels) {
        label->setText(*text);
        label->setVisible(!text->isEmpty());
    }
    // The values are the same, so that a product can pass the answers to a message box.
    const auto buttons = QDialogButtonBox::StandardButtons::fromInt(texts.buttons.toInt());
    if (m_buttons->standardButtons() != buttons)
        m_buttons->setStandardButtons(buttons);
    m_buttons->setVisible(isBox);
    const QList<QAbstractButton *> all = m_buttons->buttons();
    for (QAbstractButton *button : all) {
        button->setFocusPolicy(Qt::NoFocus);
        button->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}

} // namespace MessageWindow
