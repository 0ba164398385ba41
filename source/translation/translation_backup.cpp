#include "translation/translation_backup.h"

#include "nvx_util/whole_file.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace Translation {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TranslationBackup)
};

QString copyName(const QString &fileName, int number)
{
    const QString first = fileName + u".before"_s;
    return number == 1 ? first : first + u'.' + QString::number(number);
}

} // namespace

std::optional<QString> backUpFile(const QString &fileName)
{
    const std::optional<QByteArray> contents = Nvx::Util::readWholeFile(fileName);
    if (!contents)
        return std::nullopt;
    for (int number = 1;; ++number) {
        const QString copy = copyName(fileName, number);
        if (!QFile::exists(copy))
            return Nvx::Util::copyToFreeName(fileName, copy) ? std::optional(copy) : std::nullopt;
        if (Nvx::Util::readWholeFile(copy) == contents)
            return copy;
    }
}

QString backupText(const QString &copy)
{
    return Texts::tr("Plural forms were dropped; the previous file is kept as %1").arg(copy);
}

} // namespace Translation
