#include "message_checks/message_remarks.h"

#include "clt_xml_text.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace Checks {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MessageRemarks)
};

constexpr int lastPlace = 9;

// A message's arguments are filled in as they are, those of other texts also in the form of the language.
const QRegularExpression messagePlace(u"%(\\d+)"_s);
const QRegularExpression anyPlace(u"%L?(\\d+)"_s);

QString placeOf(int number)
{
    return u'%' + QString::number(number);
}

/// The numbers of the places in a text, such as 1 and 2 for "%2 of %1".
std::set<int> placesIn(const QString &text, const QRegularExpression &place)
{
    std::set<int> places;
    if (!text.contains(u'%'))
        return places;
    for (auto match = place.globalMatch(text); match.hasNext();)
        places.insert(match.next().capturedView(1).toInt());
    return places;
}

/// "U+00DF" for a control character or half a surrogate pair, otherwise the character.
QString shownCharacter(QStringView character)
{
    const QChar first = character.at(0);
    if (first.isPrint() || character.size() == 2)
        return character.toString();
    return u"U+%1"_s.arg(QString::number(first.unicode(), 16).toUpper(), 4, u'0');
}

/// The first character of the text for which the test is true; empty if there is none.
template<typename Test>
QStringView firstCharacter(QStringView text, Test test)
{
    for (qsizetype at = 0; at < text.size();) {
        const bool isPair =
            text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
        const QStringView character = text.sliced(at, isPair ? 2 : 1);
        if (test(character))
            return character;
        at += character.size();
    }
    return {};
}

/// True for a character that needs no closer look.
bool isPlain(QChar character)
{
    return character >= u' ' && character <= u'~';
}

bool isAscii(QStringView character)
{
    return character.at(0).unicode() < 0x80;
}

/// Collects the remarks on one field.
class FieldCheck
{
public:
    FieldCheck(Remarks &remarks, const char *field, const QString &text)
        : m_remarks(remarks)
        , m_field(field)
        , m_text(text)
    {
    }

    void add(Rule rule, const char *pattern, const QString &argument = {}, const QString &second = {}) const
    {
        m_remarks.push_back({rule, m_field, pattern, argument, second});
    }

    /// Checks what applies to every field that is saved. Returns false if the field is empty.
    bool checkSaved() const
    {
        if (m_text.isEmpty()) {
            add(Rule::Incomplete, QT_TRANSLATE_NOOP("MessageRemarks", "missing"));
            return false;
        }
        checkCharacters();
        if (m_text.front().isSpace())
            add(Rule::Blank, QT_TRANSLATE_NOOP("MessageRemarks", "begins with a blank"));
        if (m_text.back().isSpace())
            add(Rule::Blank, QT_TRANSLATE_NOOP("MessageRemarks", "ends with a blank"));
        return true;
    }

    void checkCharacters() const
    {
        if (std::all_of(m_text.begin(), m_text.end(), isPlain))
            return;
        const QStringView odd = firstCharacter(m_text, [](QStringView one) { return !Clt::isXmlText(one); });
        if (!odd.isEmpty()) {
            add(Rule::Character,
                QT_TRANSLATE_NOOP("MessageRemarks", "the file cannot store the character %1"),
                shownCharacter(odd));
            return;
        }
        const QStringView other = firstCharacter(m_text, [](QStringView one) { return !isAscii(one); });
        if (!other.isEmpty())
            add(Rule::LookUp,
                QT_TRANSLATE_NOOP("MessageRemarks", "no translation is found, because %1 is not ASCII"),
                shownCharacter(other));
    }

private:
    Remarks &m_remarks;
    const char *m_field;
    const QString &m_text;
};

/// The arguments are filled into text and action, so that the two together must not skip one.
void checkPlaces(const FieldCheck &check, const std::set<int> &own, const std::set<int> &all)
{
    int expected = 1;
    for (const int place : all) {
        if (place > lastPlace || place == 0) {
            if (own.contains(place))
                check.add(Rule::Place, QT_TRANSLATE_NOOP("MessageRemarks", "%1 is not filled in"),
                          placeOf(place));
        } else if (place > expected && own.contains(place)) {
            check.add(Rule::Place, QT_TRANSLATE_NOOP("MessageRemarks", "%1 is used, but %2 is not"),
                      placeOf(place), placeOf(expected));
        }
        expected = place + 1;
    }
}

void checkTitle(Remarks &remarks, const Clt::Message &message)
{
    const char *label = QT_TRANSLATE_NOOP("MessageRemarks", "Title");
    const FieldCheck check(remarks, label, message.sourceTitle());
    if (!hasTitle(message.severity())) {
        if (!message.sourceTitle().isEmpty())
            check.add(Rule::Unsaved, QT_TRANSLATE_NOOP("MessageRemarks", "not saved with this severity"));
        return;
    }
    if (!check.checkSaved())
        return;
    for (const int place : placesIn(message.sourceTitle(), messagePlace))
        check.add(Rule::Place, QT_TRANSLATE_NOOP("MessageRemarks", "%1 is not filled in"), placeOf(place));
}

