#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace Nvx::Util {

/// The translations of a program's interface into one language, in force while this object lives. A file that
/// is missing is passed over: what it would translate stays in English.
class Translators
{
public:
    /// Loads the catalogues of those names, "NAME.qm", and the toolkit's own, "qt.qm" or else the file named
    /// after the locale ("qt_de_DE.qm"), from the sub-folder of the folder that is named by the locale.
    Translators(const QString &folder, const QString &locale, const QStringList &catalogues);
    Translators(const Translators &) = delete;
    Translators &operator=(const Translators &) = delete;
    ~Translators();

private:
    void install(const QString &file);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Nvx::Util
