#pragma once

#include "clt_message_table.h"
#include "message_table_utility/error_message_table_utility.h"
#include "window/window_fixture.h"

/// A message with the key and state.
inline Clt::Message messageOf(const char *process, const char *context, const char *tag,
                              Clt::MessageState state = Clt::MessageState::InSync)
{
    Clt::Message message;
    message.setKey({QString::fromUtf8(tag), QString::fromUtf8(context), QString::fromUtf8(process)});
    message.setState(state);
    return message;
}

/// A table with that number of messages.
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

/// A source file with one message.
inline const QByteArray oneMessageSource = "void f() { REPORT_ERROR(\"One\"); }";

/// The window and a table file with one message of each state.
struct UtilityFixture : WindowFixture<MessageTableUtility>
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

    /// The rows of the table file as "PROCESS|CONTEXT|TAG|STATE".
    static QStringList tableRows()
    {
        using namespace Qt::Literals::StringLiterals;
        return {u"client|A::run|Bravo|Obsolete"_s, u"client|B::run|Alpha|New"_s,
                u"solver|A::run|Zulu|InSync"_s};
    }

    bool areTableActionsEnabled(bool areEnabled)
    {
        return WindowFixture::areTableActionsEnabled(areEnabled, {"actionSynchronize", "actionTranslate"});
    }

    /// Writes a source file of the project.
    void writeSource(const QString &name, const QByteArray &text) const
    {
        if (!writeBytes(folder.path(QStringLiteral("project/") + name), text))
            qFatal("cannot write a source file");
    }

    /// Writes a project with those files and chooses it in the next dialog.
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

    /// The same with one file, whose text is given.
    void chooseProjectOf(const QByteArray &source)
    {
        const QString name = QStringLiteral("a.cpp");
        writeSource(name, source);
        chooseProject({name});
    }

    /// Writes a project with that number of entries for the same large source file, which has one message,
    /// and chooses it in the next dialog.
    void chooseLargeProject(int files)
    {
        const QString name = QStringLiteral("source.cpp");
        writeSource(name, oneMessageSource + QByteArray(200'000, ';'));
        chooseProject(QStringList(files, name));
    }

    QString tableFile = folder.path(QStringLiteral("errors.xml"));
    QString otherFile = folder.path(QStringLiteral("other.xml"));
    QString projectFile = folder.path(QStringLiteral("project/client.vcxproj"));
    QString translationFile = folder.path(QStringLiteral("client_de.ts"));
};
