#include "support/test_machine.h"

#include "nvx_util/registry_key.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

TestMachine::TestMachine()
{
    setVariable("NVX_MACHINE", m_folder.path());
    setVariable("APPDATA", path(QStringLiteral("AppData")));
    setVariable("ProgramData", path(QStringLiteral("ProgramData")));
    setVariable("PUBLIC", path(QStringLiteral("Public")));
    unsetVariable("OSTRADE2017TEMP");
    Nvx::Util::RegistryKey(QStringLiteral("HKEY_CURRENT_USER\\Software\\Velmora\\NVX\\17.2"))
        .removeValue(QStringLiteral("Locale"));
    Nvx::Util::RegistryKey(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators"))
        .removeValue(QStringLiteral("Folder"));
    QDir().mkpath(installDir());
}

TestMachine::~TestMachine()
{
    for (auto saved = m_saved.rbegin(); saved != m_saved.rend(); ++saved) {
        if (saved->wasSet)
            qputenv(saved->name.constData(), saved->value.toLocal8Bit());
        else
            qunsetenv(saved->name.constData());
    }
}

void TestMachine::save(const char *name)
{
    m_saved.append({QByteArray(name), qEnvironmentVariable(name), qEnvironmentVariableIsSet(name)});
}

void TestMachine::setVariable(const char *name, const QString &value)
{
    save(name);
    qputenv(name, value.toLocal8Bit());
}

void TestMachine::unsetVariable(const char *name)
{
    save(name);
    qunsetenv(name);
}

void writeFile(const QString &path, const QByteArray &contents)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

QStringList logLines(const QString &path)
{
    static const QRegularExpression stamped(
        QStringLiteral("^[A-Z][a-z]{2} [A-Z][a-z]{2} [ \\d]?\\d \\d\\d:\\d\\d:\\d\\d \\d{4} (.*)$"),
        QRegularExpression::DotMatchesEverythingOption);
    QStringList lines;
    const QStringList written =
        QString::fromUtf8(readFile(path)).remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
    for (const QString &line : written) {
        const QRegularExpressionMatch match = stamped.match(line);
        if (match.hasMatch())
            lines.append(match.captured(1));
        else if (!line.isEmpty())
            lines.append(QStringLiteral("! ") + line);
    }
    return lines;
}
