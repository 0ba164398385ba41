#include "message_table_utility/findings.h"

#include "clt_message_table.h"
#include "message_checks/message_remarks.h"
#include "translation/error_translation_table.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QLabel>
#include <QListWidget>
#include <QShortcut>
#include <QVBoxLayout>

#include <map>
#include <set>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using Checks::Remarks;

namespace MessageWindow {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Findings)
};

/// Lists a finding. Its text, which takes time, is made only if there is still space in the list.
template<typename MakeText>
void list(Findings &found, const std::optional<Clt::MessageKey> &key, MakeText makeText)
{
    if (found.findings.size() < Findings::maximum)
        found.findings.push_back({key, makeText()});
    else
        ++found.more;
}

/// The numbers of findings by context and source.
using FindingsBySource = QHash<std::pair<QString, QString>, QList<std::size_t>>;

/// Gives the findings the keys of the messages that have these sources.
void setKeys(Findings &found, const FindingsBySource &bySource, const Clt::MessageTable &table)
{
    for (const auto &[key, message] : table) {
        for (const QString *text : {&message.sourceTitle(), &message.sourceText(), &message.sourceAction()}) {
            if (text->isEmpty())
                continue;
            const QList<std::size_t> numbers = bySource.value({key.context, *text});
            for (const std::size_t number : numbers)
                found.findings[number].key = key;
        }
    }
}

/// A remark that only a rule describes.
Checks::Remark remarkOf(Checks::Rule rule)
{
    return {rule, nullptr, nullptr, {}, {}};
}

Remarks remarksOn(const Translation::TranslationMessage &message)
{
    if (message.type == "obsolete"_L1 || message.type == "vanished"_L1)
        return {remarkOf(Checks::Rule::Obsolete)};
    Remarks remarks;
    if (message.type == "unfinished"_L1 || message.translation.isEmpty())
        remarks.push_back(remarkOf(Checks::Rule::Unfinished));
    if (!message.translation.isEmpty()) {
        for (const Checks::Remark &remark : Checks::remarksOnTranslation(message.source, message.translation))
            remarks.push_back(remark);
    }
    return remarks;
}

QString textOf(const Checks::Remark &remark)
{
    if (remark.rule == Checks::Rule::Obsolete)
        return Texts::tr("no longer used");
    if (remark.rule == Checks::Rule::Unfinished)
        return Texts::tr("not translated yet");
    return remark.text();
}

/// How many strings have a remark of each rule.
class Counts
{
public:
    void add(const Remarks &remarks)
    {
        std::set<Checks::Rule> rules;
        for (const Checks::Remark &remark : remarks)
            rules.insert(remark.rule);
        for (const Checks::Rule rule : rules)
            ++m_counts[rule];
        ++m_strings;
    }

    int of(Checks::Rule rule) const
    {
        const auto found = m_counts.find(rule);
        return found == m_counts.end() ? 0 : found->second;
    }

    int finished() const { return m_strings - of(Checks::Rule::Unfinished) - of(Checks::Rule::Obsolete); }

private:
    std::map<Checks::Rule, int> m_counts;
    int m_strings = 0;
};

} // namespace

Findings tableFindings(const Clt::MessageTable &table)
{
    Findings found;
    for (const auto &[messageKey, message] : table) {
        const Clt::MessageKey &key = messageKey;
        const auto add = [&](auto makeText) {
            list(found, key, [&] { return u"%1: %2"_s.arg(key.displayText(), makeText()); });
        };
        if (message.state() == Clt::MessageState::Obsolete) {
            add([] { return Texts::tr("no longer found in the sources"); });
            continue;
        }
        if (message.state() == Clt::MessageState::New)
            add([] { return Texts::tr("not reviewed yet"); });
        for (const Checks::Remark &remark : Checks::remarksOn(message))
            add([&remark] { return remark.text(); });
    }
    found.summary = Texts::tr("Findings: %L1").arg(found.findings.size() + found.more);
    return found;
}

Findings translationFindings(const Translation::TranslationTable &translation, const QString &fileName,
                             const Clt::MessageTable &table)
{
    Findings found;
    FindingsBySource bySource;
    Counts counts;
    for (const auto &[contextName, context] : translation.contexts()) {
        const QString &name = contextName;
        for (const Translation::TranslationMessage &message : context.messages()) {
            const Remarks remarks = remarksOn(message);
            counts.add(remarks);
            for (const Checks::Remark &remark : remarks) {
                if (found.findings.size() < Findings::maximum)
                    bySource[{name, message.source}].append(found.findings.size());
                list(found, std::nullopt, [&] {
                    return u"%1: %2"_s.arg(Checks::stringName(name, message.source), textOf(remark));
                });
            }
        }
    }
    setKeys(found, bySource, table);
    found.summary =
        Texts::tr("%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with different placeholders, "
                  "%L6 with different accelerators, %L7 with different blanks")
            .arg(QFileInfo(fileName).fileName())
            .arg(counts.finished())
            .arg(counts.of(Checks::Rule::Unfinished))
            .arg(counts.of(Checks::Rule::Obsolete))
            .arg(counts.of(Checks::Rule::Place))
            .arg(counts.of(Checks::Rule::Accelerator))
            .arg(counts.of(Checks::Rule::Blank));
    return found;
}

FindingsPanel::FindingsPanel(QWidget *parent)
    : QWidget(parent)
    , m_summary(new QLabel)
    , m_list(new QListWidget)
{
    m_summary->setObjectName(u"findingsSummary"_s);
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_list->setObjectName(u"findingsList"_s);
    m_list->setAccessibleName(tr("Findings"));
    m_list->setUniformItemSizes(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_list, 1);
    auto *escape = new QShortcut(QKeySequence(Qt::Key_Escape), m_list);
    escape->setContext(Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, this, &FindingsPanel::left);
    const auto choose = [this] {
        if (m_list->selectionModel()->hasSelection()) {
            if (const auto key = keyOfRow(m_list->currentRow()))
                emit chosen(*key);
        }
    };
    connect(m_list, &QListWidget::itemSelectionChanged, this, choose);
    connect(m_list, &QListWidget::itemClicked, this, choose); // it may be selected already
    connect(m_list, &QListWidget::itemActivated, this, [this](const QListWidgetItem *item) {
        if (const auto key = keyOfRow(m_list->row(item)))
            emit opened(*key);
    });
}

std::optional<Clt::MessageKey> FindingsPanel::keyOfRow(int row) const
{
    const auto at = static_cast<std::size_t>(row);
    return row >= 0 && at < m_findings.size() ? m_findings[at].key : std::nullopt;
}

void FindingsPanel::show(const Findings &findings)
{
    m_list->clear();
    m_findings = findings.findings;
    m_summary->setText(findings.summary);
    QStringList lines;
    for (const Finding &finding : m_findings)
        lines.append(finding.text.simplified());
    if (findings.more > 0)
        lines.append(tr("... and %1 more").arg(findings.more));
    m_list->addItems(lines);
}

void FindingsPanel::begin()
{
    // A list without a current row would choose one.
    m_list->setCurrentRow(0, QItemSelectionModel::NoUpdate);
    m_list->setFocus(Qt::ShortcutFocusReason);
}

} // namespace MessageWindow
