#include "support/test_machine.h"

#include "nvx_util/registry_key.h"

#include <QDir>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

TestMachine::TestMachine()
{
    setVariable("NVX_MACHINE", m_folder.path());
    setVariable("APPDATA", path(u"AppData"_s));
    setVariable("ProgramData", path(u"ProgramData"_s));
    setVariable("PUBLIC", path(u"Public"_s));
    unsetVariable("OSTRADE2017TEMP");
    Nvx::Util::RegistryKey(u"HKEY_CURRENT_USER\\Software\\Velmora\\NVX\\17.2"_s).removeValue(u"Locale"_s);
    Nvx::Util::RegistryKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators"_s)
        .removeValue(u"Folder"_s);
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

QStringList logLines(const QString &path)
{
    static const QRegularExpression stamped(
        u"^[A-Z][a-z]{2} [A-Z][a-z]{2} [ \\d]?\\d \\d\\d:\\d\\d:\\d\\d \\d{4} (.*)$"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QStringList lines;
    const QStringList written = QString::fromUtf8(readFile(path)).remove(u'\r').split(u'\n');
    for (const QString &line : written) {
        const QRegularExpressionMatch match = stamped.match(line);
        if (match.hasMatch())
            lines.append(match.captured(1));
        else if (!line.isEmpty())
            lines.append(u"! "_s + line);
    }
    return lines;
}
