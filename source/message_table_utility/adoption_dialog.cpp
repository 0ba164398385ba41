#include "message_table_utility/adoption_dialog.h"

#include "message_table_utility/message_preview.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace MessageWindow {

AdoptionDialog::AdoptionDialog(const Clt::MessageTable &table, Keys candidates, QWidget *parent)
    : QDialog(parent)
    , m_candidates(std::move(candidates))
    , m_list(new QListWidget)
    , m_preview(new MessagePreview)
{
    constexpr QSize usualSize(560, 420);
    setObjectName(u"adoptionDialog"_s);
    setWindowTitle(tr("Adopt Texts"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_list->setObjectName(u"candidateList"_s);
    m_list->setAccessibleName(tr("Obsolete messages"));
    for (const Clt::MessageKey &key : m_candidates)
        m_list->addItem(key.displayText());

    auto *label = new QLabel(tr("The message adopts the texts of this obsolete message, which is removed:"));
    label->setBuddy(m_list);
    label->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->setObjectName(u"adoptionButtons"_s);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_preview);
    layout->addWidget(buttons);
    resize(usualSize);

    connect(m_list, &QListWidget::currentRowChanged, this, [this, &table](int row) {
        m_preview->showMessage(table.message(m_candidates[static_cast<std::size_t>(row)]));
    });
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::accepted, this,
            [this] { emit chosen(m_candidates[static_cast<std::size_t>(m_list->currentRow())]); });
    m_list->setCurrentRow(0);
}

} // namespace MessageWindow
