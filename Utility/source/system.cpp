#include "nvx_util/system.h"

#include "nvx_util/languages.h"
#include "nvx_util/product.h"
#include "nvx_util/registry_key.h"
#include "platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

namespace {

const auto localeValue = u"Locale"_s;

RegistryKey userSettings()
{
    return RegistryKey(
        u"HKEY_CURRENT_USER\\Software\\%1\\%2\\%3"_s.arg(Product::maker, Product::name, Product::version));
}

} // namespace

QString joinPath(const QString &folder, const QString &relativePath)
{
    const QString native = QDir::toNativeSeparators(relativePath);
    if (folder.endsWith(QDir::separator()))
        return folder + native;
    return folder + QDir::separator() + native;
}

QString System::getCurrentExePath()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
}

QString System::getUserDataPath()
{
    return joinPath(Platform::userDataRoot(), Product::maker + u'/' + Product::fullName);
}

QString System::getProgramDataPath(const QString &subPath)
{
    return joinPath(Platform::allUsersDataRoot(), Product::maker + u'/' + subPath);
}

QString System::getWorkingDirPath()
{
    return QDir::toNativeSeparators(QDir::currentPath());
}

QString System::getTutorialsDirPath()
{
    return joinPath(Platform::publicDocumentsRoot(),
                    u"%1/%2/Tutorials"_s.arg(Product::maker, Product::fullName));
}

QString System::getFlagsDirPath()
{
    return getProgramDataPath(Product::fullName);
}

bool System::makePath(const QString &path)
{
    return QDir().mkpath(path);
}

QStringList System::validLocales()
{
    QStringList locales;
    for (const Language &language : languages)
        locales.append(language.locale);
    return locales;
}

void System::setLocale(const QString &code)
{
    userSettings().setText(localeValue, code);
}

QString System::getLocale()
{
    const QString remembered = userSettings().text(localeValue).value_or(QString());
    return isLocaleName(remembered) ? remembered : supportedSystemLocale();
}

QString System::getEnv(const QString &name)
{
    return qEnvironmentVariable(name.toUtf8().constData());
}

QString System::getProgramFilesPathFromRegistry(bool thirtyTwoBit)
{
    const RegistryKey windows(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion"_s);
    const auto value = thirtyTwoBit ? u"ProgramFilesDir (x86)"_s : u"ProgramFilesDir"_s;
    return windows.text(value).value_or(QString());
}

void Registry::readKelvaneTranslatorsFolder(wchar_t *buffer, std::size_t capacity)
{
    if (capacity == 0)
        return;
    buffer[0] = L'\0';

    const RegistryKey translators(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators"_s);
    const QString folder = translators.text(u"Folder"_s).value_or(QString());
    if (static_cast<std::size_t>(folder.size()) >= capacity)
        return;
    const auto length = folder.toWCharArray(buffer);
    buffer[length] = L'\0';
}

bool isLocaleName(const QString &text)
{
    const auto fits = [](QChar c) { return c == u'-' || (c.unicode() < 128 && c.isLetterOrNumber()); };
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), fits);
}

QString supportedLocale(QString systemName)
{
    systemName.replace(u'_', u'-');
    return languageOf(systemName) ? systemName : QString(sourceLanguage.locale);
}

QString supportedSystemLocale()
{
    return supportedLocale(QLocale::system().name());
}

} // namespace Nvx::Util
