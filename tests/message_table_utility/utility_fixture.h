#pragma once

#include "clt_message_table.h"
#include "message_table_utility/error_message_table_utility.h"
#include "support/file_bytes.h"
#include "support/recording_dialogs.h"
#include "support/test_folder.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QStatusBar>
#include <QTableView>

/// A message with the key and state.
inline Clt::Message messageOf(const char *process, const char *context, const char *tag,
                              Clt::MessageState state = Clt::MessageState::InSync)
{
    Clt::Message message;
    message.setKey({QString::fromUtf8(tag), QString::fromUtf8(context), QString::fromUtf8(process)});
    message.setState(state);
    return message;
}

/// A table of so many messages.
inline Clt::MessageTable tableOf(int count)
{
    Clt::MessageTable table;
    for (int number = 0; number < count; ++number) {
        const QByteArray tag = "Tag" + QByteArray::number(number).rightJustified(7, '0');
        Clt::Message message = messageOf("client", "Flow::Solver::start", tag.constData());
        message.setText(QStringLiteral("Text of message %1").arg(number));
        table.insert(message);
    }
    return table;
}

/// The window with all that it needs, and a table file of three messages, one of each state.
struct UtilityFixture
{
    UtilityFixture()
    {
        QDir().mkdir(folder.path(QStringLiteral("project")));
        Clt::MessageTable table;
        table.insert(messageOf("solver", "A::run", "Zulu"));
        table.insert(messageOf("client", "B::run", "Alpha", Clt::MessageState::New));
        table.insert(messageOf("client", "A::run", "Bravo", Clt::MessageState::Obsolete));
        if (!table.save(tableFile))
            qFatal("cannot save the table");
        window.setProgressDelay(0);
    }

    QAction *action(const char *name) { return window.findChild<QAction *>(QLatin1String(name)); }
    bool isEnabled(const char *name) { return action(name)->isEnabled(); }
    QString status() { return window.statusBar()->currentMessage(); }
    QTableView *view() { return window.findChild<QTableView *>(QStringLiteral("tableWidget")); }

    /// The rows that are shown, each as "process|context|tag|state".
    QStringList shownRows()
    {
        QStringList rows;
        const QAbstractItemModel *model = view()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells.append(model->index(row, column).data().toString());
            rows.append(cells.join(u'|'));
        }
        return rows;
    }

    /// What the table file of the fixture shows.
    static QStringList tableRows()
    {
        return {QStringLiteral("client|A::run|Bravo|Obsolete"), QStringLiteral("client|B::run|Alpha|New"),
                QStringLiteral("solver|A::run|Zulu|InSync")};
    }

    /// Writes a source file of the project.
    void writeSource(const QString &name, const QByteArray &text) const
    {
        if (!writeBytes(folder.path(QStringLiteral("project/") + name), text))
            qFatal("cannot write a source file");
    }

    /// Writes the project, which compiles those files, and takes it for the answer of the next dialog.
    void chooseProject(const QStringList &sourceFiles)
    {
        QByteArray items;
        for (const QString &file : sourceFiles)
            items += "<ClCompile Include=\"" + file.toUtf8() + "\"/>";
        if (!writeBytes(projectFile, "<Project><PropertyGroup Label=\"Globals\"><RootNamespace>new_client"
                                     "</RootNamespace></PropertyGroup><ItemGroup>" +
                                         items + "</ItemGroup></Project>"))
            qFatal("cannot write the project");
        dialogs.fileToChoose = projectFile;
    }

    /// Writes a project that compiles one source file with a message so many times, and chooses it.
    void chooseLargeProject(int files)
    {
        const QString name = QStringLiteral("source.cpp");
        writeSource(name, "void f() { REPORT_ERROR(\"One\"); }" + QByteArray(200'000, ';'));
        chooseProject(QStringList(files, name));
    }

    TestFolder folder;
    QString tableFile = folder.path(QStringLiteral("errors.xml"));
    QString otherFile = folder.path(QStringLiteral("other.xml"));
    QString projectFile = folder.path(QStringLiteral("project/client.vcxproj"));
    QString translationFile = folder.path(QStringLiteral("client_de.ts"));
    QSettings settings{folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat};
    RecordingDialogs dialogs;
    MessageTableUtility window{dialogs, settings};
};
