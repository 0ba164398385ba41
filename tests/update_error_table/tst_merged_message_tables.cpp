#include "clt_message_table.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "update_error_table/update_error_table.h"

#include <QProcess>
#include <QTest>
#include <QTextStream>

#include <memory>
#include <random>
#include <set>

using namespace Qt::Literals::StringLiterals;
using UpdateTable::ExitCode;

namespace {

/// The command of the merge driver in docs/update-error-table.md.
const QString driver = u"sh ./merge-message-tables %O %A %B"_s;

/// The script there that it starts.
QByteArray driverScript()
{
    const QByteArray begin = "<!-- file: merge-message-tables -->\n```sh\n";
    const QByteArray document = readFile(inCheckout(DOCUMENT));
    const qsizetype from = document.indexOf(begin) + begin.size();
    return document.mid(from, document.indexOf("```", from) - from);
}

QByteArray function(const QByteArray &name, const QByteArray &calls)
{
    return "void Flow::" + name + "()\n{\n" + calls + "}\n";
}

Clt::Message message(const QString &context, const QString &tag, const QString &text)
{
    Clt::Message message;
    message.setKey({tag, context, u"client"_s});
    message.setText(text);
    return message;
}

} // namespace

/// Two branches change a message table, and git merges them.
class tst_merged_message_tables : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_folder->path());
        environment.insert(u"GIT_CONFIG_NOSYSTEM"_s, u"1"_s);
        for (const char *who : {"AUTHOR", "COMMITTER"}) {
            environment.insert(u"GIT_%1_NAME"_s.arg(QLatin1StringView(who)), u"Tester"_s);
            environment.insert(u"GIT_%1_EMAIL"_s.arg(QLatin1StringView(who)), u"tester@velmora.example"_s);
        }
        m_git.setProcessEnvironment(environment);
        m_git.setWorkingDirectory(m_folder->path());

        writeFile(path("client.vcxproj"), "<Project><PropertyGroup Label=\"Globals\"><RootNamespace>client"
                                          "</RootNamespace></PropertyGroup><ItemGroup><ClCompile "
                                          "Include=\"source\\*.cpp\"/></ItemGroup></Project>");
        writeFile(path("merge-message-tables"), driverScript());
        for (const char *name : {"a", "m", "z"})
            writeFile(source(name), function(name, "    REPORT_ERROR(\"Old\");\n"));
        QCOMPARE(synchronize(), ExitCode::Done);
        QVERIFY(git({u"init"_s, u"--quiet"_s, u"--initial-branch=main"_s}));
        commit();
    }

    void theDocumentationHasTheDriver()
    {
        QVERIFY(readFile(inCheckout(DOCUMENT)).contains('"' + driver.toUtf8() + '"'));
    }

    void messagesInDifferentPlacesAreMerged()
    {
        branch(u"one"_s, [this] { writeFile(source("b"), function("b", "    REPORT_ERROR(\"B\");\n")); });
        branch(u"two"_s, [this] { writeFile(source("x"), function("x", "    REPORT_ERROR(\"X\");\n")); });
        QVERIFY(git({u"merge"_s, u"--quiet"_s, u"two"_s}));
        QCOMPARE(tags(), QStringList({u"a Old"_s, u"b B"_s, u"m Old"_s, u"x X"_s, u"z Old"_s}));
        const QByteArray merged = readFile(path("errors.xml"));
        QCOMPARE(synchronize(), ExitCode::Done);
        QCOMPARE(readFile(path("errors.xml")), merged);
    }

    void eitherSideOfAConflictHasAllMessagesAfterASynchronisation_data()
    {
        QTest::addColumn<QString>("side");
        QTest::addColumn<QString>("other");
        QTest::newRow("ours") << u"--ours"_s
                              << Clt::MessageKey{u"C"_s, u"Flow::c"_s, u"client"_s}.displayText();
        QTest::newRow("theirs") << u"--theirs"_s
                                << Clt::MessageKey{u"B"_s, u"Flow::b"_s, u"client"_s}.displayText();
    }

    void eitherSideOfAConflictHasAllMessagesAfterASynchronisation()
    {
        QFETCH(const QString, side);
        QFETCH(const QString, other);
        makeNeighbours();
        QVERIFY(!git({u"merge"_s, u"--quiet"_s, u"two"_s}));
        const QByteArray conflict = readFile(path("errors.xml"));
        QVERIFY2(conflict.contains("<<<<<<<"), conflict.constData());
        QCOMPARE(synchronize(), ExitCode::Failed);
        QVERIFY2(m_errors.contains(u"errors.xml"_s), qPrintable(m_errors));
        QCOMPARE(readFile(path("errors.xml")), conflict);

        QVERIFY(git({u"checkout"_s, u"--quiet"_s, side, u"errors.xml"_s}));
        QCOMPARE(synchronize(), ExitCode::Done);
        QVERIFY2(m_errors.contains(u": new message "_s + other), qPrintable(m_errors));
        QCOMPARE(tags(), QStringList({u"a Old"_s, u"b B"_s, u"c C"_s, u"m Old"_s, u"z Old"_s}));
        commit();
    }

    void theDriverKeepsTheMessagesAndTextsOfBothSides()
    {
        useDriver();
        makeNeighbours();
        QVERIFY(git({u"merge"_s, u"--quiet"_s, u"two"_s}));
        QCOMPARE(synchronize(), ExitCode::Done);
        QCOMPARE(tags(), QStringList({u"a Old"_s, u"b B"_s, u"c C"_s, u"m Old"_s, u"z Old"_s}));
        Clt::MessageTable table;
        QVERIFY(table.load(path("errors.xml")));
        QCOMPARE(table.message({u"B"_s, u"Flow::b"_s, u"client"_s}).text(), u"text of B"_s);
        QCOMPARE(table.message({u"C"_s, u"Flow::c"_s, u"client"_s}).text(), u"text of C"_s);
        QVERIFY(!QFile::exists(path("errors.xml.before")));
    }

    void aTextThatBothSidesChangedIsNotLost()
    {
        useDriver();
        branch(u"one"_s, [this] { setText(u"Flow::m"_s, u"Old"_s, u"one"_s); });
        branch(u"two"_s, [this] { setText(u"Flow::m"_s, u"Old"_s, u"two"_s); });
        QVERIFY(!git({u"merge"_s, u"--quiet"_s, u"two"_s}));
        const QByteArray merged = readFile(path("errors.xml"));
        QVERIFY(merged.contains("<text>one</text>"));
        QVERIFY(merged.contains("<text>two</text>"));
        QCOMPARE(synchronize(), ExitCode::Done);
        QVERIFY2(m_errors.contains(u"it occurs again in line"_s), qPrintable(m_errors));
        QCOMPARE(readFile(path("errors.xml.before")), merged);
    }

    // Without the driver, git gives the changed severity to the new message.
    void aChangedMessageIsNotMixedWithANewOneBeforeIt()
    {
        Clt::MessageTable base;
        base.insert(message(u"Flow::f"_s, u"T"_s, u"text of T"_s));
        Clt::MessageTable ours = base;
        ours.insert(message(u"Flow::f"_s, u"A"_s, QString()));
        Clt::MessageTable theirs = base;
        Clt::Message changed = base.begin()->second;
        changed.setSeverity(Clt::Severity::Warning);
        theirs.insert(changed);
        QVERIFY(mergeWithDriver(base, ours, theirs));

        Clt::MessageTable merged;
        QVERIFY(merged.load(path("ours.xml")));
        QCOMPARE(merged.size(), std::size_t(2));
        QCOMPARE(merged.begin()->second.severity(), Clt::Severity::Information);
        QCOMPARE(merged.message(changed.key()).severity(), Clt::Severity::Warning);
        // The driver leaves nothing else behind.
        QCOMPARE(namesIn(m_folder->path()).filter(u"ours"_s), QStringList(u"ours.xml"_s));
    }

    void aTableOfAnotherFormIsMergedByGit()
    {
        const QByteArray message = "<message severity=\"Status\"></message>";
        const QByteArray table = "<messageTable>\n" + message + message + "\n</messageTable>\n";
        writeFile(path("base.xml"), table);
        writeFile(path("ours.xml"), table);
        writeFile(path("theirs.xml"), QByteArray(table).replace("Status", "Warning"));
        QVERIFY(runDriver());
        QCOMPARE(readFile(path("ours.xml")), readFile(path("theirs.xml")));
    }

    void randomTablesAreNeverMergedIntoBrokenOnes()
    {
        constexpr int count = 60;
        std::mt19937 numbers(17);
        int conflicts = 0;
        for (int round = 0; round < count; ++round) {
            const Keys base = add(Keys(), 100, numbers);
            const Keys ours = add(base, 5, numbers);
            const Keys theirs = add(base, 5, numbers);
            Keys all = ours;
            all.insert(theirs.begin(), theirs.end());
            QVERIFY(mergeWithDriver(tableOf(base), tableOf(ours), tableOf(theirs)));
            QCOMPARE(keysIn("ours.xml"), all);

            QVERIFY(tableOf(ours).save(path("ours.xml")));
            const bool merged =
                git({u"merge-file"_s, u"--quiet"_s, u"ours.xml"_s, u"base.xml"_s, u"theirs.xml"_s});
            conflicts += merged ? 0 : 1;
            if (merged)
                QCOMPARE(keysIn("ours.xml"), all);
        }
        qInfo("%d of %d merges of 5 and 5 messages into 100 are conflicts", conflicts, count);
        QVERIFY(conflicts > 0 && conflicts < count);
    }

    void theDriverMergesRandomChangesExactly()
    {
        std::mt19937 numbers(18);
        for (int round = 0; round < 40; ++round) {
            const Keys keys = add(Keys(), 30, numbers);
            const Clt::MessageTable base = tableOf(keys);
            Clt::MessageTable ours = tableOf(add(keys, 5, numbers));
            Clt::MessageTable theirs = tableOf(add(keys, 5, numbers));
            Clt::MessageTable all = ours;
            all.merge(Clt::MessageTable(theirs));
            for (const auto &[key, message] : base) {
                if (const unsigned number = numbers() % 4; number < 2) {
                    const Clt::Message changed = randomChange(message, numbers);
                    (number == 0 ? ours : theirs).insert(changed);
                    all.insert(changed);
                }
            }
            QVERIFY(mergeWithDriver(base, ours, theirs));
            Clt::MessageTable merged;
            QVERIFY(merged.load(path("ours.xml")) && merged.leftovers().isEmpty());
            QVERIFY(merged.save(path("ours.xml")) && all.save(path("all.xml")));
            QCOMPARE(readFile(path("ours.xml")), readFile(path("all.xml")));
        }
    }

