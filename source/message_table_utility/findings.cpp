#include "message_table_utility/findings.h"

#include "clt_message_table.h"
#include "message_checks/message_remarks.h"
#include "translation/error_translation_table.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <map>
#include <set>

using namespace Qt::Literals::StringLiterals;

using Checks::Remarks;

namespace MessageWindow {

namespace {

constexpr std::size_t maximumListed = 1000;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Findings)
};

QString onOneLine(const QString &text)
{
    constexpr qsizetype maximum = 60;
    const QString line = text.simplified();
    return line.size() > maximum ? line.first(maximum) + u"..."_s : line;
}

/// The keys of the messages by their context and one of their texts.
QHash<std::pair<QString, QString>, Clt::MessageKey> keysByText(const Clt::MessageTable &table)
{
    QHash<std::pair<QString, QString>, Clt::MessageKey> keys;
    for (const auto &[key, message] : table) {
        for (const QString *text : {&message.sourceTitle(), &message.sourceText(), &message.sourceAction()}) {
            if (!text->isEmpty())
                keys.insert({key.context, *text}, key);
        }
    }
    return keys;
}

Remarks remarksOn(const Translation::TranslationMessage &message)
{
    if (message.type == "obsolete"_L1 || message.type == "vanished"_L1)
        return {{Checks::Rule::Obsolete, Texts::tr("no longer used")}};
    Remarks remarks;
    if (message.type == "unfinished"_L1 || message.translation.isEmpty())
        remarks.push_back({Checks::Rule::Unfinished, Texts::tr("not translated yet")});
    if (!message.translation.isEmpty()) {
        for (const Checks::Remark &remark : Checks::remarksOnTranslation(message.source, message.translation))
            remarks.push_back(remark);
    }
    return remarks;
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
    const auto add = [&](const Clt::MessageKey &key, const QString &text) {
        found.findings.push_back({key, u"%1: %2"_s.arg(key.displayText(), text)});
    };
    for (const auto &[key, message] : table) {
        if (message.state() == Clt::MessageState::Obsolete) {
            add(key, Texts::tr("no longer found in the sources"));
            continue;
        }
        if (message.state() == Clt::MessageState::New)
            add(key, Texts::tr("not reviewed yet"));
        for (const Checks::Remark &remark : Checks::remarksOn(message))
            add(key, remark.text);
    }
    found.summary = Texts::tr("Findings: %L1").arg(found.findings.size());
    return found;
}

Findings translationFindings(const Translation::TranslationTable &translation, const QString &fileName,
                             const Clt::MessageTable &table)
{
    const auto keys = keysByText(table);
    Findings found;
    Counts counts;
    for (const auto &[name, context] : translation.contexts()) {
        for (const Translation::TranslationMessage &message : context.messages()) {
            const Remarks remarks = remarksOn(message);
            counts.add(remarks);
            const auto key = keys.find({name, message.source});
            for (const Checks::Remark &remark : remarks)
                found.findings.push_back(
                    {key == keys.end() ? std::nullopt : std::optional(*key),
                     u"%1, \"%2\": %3"_s.arg(name, onOneLine(message.source), remark.text)});
        }
    }
    found.summary =
        Texts::tr("%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with other places, %L6 with "
                  "other accelerators, %L7 with other blanks")
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
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && row < static_cast<int>(m_findings.size()) &&
            m_findings[static_cast<std::size_t>(row)].key)
            emit chosen(*m_findings[static_cast<std::size_t>(row)].key);
    });
}

void FindingsPanel::show(const Findings &findings)
{
    const std::size_t listed = std::min(findings.findings.size(), maximumListed);
    m_list->clear();
    m_findings.assign(findings.findings.begin(),
                      findings.findings.begin() + static_cast<std::ptrdiff_t>(listed));
    m_summary->setText(findings.summary);
    QStringList lines;
    for (const Finding &finding : m_findings)
        lines.append(finding.text.simplified());
    if (findings.findings.size() > listed)
        lines.append(tr("... and %1 more").arg(findings.findings.size() - listed));
    m_list->addItems(lines);
}

void FindingsPanel::begin()
{
    m_list->setFocus(Qt::ShortcutFocusReason);
}

} // namespace MessageWindow
