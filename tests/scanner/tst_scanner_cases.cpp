#include "scanner/parser.h"
#include "scanner/source_scanner.h"
#include "scanner/source_text.h"
#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

namespace {

const QString process = u"client"_s;

QString escaped(QString text)
{
    text.replace(u'\\', u"\\\\"_s);
    text.replace(u'\n', u"\\n"_s);
    text.replace(u'\r', u"\\r"_s);
    text.replace(u'\t', u"\\t"_s);
    return text;
}

QString familyName(CallFamily family)
{
    switch (family) {
    case CallFamily::Error:
        return u"error"_s;
    case CallFamily::ErrorWithArguments:
        return u"error with arguments"_s;
    case CallFamily::Message:
        return u"message"_s;
    case CallFamily::MessageWithArguments:
        return u"message with arguments"_s;
    case CallFamily::Question:
        return u"question"_s;
    case CallFamily::QuestionWithArguments:
        return u"question with arguments"_s;
    }
    return {};
}

QString described(const Call &call)
{
    return u"%1: %2 [%3] %4\n"_s.arg(QString::number(call.line), familyName(call.family), call.context,
                                     escaped(call.tag));
}

// The calls that the parser finds in a file, one per line, or its error.
QString parsed(const QByteArray &contents)
{
    const QByteArray text = toSourceText(contents);
    Parser parser({text.constData(), static_cast<std::size_t>(text.size())});
    if (const Nvx::Util::Outcome parsed = parser.parse(); !parsed)
        return parsed.error() + u'\n';
    QString lines;
    for (const Call &call : parser.calls())
        lines += described(call);
    return lines;
}

QByteArray contentsOf(const QString &fileName)
{
    return fileBytes(fileName).value_or("missing");
}

QSet<Clt::MessageKey> keysOf(const SourceScanner &scanner)
{
    QSet<Clt::MessageKey> keys;
    for (const auto &[family, lines] : scanner.keys())
        keys.unite(scanner.keys(family));
    return keys;
}

} // namespace

/// Each folder of cases holds a source.cpp and, in expected.txt, its calls in the form
/// "LINE: FAMILY [CONTEXT] TAG" or the error.
class tst_scanner_cases : public QObject
{
    Q_OBJECT

private slots:
    // A missing folder of cases must not pass as an empty one.
    void thereAreCases()
    {
        const QDir cases(inCheckout(CASES));
        QVERIFY(cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() >= 80);
    }

    void findsTheCalls_data() { addCaseRows(inCheckout(CASES)); }

    void findsTheCalls()
    {
        QFETCH(const QString, folder);
        const QByteArray source = contentsOf(folder + u"/source.cpp"_s);
        const QByteArray expected = contentsOf(folder + u"/expected.txt"_s);
        QCOMPARE(parsed(source), QString::fromUtf8(expected));
    }

    void scannerCollectsTheKeysOfTheCalls_data() { addCaseRows(inCheckout(CASES)); }

    void scannerCollectsTheKeysOfTheCalls()
    {
        QFETCH(const QString, folder);
        const QString fileName = folder + u"/source.cpp"_s;
        const QByteArray text = toSourceText(contentsOf(fileName));
        Parser parser({text.constData(), static_cast<std::size_t>(text.size())});
        const Nvx::Util::Outcome parsed = parser.parse();
        QSet<Clt::MessageKey> keys;
        for (const Call &call : parser.calls())
            keys.insert({call.tag, call.context, process});

        SourceScanner scanner(process, fileName);
        QCOMPARE(bool(scanner.scan()), bool(parsed));
        QCOMPARE(scanner.errorText(), parsed.error());
        QCOMPARE(keysOf(scanner), parsed ? keys : QSet<Clt::MessageKey>());
    }

    void textAfterTheCallsDoesNotChangeThem_data() { addCaseRows(inCheckout(CASES)); }

    void textAfterTheCallsDoesNotChangeThem()
    {
        QFETCH(const QString, folder);
        const QByteArray source = contentsOf(folder + u"/source.cpp"_s);
        const QString expected = QString::fromUtf8(contentsOf(folder + u"/expected.txt"_s));
        const QByteArray endings[] = {"\n} } ) \" ' /*", "\n#else\n#endif\n}}}", "\nREPORT_ERROR(",
                                      "\n{ ( [ <"};
        for (const QByteArray &ending : endings)
            QVERIFY2(parsed(source + ending).startsWith(expected), ending.constData());
    }
};

NVX_GUILESS_TEST(tst_scanner_cases)

#include "tst_scanner_cases.moc"