// An accelerator is an ampersand before a character; two of them are an ampersand.
int acceleratorsIn(QStringView text)
{
    int accelerators = 0;
    for (qsizetype at = text.indexOf(u'&'); at >= 0 && at + 1 < text.size();
         at = text.indexOf(u'&', at + 2)) {
        if (text.at(at + 1) != u'&' && !text.at(at + 1).isSpace())
            ++accelerators;
    }
    return accelerators;
}

QStringView blanksAtBegin(QStringView text)
{
    const auto *end = std::find_if_not(text.begin(), text.end(), [](QChar one) { return one.isSpace(); });
    return text.first(end - text.begin());
}

QStringView blanksAtEnd(QStringView text)
{
    qsizetype size = 0;
    while (size < text.size() && text.at(text.size() - 1 - size).isSpace())
        ++size;
    return text.last(size);
}

void compareAccelerators(const FieldCheck &check, const QString &source, const QString &translation)
{
    const bool isInSource = acceleratorsIn(source) > 0;
    const bool isInTranslation = acceleratorsIn(translation) > 0;
    if (isInSource && !isInTranslation)
        check.add(Rule::Accelerator, QT_TRANSLATE_NOOP("MessageRemarks", "the accelerator is missing"));
    else if (isInTranslation && !isInSource)
        check.add(Rule::Accelerator, QT_TRANSLATE_NOOP("MessageRemarks", "the source has no accelerator"));
}

void compareBlanks(const FieldCheck &check, const QString &source, const QString &translation)
{
    if (blanksAtBegin(source) != blanksAtBegin(translation))
        check.add(Rule::Blank,
                  QT_TRANSLATE_NOOP("MessageRemarks", "begins with different blanks than the source"));
    if (blanksAtEnd(source) != blanksAtEnd(translation))
        check.add(Rule::Blank,
                  QT_TRANSLATE_NOOP("MessageRemarks", "ends with different blanks than the source"));
}

void comparePlaces(const FieldCheck &check, const std::set<int> &source, const std::set<int> &translation)
{
    for (const int place : source) {
        if (!translation.contains(place))
            check.add(Rule::Place, QT_TRANSLATE_NOOP("MessageRemarks", "%1 is missing"), placeOf(place));
    }
    for (const int place : translation) {
        if (!source.contains(place))
            check.add(Rule::Place, QT_TRANSLATE_NOOP("MessageRemarks", "the source has no %1"),
                      placeOf(place));
    }
}

} // namespace

QString Remark::text() const
{
    QString text = Texts::tr(pattern);
    if (!secondArgument.isNull())
        text = text.arg(argument, secondArgument);
    else if (!argument.isNull())
        text = text.arg(argument);
    return field ? u"%1: %2"_s.arg(Texts::tr(field), text) : text;
}

bool hasTitle(Clt::Severity severity)
{
    return severity == Clt::Severity::Critical || severity == Clt::Severity::Question;
}

bool hasAction(Clt::Severity severity)
{
    return severity == Clt::Severity::Critical;
}

Remarks remarksOn(const Clt::Message &message)
{
    Remarks remarks;
    const char *contextLabel = QT_TRANSLATE_NOOP("MessageRemarks", "Context");
    FieldCheck(remarks, contextLabel, message.key().context).checkCharacters();
    checkTitle(remarks, message);

    const bool isActionSaved = hasAction(message.severity());
    const std::set<int> inText = placesIn(message.sourceText(), messagePlace);
    const std::set<int> inAction =
        isActionSaved ? placesIn(message.sourceAction(), messagePlace) : std::set<int>();
    std::set<int> all = inText;
    all.insert(inAction.begin(), inAction.end());

    const char *textLabel = QT_TRANSLATE_NOOP("MessageRemarks", "Text");
    const FieldCheck text(remarks, textLabel, message.sourceText());
    if (text.checkSaved())
        checkPlaces(text, inText, all);
    const char *actionLabel = QT_TRANSLATE_NOOP("MessageRemarks", "Action");
    const FieldCheck action(remarks, actionLabel, message.sourceAction());
    if (!isActionSaved && !message.sourceAction().isEmpty())
        action.add(Rule::Unsaved, QT_TRANSLATE_NOOP("MessageRemarks", "not saved with this severity"));
    if (isActionSaved && action.checkSaved())
        checkPlaces(action, inAction, all);
    return remarks;
}

Remarks remarksOnTranslation(const QString &source, const QString &translation)
{
    Remarks remarks;
    const FieldCheck check(remarks, nullptr, translation);
    comparePlaces(check, placesIn(source, anyPlace), placesIn(translation, anyPlace));
    compareAccelerators(check, source, translation);
    compareBlanks(check, source, translation);
    return remarks;
}

QString stringName(const QString &context, const QString &source)
{
    constexpr qsizetype maximum = 60;
    const QString line = source.simplified();
    return u"%1, \"%2\""_s.arg(context, line.size() > maximum ? line.first(maximum - 3) + u"..."_s : line);
}

} // namespace Checks
