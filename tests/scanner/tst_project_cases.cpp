#include "scanner/error_visual_studio_project.h"
#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QDirIterator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

namespace {

QStringList linesOf(const QString &fileName)
{
    return QString::fromUtf8(fileLines(fileName).value_or(QByteArray())).split(u'\n', Qt::SkipEmptyParts);
}

/// Copies the files to a folder of their own: above them there must be no other project's files.
bool copyFiles(const QString &from, const QString &to)
{
    for (QDirIterator entry(from, QDir::Files, QDirIterator::Subdirectories); entry.hasNext();) {
        const QString path = entry.next();
        const QString target = QDir(to).filePath(QDir(from).relativeFilePath(path));
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(path, target))
            return false;
    }
    return true;
}

/// "NAME -> PATH", with the path relative to the case, or "NAME: PROBLEM (ORIGIN)".
QString lineOf(const ProjectSource &source, const QString &root)
{
    if (!source.problem.isEmpty())
        return u"%1: %2 (%3)"_s.arg(source.name, source.problem, source.origin);
    const QString missing = QFile::exists(source.path) ? QString() : u" (missing)"_s;
    return u"%1 -> %2%3"_s.arg(source.name, QDir(root).relativeFilePath(source.path), missing);
}

QStringList projectsBelow(const QString &folder)
{
    QStringList projects;
    QDirIterator all(folder, {u"*.vcxproj"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
        projects.append(all.next());
    projects.sort();
    return projects;
}

} // namespace

/// Each folder of cases contains "files" with one file *.vcxproj, and sources.txt, what is read from it: the
/// root namespace, the sources, and the notes after "note: ".
class tst_project_cases : public QObject
{
    Q_OBJECT

private slots:
    void thereAreCases() { QVERIFY(QDir(m_cases).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() >= 15); }

    void sourcesAreThoseOfAllConfigurations_data() { addCaseRows(m_cases); }

    void sourcesAreThoseOfAllConfigurations()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        QVERIFY(copyFiles(folder + u"/files"_s, work.path()));
        const QStringList projects = projectsBelow(work.path());
        QCOMPARE(projects.size(), 1);

        const auto project = readVisualStudioProject(projects.first());

        QVERIFY2(project, qPrintable(project.error()));
        const QString root = QDir::fromNativeSeparators(work.path());
        QStringList lines{u"root namespace: "_s + project->rootNamespace};
        for (const ProjectSource &source : project->sources)
            lines.append(lineOf(source, root));
        for (const QString &note : project->notes)
            lines.append(u"note: "_s + note);
        QCOMPARE(lines, linesOf(folder + u"/sources.txt"_s));
    }

    // For trials with real projects: every project below the folder in NVX_PROJECTS.
    void everyProjectOfAFolderIsRead()
    {
        const QString folder = qEnvironmentVariable("NVX_PROJECTS");
        if (folder.isEmpty())
            QSKIP("NVX_PROJECTS is not set: no folder of projects to read");
        const QStringList projects = projectsBelow(folder);
        QVERIFY2(!projects.isEmpty(), "no *.vcxproj below the folder in NVX_PROJECTS");
        qsizetype sources = 0;
        QStringList failures;
        QStringList missing;
        for (const QString &fileName : projects) {
            const auto project = readVisualStudioProject(fileName);
            if (!project) {
                failures.append(u"%1: %2"_s.arg(fileName, project.error()));
                continue;
            }
            sources += project->sources.size();
            for (const ProjectSource &source : project->sources) {
                if (!QFile::exists(source.path))
                    missing.append(u"%1: %2"_s.arg(fileName, lineOf(source, folder)));
            }
            for (const QString &note : project->notes)
                missing.append(u"%1: %2"_s.arg(fileName, note));
        }
        for (const QString &line : std::as_const(missing))
            qInfo("%s", qPrintable(line));
        qInfo("%lld projects, %lld sources, %lld of them without a file or notes", qlonglong(projects.size()),
              qlonglong(sources), qlonglong(missing.size()));
        QCOMPARE(failures, QStringList());
    }

private:
    const QString m_cases = QFileInfo(inCheckout(CASES)).absoluteFilePath();
};

NVX_GUILESS_TEST(tst_project_cases)

#include "tst_project_cases.moc"
