#include "message_table_utility/message_panel.h"

#include "message_checks/message_remarks.h"
#include "message_table_utility/message_preview.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

using Clt::MessageState;
using Clt::Severity;

namespace MessageWindow {

namespace {

constexpr Severity severities[] = {Severity::Information, Severity::Warning, Severity::Critical,
                                   Severity::Status, Severity::Question};
constexpr MessageState states[] = {MessageState::InSync, MessageState::New, MessageState::Obsolete};

// Severities and states are words of the file format, so they are not translated, as in the table.
QStringList severityTexts()
{
    QStringList texts;
    for (const Severity severity : severities)
        texts.append(Clt::severityToText(severity));
    return texts;
}

QStringList stateTexts()
{
    QStringList texts;
    for (const MessageState state : states)
        texts.append(Clt::stateToText(state));
    return texts;
}

/// True if the message's file has the field, or its text would be lost.
bool isNeeded(const Clt::Message &message, Field field)
{
    switch (field) {
    case Field::Title:
        return Checks::hasTitle(message.severity()) || !message.sourceTitle().isEmpty();
    case Field::Action:
        return Checks::hasAction(message.severity()) || !message.sourceAction().isEmpty();
    case Field::Text:
        break;
    }
    return true;
}

} // namespace

MessagePanel::MessagePanel(QWidget *parent)
    : QWidget(parent)
    , m_form(new QGridLayout)
    , m_selection(plainLabel(u"selectionLabel"_s))
    , m_remarks(plainLabel(u"remarksLabel"_s))
    , m_preview(new MessagePreview)
{
    m_form->setColumnStretch(1, 1);
    auto *contents = new QWidget;
    auto *layout = new QVBoxLayout(contents);
    layout->addWidget(m_selection);
    layout->addLayout(m_form);
    addKeyLabel(u"processLabel"_s, tr("Process"));
    addKeyLabel(u"contextLabel"_s, tr("Context"));
    addKeyLabel(u"tagLabel"_s, tr("Tag"));
    m_severity = addChoice(u"severityChoice"_s, tr("Severity"), severityTexts());
    m_state = addChoice(u"stateChoice"_s, tr("State"), stateTexts());
    addField(Field::Title, u"titleField"_s, tr("Title"));
    addField(Field::Text, u"textField"_s, tr("Text"));
    addField(Field::Action, u"actionField"_s, tr("Action"));
    m_remarks->setAccessibleName(tr("Remarks"));
    layout->addWidget(m_remarks);
    layout->addWidget(m_preview);
    layout->addStretch(1);

    constexpr int widthInCharacters = 32;
    // A small screen must not force the window to be higher than itself.
    auto *scrolling = new QScrollArea;
    scrolling->setWidget(contents);
    scrolling->setWidgetResizable(true);
    scrolling->setFrameShape(QFrame::NoFrame);
    scrolling->setFocusPolicy(Qt::NoFocus);
    scrolling->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumWidth(widthInCharacters * fontMetrics().averageCharWidth());
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(scrolling);

    connect(m_severity, &QComboBox::activated, this,
            [this](int index) { emit severityChosen(severities[index]); });
    connect(m_state, &QComboBox::activated, this, [this](int index) { emit stateChosen(states[index]); });
    showNothing();
}

void MessagePanel::addRow(const QString &label, QWidget &value)
{
    const int row = m_form->rowCount();
    auto *rowLabel = new QLabel(label);
    rowLabel->setBuddy(&value);
    m_form->addWidget(rowLabel, row, 0, Qt::AlignTop);
    m_form->addWidget(&value, row, 1);
    m_labels[&value] = rowLabel;
}

void MessagePanel::setRowVisible(QWidget &value, bool isVisible)
{
    value.setVisible(isVisible);
    m_labels[&value]->setVisible(isVisible);
}

QLabel *MessagePanel::addKeyLabel(const QString &name, const QString &label)
{
    QLabel *value = plainLabel(name);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setAccessibleName(label);
    addRow(label, *value);
    m_keyLabels[name] = value;
    return value;
}

QComboBox *MessagePanel::addChoice(const QString &name, const QString &label, const QStringList &texts)
{
    auto *choice = new QComboBox;
    choice->setObjectName(name);
    choice->setAccessibleName(label);
    choice->addItems(texts);
    choice->installEventFilter(this);
    addRow(label, *choice);
    return choice;
}

void MessagePanel::addField(Field field, const QString &name, const QString &label)
{
    constexpr int titleLines = 2;
    constexpr int textLines = 4;
    auto *edit = new QPlainTextEdit;
    edit->setObjectName(name);
    edit->setAccessibleName(label);
    edit->setTabChangesFocus(true);
    // The window undoes across fields and messages.
    edit->setUndoRedoEnabled(false);
    const int lines = field == Field::Title ? titleLines : textLines;
    edit->setFixedHeight(lines * edit->fontMetrics().lineSpacing() + 2 * edit->frameWidth() +
                         static_cast<int>(2 * edit->document()->documentMargin()));
    edit->installEventFilter(this);
    addRow(label, *edit);
    m_fields[field] = edit;
    connect(edit, &QPlainTextEdit::textChanged, this, [this, field, edit] {
        if (!m_isShowing)
            emit typed(field, edit->toPlainText());
    });
}

void MessagePanel::setEditable(bool isOne, bool isAny)
{
    for (const auto &[value, label] : m_labels) {
        const bool isChoice = value == m_severity || value == m_state;
        setRowVisible(*value, isOne || (isAny && isChoice));
    }
    m_selection->setVisible(!isOne);
    m_remarks->setVisible(isOne);
    m_preview->setVisible(isOne);
}

void MessagePanel::showNothing()
{
    setEditable(false, false);
    m_selection->setText(tr("Select a message to edit it."));
}

void MessagePanel::showCount(int messages)
{
    setEditable(false, true);
    m_selection->setText(tr("Selected messages: %L1").arg(messages));
    m_severity->setCurrentIndex(-1);
    m_state->setCurrentIndex(-1);
}

void MessagePanel::showMessage(const Clt::Message &message)
{
    setEditable(true, true);
    m_keyLabels[u"processLabel"_s]->setText(message.key().process);
    m_keyLabels[u"contextLabel"_s]->setText(message.key().context);
    m_keyLabels[u"tagLabel"_s]->setText(message.key().tag);
    m_severity->setCurrentText(Clt::severityToText(message.severity()));
    m_state->setCurrentText(Clt::stateToText(message.state()));
    for (const Field field : fields)
        showField(field, message);
    showRemarks(message);
    m_preview->showMessage(message);
}

void MessagePanel::showField(Field field, const Clt::Message &message)
{
    QPlainTextEdit *edit = m_fields[field];
    const QString &text = fieldOf(message, field);
    if (edit->toPlainText() != text) {
        m_isShowing = true;
        edit->setPlainText(text);
        edit->moveCursor(QTextCursor::End);
        m_isShowing = false;
    }
    // A field that is being typed into must not disappear when it becomes empty.
    setRowVisible(*edit, edit->hasFocus() || isNeeded(message, field));
}

void MessagePanel::showRemarks(const Clt::Message &message)
{
    QStringList lines;
    for (const Checks::Remark &remark : Checks::remarksOn(message))
        lines.append(u"\u2022 "_s + remark.text());
    m_remarks->setText(lines.join(u'\n'));
    m_remarks->setVisible(!lines.isEmpty());
}

void MessagePanel::beginEditing()
{
    QPlainTextEdit *first = m_fields[Field::Text];
    for (const Field field : fields) {
        QPlainTextEdit *edit = m_fields[field];
        if (!edit->isHidden() && edit->document()->isEmpty()) {
            first = edit;
            break;
        }
    }
    if (first->isVisible())
        first->setFocus(Qt::ShortcutFocusReason);
    else if (m_severity->isVisible())
        m_severity->setFocus(Qt::ShortcutFocusReason);
}

bool MessagePanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        emit left();
        return true;
    }
    // Fields without undo of their own still claim its keys.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace MessageWindow
