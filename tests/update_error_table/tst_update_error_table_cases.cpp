#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "update_error_table/update_error_table.h"

#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;
using namespace UpdateTable;

namespace {

// The files below a folder by their relative paths, with all line ends as "\n".
using Files = QMap<QString, QByteArray>;

Files filesBelow(const QString &folder)
{
    Files files;
    for (QDirIterator entry(folder, QDir::Files, QDirIterator::Subdirectories); entry.hasNext();) {
        const QString path = entry.next();
        files.insert(QDir(folder).relativeFilePath(path), fileLines(path).value_or("missing"));
    }
    return files;
}

bool writeFiles(const Files &files, const QString &folder)
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString path = QDir(folder).filePath(file.key());
        if (!QDir().mkpath(QFileInfo(path).path()) || !writeBytes(path, file.value()))
            return false;
    }
    return true;
}

// A file's text, with all line ends as "\n".
QString expectedText(const QString &fileName)
{
    return QString::fromUtf8(fileLines(fileName).value_or(QByteArray()));
}

// Changes the current folder and restores it afterwards: on Windows the current folder cannot be removed.
class CurrentFolder
{
public:
    explicit CurrentFolder(const QString &folder) { QDir::setCurrent(folder); }
    CurrentFolder(const CurrentFolder &) = delete;
    CurrentFolder &operator=(const CurrentFolder &) = delete;
    ~CurrentFolder() { QDir::setCurrent(m_before); }

private:
    QString m_before = QDir::currentPath();
};

// The operating system's own text about a file that does not exist.
QString textOfMissingFile()
{
    QFile file(u"no such file"_s);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

struct Run
{
    int exitCode = 0;
    QString output;
    QString errors;
};

Run run(const QStringList &arguments)
{
    Run result;
    QTextStream output(&result.output);
    QTextStream errors(&result.errors);
    result.exitCode =
        static_cast<int>(runUpdateErrorTable(arguments, output, errors, OutputDevice::FileOrPipe));
    result.errors.replace(textOfMissingFile(), u"No such file or directory"_s);
    return result;
}

QStringList argumentsOf(const QString &folder)
{
    return expectedText(folder + u"/arguments.txt"_s).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

/// Each folder of cases contains arguments.txt, one argument per line, and "files", the folder in which the
/// program runs; and the expected results: output.txt and errors.txt, exit_code.txt (0 if there is none) and
/// "expected", the new and changed files. All other files must be unchanged, and there must be no more.
class tst_update_error_table_cases : public QObject
{
    Q_OBJECT

private slots:
    // A missing folder of cases must not pass as an empty one.
    void thereAreCases()
    {
        const QDir cases(m_cases);
        QVERIFY(cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() >= 25);
    }

    void runsAsExpected_data() { addCaseRows(m_cases); }

    void runsAsExpected()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const Files before = filesBelow(folder + u"/files"_s);
        QVERIFY(writeFiles(before, work.path()));
        const CurrentFolder current(work.path());

        const Run result = run(argumentsOf(folder));

        const QString exitCode = expectedText(folder + u"/exit_code.txt"_s).trimmed();
        QCOMPARE(result.output, expectedText(folder + u"/output.txt"_s));
        QCOMPARE(result.errors, expectedText(folder + u"/errors.txt"_s));
        QCOMPARE(result.exitCode, exitCode.toInt());
        Files expected = before;
        expected.insert(filesBelow(folder + u"/expected"_s));
        const Files after = filesBelow(work.path());
        QCOMPARE(after.keys(), expected.keys());
        for (auto file = expected.begin(); file != expected.end(); ++file)
            QCOMPARE(after.value(file.key()), file.value());
    }

    void secondRunChangesNothing_data() { addCaseRows(m_cases); }

    void secondRunChangesNothing()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        QVERIFY(writeFiles(filesBelow(folder + u"/files"_s), work.path()));
        const CurrentFolder current(work.path());

        const Run first = run(argumentsOf(folder));
        const Files between = filesBelow(work.path());
        const Run second = run(argumentsOf(folder));

        QCOMPARE(second.exitCode, first.exitCode);
        // A key is new, and something is left over from a file, only the first time.
        const QStringList errors = first.errors.split(u'\n');
        for (const QString &line : second.errors.split(u'\n'))
            QVERIFY2(errors.contains(line), qPrintable(line));
        QVERIFY(filesBelow(work.path()) == between);
        static const QRegularExpression foundAnew(u"\\([1-9][0-9]* new"_s);
        if (first.exitCode == 0)
            QVERIFY2(!second.output.contains(foundAnew), qPrintable(second.output));
    }

private:
    // Absolute, because the current folder, and with it the drive, changes.
    const QString m_cases = QFileInfo(inCheckout(CASES)).absoluteFilePath();
};

NVX_GUILESS_TEST(tst_update_error_table_cases)

#include "tst_update_error_table_cases.moc"
