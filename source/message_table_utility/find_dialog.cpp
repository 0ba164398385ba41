#include "message_table_utility/find_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace MessageWindow {

FindDialog::FindDialog(QWidget *parent)
    : QDialog(parent)
    , m_text(new QLineEdit)
    , m_replacement(new QLineEdit)
    , m_matchesCase(new QCheckBox(tr("Match case")))
    , m_result(new QLabel)
{
    setObjectName(u"findDialog"_s);
    setWindowTitle(tr("Find and Replace"));
    m_text->setObjectName(u"findField"_s);
    m_replacement->setObjectName(u"replacementField"_s);
    m_matchesCase->setObjectName(u"matchCaseBox"_s);
    m_result->setObjectName(u"findResult"_s);
    m_result->setTextFormat(Qt::PlainText);

    auto *form = new QFormLayout;
    form->addRow(tr("Find:"), m_text);
    form->addRow(tr("Replace with:"), m_replacement);
    form->addRow(m_matchesCase);

    auto *buttons = new QDialogButtonBox;
    const auto addButton = [&](const QString &name, const QString &text, auto signal) {
        QPushButton *button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(name);
        button->setEnabled(false);
        connect(button, &QPushButton::clicked, this, signal);
        connect(m_text, &QLineEdit::textChanged, button,
                [button](const QString &searched) { button->setEnabled(!searched.isEmpty()); });
        return button;
    };
    addButton(u"findNextButton"_s, tr("Find Next"), &FindDialog::findNextRequested)->setDefault(true);
    addButton(u"replaceButton"_s, tr("Replace"), &FindDialog::replaceRequested);
    addButton(u"replaceAllButton"_s, tr("Replace All"), &FindDialog::replaceAllRequested);
    buttons->addButton(QDialogButtonBox::Close); // the last one, or the Tab key would not reach it
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_result);
    layout->addWidget(buttons);
}

void FindDialog::open()
{
    show();
    raise();
    activateWindow();
    m_result->clear();
    m_text->setFocus();
    m_text->selectAll();
}

Search FindDialog::search() const
{
    return {m_text->text(), m_matchesCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive};
}

QString FindDialog::replacement() const
{
    return m_replacement->text();
}

void FindDialog::showResult(const QString &text)
{
    m_result->setText(text);
}

} // namespace MessageWindow
