#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "update_error_table/arguments.h"
#include "update_error_table/update_error_table.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

// A block of the document with the comment before it.
struct Block
{
    QString what; ///< "file" or "output"
    QString name; ///< the file's name or the arguments
    QString text;
};

QList<Block> blocksOf(const QString &document)
{
    static const QRegularExpression block(u"<!-- (file|output): (.*) -->\n```[a-z]*\n((?:.*\n)*?)```\n"_s);
    QList<Block> blocks;
    for (auto found = block.globalMatch(document); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        blocks.append({match.captured(1), match.captured(2), match.captured(3)});
    }
    return blocks;
}

QString outputOf(const QStringList &arguments)
{
    QString text;
    QString errors;
    QTextStream output(&text);
    QTextStream errorOutput(&errors);
    runUpdateErrorTable(arguments, output, errorOutput, UpdateTable::OutputDevice::FileOrPipe);
    return text + errors;
}

} // namespace

/// The usage and the examples in docs/update-error-table.md.
class tst_update_error_table_documentation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QByteArray bytes = fileLines(inCheckout(DOCUMENT)).value_or("missing");
        m_document = QString::fromUtf8(bytes);
    }

    void showsTheUsage()
    {
        QString usage = UpdateTable::usage();
        static const QRegularExpression lineBegin(u"^(?=.)"_s, QRegularExpression::MultilineOption);
        QVERIFY(m_document.contains(usage.replace(lineBegin, u"    "_s)));
    }

    void examplesGiveTheOutputShown()
    {
        const TestFolder folder;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        int outputs = 0;
        for (const Block &block : blocksOf(m_document)) {
            if (block.what == "file"_L1) {
                QVERIFY(QDir().mkpath(QFileInfo(block.name).path()));
                QVERIFY(writeBytes(block.name, block.text.toUtf8()));
                continue;
            }
            ++outputs;
            QCOMPARE(outputOf(block.name.split(u' ')), block.text);
        }
        const QByteArray table = fileBytes(u"errors.xml"_s).value_or("missing");
        QDir::setCurrent(before);
        QCOMPARE(outputs, 3);
        QCOMPARE(table.count("<process>client</process>"), 3);
        QCOMPARE(table.count("<context>Flow::Solver::start</context>"), 3);
        QVERIFY(table.contains("<tag>Start the analysis? Yes, No; No</tag>"));
    }

private:
    QString m_document;
};

NVX_GUILESS_TEST(tst_update_error_table_documentation)

#include "tst_update_error_table_documentation.moc"
