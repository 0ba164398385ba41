#include "translation/translation_kept_file.h"

#include "nvx_util/whole_file.h"

#include <QCoreApplication>
#include <QFile>

namespace Error {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TranslationKeptFile)
};

QString copyName(const QString &fileName, int number)
{
    const QString first = fileName + QStringLiteral(".before");
    return number == 1 ? first : first + u'.' + QString::number(number);
}

} // namespace

std::optional<QString> keepEarlierFile(const QString &fileName)
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

QString keptFileText(const QString &copy)
{
    return Texts::tr("Plural forms were dropped; the old file is %1").arg(copy);
}

} // namespace Error
