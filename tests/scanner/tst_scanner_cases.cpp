#include "scanner/source_parser.h"
#include "scanner/source_scanner.h"
#include "scanner/source_text.h"
#include "support/case_folders.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

#include <QTest>

using namespace Scan;

namespace {

const QString process = QStringLiteral("client");

QString escaped(QString text)
{
    text.replace(u'\\', QStringLiteral("\\\\"));
    text.replace(u'\n', QStringLiteral("\\n"));
    text.replace(u'\r', QStringLiteral("\\r"));
    text.replace(u'\t', QStringLiteral("\\t"));
    return text;
}

QString familyName(CallFamily family)
{
    switch (family) {
    case CallFamily::Error:
        return QStringLiteral("error");
    case CallFamily::ErrorWithArguments:
        return QStringLiteral("error with arguments");
    case CallFamily::Message:
        return QStringLiteral("message");
    case CallFamily::MessageWithArguments:
        return QStringLiteral("message with arguments");
    case CallFamily::Question:
        return QStringLiteral("question");
    case CallFamily::QuestionWithArguments:
        return QStringLiteral("question with arguments");
    }
    return {};
}

QString described(const Call &call)
{
    return QStringLiteral("%1: %2 [%3] %4\n")
        .arg(QString::number(call.line), familyName(call.family), call.context, escaped(call.tag));
}

// What the parser makes of a file, one line a call.
QString parsed(const QByteArray &contents)
{
    const QByteArray text = toSourceText(contents);
    Parser parser({text.constData(), static_cast<std::size_t>(text.size())});
    if (const auto error = parser.parse())
        return error->text() + u'\n';
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
    for (std::size_t family = 0; family < callFamilyCount; ++family)
        keys.unite(scanner.keys().keys(static_cast<CallFamily>(family)));
    return keys;
}

} // namespace

/// Each folder of cases holds a source.cpp and, in expected.txt, its calls in the form
/// "LINE: FAMILY [CONTEXT] TAG" or the error.
class tst_scanner_cases : public QObject
{
    Q_OBJECT

private slots:
    // A folder of cases that is not found must not pass as no cases at all.
    void thereAreCases()
    {
        const QDir cases(QStringLiteral(CASES));
        QVERIFY(cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() >= 80);
    }

    void findsTheCalls_data() { addCaseRows(QStringLiteral(CASES)); }

    void findsTheCalls()
    {
        QFETCH(const QString, folder);
        const QByteArray source = contentsOf(folder + QStringLiteral("/source.cpp"));
        const QByteArray expected = contentsOf(folder + QStringLiteral("/expected.txt"));
        QCOMPARE(parsed(source), QString::fromUtf8(expected));
    }

    void scannerCollectsTheKeysOfTheCalls_data() { addCaseRows(QStringLiteral(CASES)); }

    void scannerCollectsTheKeysOfTheCalls()
    {
        QFETCH(const QString, folder);
        const QString fileName = folder + QStringLiteral("/source.cpp");
        const QByteArray text = toSourceText(contentsOf(fileName));
        Parser parser({text.constData(), static_cast<std::size_t>(text.size())});
        const auto error = parser.parse();
        QSet<Clt::MessageKey> keys;
        for (const Call &call : parser.calls())
            keys.insert({call.tag, call.context, process});

        SourceScanner scanner(process, fileName);
        QCOMPARE(scanner.scan(), !error.has_value());
        QCOMPARE(scanner.errorText(), error ? error->text() : QString());
        QCOMPARE(keysOf(scanner), error ? QSet<Clt::MessageKey>() : keys);
    }

    void keysStandWhateverGarbageFollows_data() { addCaseRows(QStringLiteral(CASES)); }

    void keysStandWhateverGarbageFollows()
    {
        QFETCH(const QString, folder);
        const QByteArray source = contentsOf(folder + QStringLiteral("/source.cpp"));
        const QString expected = QString::fromUtf8(contentsOf(folder + QStringLiteral("/expected.txt")));
        const QByteArray endings[] = {"\n} } ) \" ' /*", "\n#else\n#endif\n}}}", "\nREPORT_ERROR(",
                                      "\n{ ( [ <"};
        for (const QByteArray &ending : endings)
            QVERIFY2(parsed(source + ending).startsWith(expected), ending.constData());
    }
};

NVX_GUILESS_TEST(tst_scanner_cases)

#include "tst_scanner_cases.moc"
