#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace Nvx::Util {

/// The translations of a program's interface into one language, installed for the lifetime of this object.
/// Missing files are skipped; their texts stay in English.
class Translators
{
public:
    /// Loads from the sub-folder named after the locale: the given catalogues ("NAME.qm"), and Qt's own,
    /// "qt.qm" or else the file named after the locale ("qt_de_DE.qm").
    Translators(const QString &folder, const QString &locale, const QStringList &catalogues);
    Translators(const Translators &) = delete;
    Translators &operator=(const Translators &) = delete;
    ~Translators();

private:
    void install(const QString &file);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Nvx::Util
