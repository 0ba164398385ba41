#include "support/case_folders.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "update_error_table/update_error_table.h"

#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>

using namespace Error;

namespace {

// The files below a folder, by their paths in it, with the line ends of every system as "\n".
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

// One file's text, with the line ends of every system as "\n".
QString expectedText(const QString &fileName)
{
    return QString::fromUtf8(fileLines(fileName).value_or(QByteArray()));
}

// Makes a folder the current one for a while: on Windows a current folder cannot be removed.
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
    return result;
}

QStringList argumentsOf(const QString &folder)
{
    return expectedText(folder + QStringLiteral("/arguments.txt")).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

/// Each folder of cases holds arguments.txt, one argument a line, and files, the folder in which the program
/// is run; then what is expected of it: output.txt and errors.txt, exit_code.txt (0 when there is none) and
/// expected, the files that are new or changed. All other files must be there as they were, and no more.
class tst_update_error_table_cases : public QObject
{
    Q_OBJECT

private slots:
    // A folder of cases that is not found must not pass as no cases at all.
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
        const Files before = filesBelow(folder + QStringLiteral("/files"));
        QVERIFY(writeFiles(before, work.path()));
        const CurrentFolder current(work.path());

        const Run result = run(argumentsOf(folder));

        const QString exitCode = expectedText(folder + QStringLiteral("/exit_code.txt")).trimmed();
        QCOMPARE(result.output, expectedText(folder + QStringLiteral("/output.txt")));
        QCOMPARE(result.errors, expectedText(folder + QStringLiteral("/errors.txt")));
        QCOMPARE(result.exitCode, exitCode.toInt());
        Files expected = before;
        expected.insert(filesBelow(folder + QStringLiteral("/expected")));
        const Files after = filesBelow(work.path());
        QCOMPARE(after.keys(), expected.keys());
        for (auto file = expected.begin(); file != expected.end(); ++file)
            QCOMPARE(after.value(file.key()), file.value());
    }

    void changesNothingWhenRunAgain_data() { addCaseRows(m_cases); }

    void changesNothingWhenRunAgain()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        QVERIFY(writeFiles(filesBelow(folder + QStringLiteral("/files")), work.path()));
        const CurrentFolder current(work.path());

        const Run first = run(argumentsOf(folder));
        const Files between = filesBelow(work.path());
        const Run second = run(argumentsOf(folder));

        QCOMPARE(second.exitCode, first.exitCode);
        QCOMPARE(second.errors, first.errors);
        QVERIFY(filesBelow(work.path()) == between);
        static const QRegularExpression foundAnew(QStringLiteral("\\([1-9][0-9]* new"));
        if (first.exitCode == 0)
            QVERIFY2(!second.output.contains(foundAnew), qPrintable(second.output));
    }

private:
    // Absolute before the current folder, and with it the drive, changes.
    const QString m_cases = QFileInfo(QStringLiteral(CASES)).absoluteFilePath();
};

NVX_GUILESS_TEST(tst_update_error_table_cases)

#include "tst_update_error_table_cases.moc"
