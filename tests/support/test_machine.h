#pragma once

#include "support/file_bytes.h"
#include "support/test_folder.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Redirects the machine's folders to a fresh folder for one test. No language is remembered and no
/// translators folder is set. The destructor restores the environment.
class TestMachine
{
public:
    TestMachine();
    TestMachine(const TestMachine &) = delete;
    TestMachine &operator=(const TestMachine &) = delete;
    ~TestMachine();

    /// The path of a file or folder in the test's folder; the name is separated by "/".
    QString path(const QString &name) const { return m_folder.path(name); }

    /// The product's folder, which exists.
    QString installDir() const { return path(QStringLiteral("NVX")); }

    /// Sets an environment variable until this object is destroyed.
    void setVariable(const char *name, const QString &value);

    /// Removes an environment variable until this object is destroyed.
    void unsetVariable(const char *name);

private:
    struct Saved
    {
        QByteArray name;
        QString value;
        bool wasSet;
    };

    void save(const char *name);

    TestFolder m_folder;
    QList<Saved> m_saved;
};

/// The lines of a log without their date and time, whose format is checked; a line without them is preceded
/// by "! ".
QStringList logLines(const QString &path);
