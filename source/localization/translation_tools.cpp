#include "localization/translation_tools.h"

#include "localization/locale_folders.h"
#include "nvx_util/system.h"
#include "run/reporter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Localization {

namespace {

// The file is next to the real one, because the tool writes paths relative to it. It has the same suffix,
// because the tool derives the format from it.
QString draftOf(const QString &path)
{
    const QFileInfo file(path);
    const QString name = file.completeBaseName() + u".new."_s + file.suffix();
    return QDir::toNativeSeparators(file.dir().filePath(name));
}

} // namespace

TranslationTools::TranslationTools(const StepContext &context, const QString &toolsFolder)
    : m_context(context)
    , m_runner(context)
    , m_toolsFolder(toolsFolder)
{
}

bool TranslationTools::hasTools() const
{
    return QDir::isAbsolutePath(m_toolsFolder);
}

QString TranslationTools::find(const QString &name) const
{
    const QString tool = QStandardPaths::findExecutable(name, {m_toolsFolder});
    // A missing tool is run all the same, so that the failure is in the log.
    return tool.isEmpty() ? Nvx::Util::joinPath(m_toolsFolder, name) : QDir::toNativeSeparators(tool);
}

bool TranslationTools::copy(const QString &source, const QString &target)
{
    const bool copied = copyWhole(source, target);
    if (!copied)
        m_context.reporter.log(LogLevel::failure, u"Permission fails:"_s + target);
    return copied;
}

bool TranslationTools::run(const QString &tool, const QStringList &arguments, const QString &workFolder)
{
    return m_runner.runCommand(find(tool), arguments, workFolder, timeLimitMs) == 0;
}

bool TranslationTools::update(const QString &project, const QString &translations)
{
    if (!hasTools())
        return false;
    const QString draft = draftOf(translations);
    QFile::remove(draft);
    if (QFile::exists(translations) && !copy(translations, draft))
        return false;
    const QString projectFolder = QDir::toNativeSeparators(QFileInfo(project).path());
    const bool updated =
        run(u"lupdate"_s, {project, u"-ts"_s, draft}, projectFolder) && copy(draft, translations);
    QFile::remove(draft);
    return updated;
}

bool TranslationTools::release(const QString &translations, const QString &compiled)
{
    if (!hasTools())
        return false;
    const QString draft = draftOf(compiled);
    QFile::remove(draft);
    const QString folder = QDir::toNativeSeparators(QFileInfo(translations).path());
    const bool released =
        run(u"lrelease"_s, {translations, u"-qm"_s, draft}, folder) && copy(draft, compiled);
    QFile::remove(draft);
    return released;
}

} // namespace Localization