private:
    using Keys = std::set<std::pair<QString, QString>>; // context and tag

    QString path(const char *name) const { return m_folder->path(QString::fromLatin1(name)); }
    QString source(const char *name) const
    {
        return m_folder->path(u"source/%1.cpp"_s.arg(QLatin1StringView(name)));
    }

    bool git(const QStringList &arguments)
    {
        m_git.start(u"git"_s, arguments);
        return m_git.waitForFinished() && m_git.exitStatus() == QProcess::NormalExit && m_git.exitCode() == 0;
    }

    bool runDriver()
    {
        m_git.start(u"sh"_s, {u"./merge-message-tables"_s, u"base.xml"_s, u"ours.xml"_s, u"theirs.xml"_s});
        return m_git.waitForFinished() && m_git.exitStatus() == QProcess::NormalExit && m_git.exitCode() == 0;
    }

    /// Merges into ours.xml.
    bool mergeWithDriver(Clt::MessageTable base, Clt::MessageTable ours, Clt::MessageTable theirs)
    {
        return base.save(path("base.xml")) && ours.save(path("ours.xml")) &&
               theirs.save(path("theirs.xml")) && runDriver();
    }

    static Clt::Message randomChange(Clt::Message message, std::mt19937 &numbers)
    {
        switch (numbers() % 4) {
        case 0:
            message.setSeverity(Clt::Severity::Warning);
            break;
        case 1:
            message.setSeverity(Clt::Severity::Critical);
            message.setTitle(u"title"_s);
            break;
        case 2:
            message.setText(u"two\nlines"_s);
            break;
        default:
            message.setState(Clt::MessageState::Obsolete);
            break;
        }
        return message;
    }

    void commit()
    {
        QVERIFY(git({u"add"_s, u"--all"_s}));
        QVERIFY2(git({u"commit"_s, u"--quiet"_s, u"--message=Change"_s}),
                 m_git.readAllStandardError().constData());
    }

    /// Changes the files on a new branch of main.
    template<typename Change>
    void branch(const QString &name, Change change)
    {
        QVERIFY(git({u"checkout"_s, u"--quiet"_s, u"-b"_s, name, u"main"_s}));
        change();
        QCOMPARE(synchronize(), ExitCode::Done);
        commit();
        if (name == "two"_L1)
            QVERIFY(git({u"checkout"_s, u"--quiet"_s, u"one"_s}));
    }

    /// Two branches with a new message each, with their texts, next to each other in the table.
    void makeNeighbours()
    {
        branch(u"one"_s, [this] { addMessage("b", u"B"_s); });
        branch(u"two"_s, [this] { addMessage("c", u"C"_s); });
    }

    void addMessage(const char *name, const QString &tag)
    {
        writeFile(source(name), function(name, "    REPORT_ERROR(\"" + tag.toUtf8() + "\");\n"));
        QCOMPARE(synchronize(), ExitCode::Done);
        setText(u"Flow::"_s + QLatin1StringView(name), tag, u"text of "_s + tag);
    }

    void setText(const QString &context, const QString &tag, const QString &text)
    {
        Clt::MessageTable table;
        QVERIFY(table.load(path("errors.xml")));
        table.insert(message(context, tag, text));
        QVERIFY(table.save(path("errors.xml")));
    }

    void useDriver()
    {
        writeFile(path(".gitattributes"), "errors.xml merge=messagetable\n");
        QVERIFY(git({u"config"_s, u"merge.messagetable.driver"_s, driver}));
        commit();
    }

    ExitCode synchronize()
    {
        QString text;
        m_errors.clear();
        QTextStream output(&text);
        QTextStream errors(&m_errors);
        return UpdateTable::runUpdateErrorTable({u"-sync"_s, path("errors.xml"), path("client.vcxproj")},
                                                output, errors, UpdateTable::OutputDevice::FileOrPipe);
    }

    QStringList tags() const
    {
        Clt::MessageTable table;
        if (!table.load(path("errors.xml")))
            return {u"not loaded"_s};
        QStringList tags;
        for (const auto &[key, message] : table)
            tags.append(key.context.section(u"::"_s, 1) + u' ' + key.tag);
        return tags;
    }

    static Keys add(Keys keys, int count, std::mt19937 &numbers)
    {
        for (int added = 0; added < count; ++added)
            keys.insert({u"Flow::C%1::f"_s.arg(numbers() % 20), u"Tag%1"_s.arg(numbers() % 1000)});
        return keys;
    }

    static Clt::MessageTable tableOf(const Keys &keys)
    {
        Clt::MessageTable table;
        for (const auto &[context, tag] : keys)
            table.insert(message(context, tag, u"text of "_s + tag));
        return table;
    }

    /// The keys of a table; none if it is not one, or has a key twice or with parts of two messages.
    Keys keysIn(const char *name) const
    {
        Clt::MessageTable table;
        if (!table.load(path(name)) || !table.leftovers().isEmpty())
            return {};
        Keys keys;
        for (const auto &[key, message] : table) {
            if (message.text() == u"text of "_s + key.tag)
                keys.insert({key.context, key.tag});
        }
        return keys;
    }

    std::unique_ptr<TestFolder> m_folder;
    QProcess m_git;
    QString m_errors; // of the last synchronisation
};

NVX_GUILESS_TEST(tst_merged_message_tables)

#include "tst_merged_message_tables.moc"
