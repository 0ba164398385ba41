#pragma once

#include "support/test_folder.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Redirects the folders of the machine into a fresh folder for one test, and starts with an empty remembered
/// language and no recorded translators folder. The environment is as before when it ends.
class TestMachine
{
public:
    TestMachine();
    TestMachine(const TestMachine &) = delete;
    TestMachine &operator=(const TestMachine &) = delete;
    ~TestMachine();

    /// The path of something below the test's folder, named with "/".
    QString path(const QString &name) const { return m_folder.path(name); }

    /// The folder of the product, which exists.
    QString installDir() const { return path(QStringLiteral("NVX")); }

    /// Sets a variable of the environment until the end.
    void setVariable(const char *name, const QString &value);

    /// Removes a variable of the environment until the end.
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

/// Writes a file, making its folders. Ends the test program when that fails: nothing could be tested.
void writeFile(const QString &path, const QByteArray &contents = QByteArray());

/// The bytes of a file; a null array when it cannot be read.
QByteArray readFile(const QString &path);

/// The names of all that is in a folder, sorted, links and shortcuts that lead nowhere included.
QStringList namesIn(const QString &folder);

/// The lines of a log, each without its date and time, which are checked for their form; a line without them
/// stands as it is with "! " before it.
QStringList logLines(const QString &path);
