#include "localization/locale_folders.h"

#include "nvx_util/languages.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"
#include "run/reporter.h"

#include <QDir>
#include <QFile>
#include <QSet>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using Nvx::Util::joinPath;
using Nvx::Util::Language;
using Nvx::Util::sourceLanguage;
using Nvx::Util::targetLanguages;

namespace Localization {

namespace {

const QStringList compiledFiles = {u"*.qm"_s};

// The language of the sources, then the others in their order.
QList<Language> allLanguages()
{
    QList<Language> all(targetLanguages.begin(), targetLanguages.end());
    all.prepend(sourceLanguage);
    return all;
}

} // namespace

QStringList collectedFiles()
{
    return {u"*.ts"_s, u"*.qm"_s, u"*.xaml"_s, u"*.csv"_s};
}

QStringList matchingFiles(const QString &folder, const QStringList &patterns)
{
    return QDir(folder).entryList(patterns, QDir::Files | QDir::Hidden, QDir::Name);
}

bool makeWritable(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return true;
    const QFile::Permissions permissions = file.permissions();
    if (permissions & QFile::WriteOwner)
        return true;
    return file.setPermissions(permissions | QFile::WriteOwner);
}

bool copyWhole(const QString &source, const QString &target)
{
    const std::optional<QByteArray> bytes = Nvx::Util::readWholeFile(source);
    return bytes && makeWritable(target) && Nvx::Util::replaceWholeFile(target, *bytes);
}

LocaleFolders::LocaleFolders(const QString &root, Reporter &reporter)
    : m_hasRoot(!root.isEmpty())
    , m_folder(joinPath(root, u"Locale"_s))
    , m_reporter(reporter)
{
}

QString LocaleFolders::folder(const QString &locale) const
{
    return joinPath(m_folder, locale);
}

QString LocaleFolders::collected(const QString &code) const
{
    return joinPath(m_folder, u"collect/"_s + code);
}

void LocaleFolders::prepare()
{
    for (const Language &language : allLanguages()) {
        const QString path = folder(language.locale);
        if (!make(path))
            continue;
        const QStringList names = matchingFiles(path, compiledFiles);
        for (const QString &name : names)
            if (!makeWritable(joinPath(path, name)))
                m_reporter.log(LogLevel::failure, u"Permission fails:"_s + joinPath(path, name));
    }
}

bool LocaleFolders::make(const QString &folder)
{
    if (m_hasRoot && QDir().mkpath(folder))
        return true;
    m_reporter.log(LogLevel::failure, u"Permission fails:"_s + folder);
    return false;
}

void LocaleFolders::collect()
{
    for (const Language &language : allLanguages())
        collect(folder(language.locale), collected(language.translatorsCode));
}

void LocaleFolders::collect(const QString &source, const QString &target)
{
    if (!make(target))
        return;
    const QStringList names = matchingFiles(source, collectedFiles());
    const QSet<QString> current(names.begin(), names.end());
    const QStringList earlier = matchingFiles(target, collectedFiles());
    for (const QString &name : earlier) {
        const QString path = joinPath(target, name);
        if (!current.contains(name) && !(makeWritable(path) && QFile::remove(path)))
            m_reporter.log(LogLevel::failure, u"Permission fails:"_s + path);
    }
    for (const QString &name : names)
        if (!copyWhole(joinPath(source, name), joinPath(target, name)))
            m_reporter.log(LogLevel::failure, u"Permission fails:"_s + joinPath(target, name));
}

} // namespace Localization
