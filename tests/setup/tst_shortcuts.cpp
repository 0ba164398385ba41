#include "setup/setup_fixture.h"
#include "setup/shortcuts.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::ShellLink;

namespace {

QString letters(qsizetype count)
{
    return QString(count, QLatin1Char('x'));
}

} // namespace

class tst_shortcuts : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_desktop = m_fixture->test.path(text("Desktop"));
        m_link = m_fixture->test.path(text("Desktop/Velmora NVX 2017.lnk"));
        m_fixture->state.commonDesktop = m_desktop;
    }

    void anInstallPutsTheProductOnTheDesktop()
    {
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(m_fixture->machine.shellLinks.size(), 1);
        const ShellLink link = m_fixture->machine.shellLinks.first();
        QCOMPARE(link.target, m_fixture->installed("NVX.exe"));
        QCOMPARE(link.linkPath, m_link);
        QCOMPARE(link.description, text("Velmora NVX 2017"));
        QCOMPARE(link.workFolder, m_fixture->state.installDir);
        QCOMPARE(link.iconPath, QString());
        QCOMPARE(link.arguments, QString());
        QCOMPARE(lines(), QStringList({text("0 Desktop=") + m_desktop,
                                       text("0 Create shortcut ") + m_link + text(" Success")}));
        QCOMPARE(m_fixture->machine.associationNotices, 1);
    }

    void everyRunRemovesTheEarlierShortcut_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("writeProtected");
        QTest::newRow("install") << int(RunMode::Install) << false;
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << false;
        QTest::newRow("stop services") << int(RunMode::StopServices) << false;
        QTest::newRow("write-protected") << int(RunMode::Uninstall) << true;
    }

    void everyRunRemovesTheEarlierShortcut()
    {
        QFETCH(int, mode);
        QFETCH(bool, writeProtected);
        writeFile(m_link, "old");
        writeFile(m_fixture->test.path(text("Desktop/Velmora NVX 2018.lnk")), "another's");
        if (writeProtected)
            QFile::setPermissions(m_link, QFile::ReadOwner);
        QCOMPARE(run(static_cast<RunMode>(mode)), 0);
        // The recording machine makes no new one.
        QCOMPARE(namesIn(m_desktop), QStringList(text("Velmora NVX 2018.lnk")));
        QCOMPARE(m_fixture->machine.shellLinks.size(),
                 static_cast<RunMode>(mode) == RunMode::Install ? 1 : 0);
        QCOMPARE(m_fixture->machine.associationNotices, 1);
    }

    void aChangeOfLanguageRemovesAndMakesItAgain()
    {
        run(RunMode::Uninstall);
        run(RunMode::Install);
        QCOMPARE(m_fixture->machine.shellLinks.size(), 1);
        QCOMPARE(m_fixture->machine.associationNotices, 2);
        QCOMPARE(lines(), QStringList({text("0 Desktop=") + m_desktop, text("0 Desktop=") + m_desktop,
                                       text("0 Create shortcut ") + m_link + text(" Success")}));
    }

    void withoutADesktopFolderNothingIsTouched_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("install") << int(RunMode::Install);
        QTest::newRow("uninstall") << int(RunMode::Uninstall);
    }

    void withoutADesktopFolderNothingIsTouched()
    {
        QFETCH(int, mode);
        m_fixture->state.commonDesktop.clear();
        QCOMPARE(run(static_cast<RunMode>(mode)), 0);
        QVERIFY(m_fixture->machine.shellLinks.isEmpty());
        QCOMPARE(lines(),
                 QStringList({text("0 Desktop="),
                              text("1 There is no desktop folder of all users, it gets no shortcut")}));
        QCOMPARE(m_fixture->machine.associationNotices, 1);
    }

    void aLinkThatCannotBeRemovedIsLogged()
    {
        QVERIFY(QDir().mkpath(m_link)); // a folder has its name
        run(RunMode::Uninstall);
        QCOMPARE(lines().last(), text("1 Unable to remove ") + m_link);
    }

    void theResultOfTheShellIsTheLevel_data()
    {
        QTest::addColumn<qint32>("result");
        QTest::addColumn<QString>("line");
        QTest::newRow("success") << 0 << text("0 Create shortcut %1 Success");
        QTest::newRow("a result that is neither") << 1 << text("1 Create shortcut %1 Failed");
        QTest::newRow("no such folder")
            << static_cast<qint32>(0x80070003U) << text("-2147024893 Create shortcut %1 Failed");
        QTest::newRow("no shell links here")
            << Nvx::Util::shellLinksMissing << text("-2147467263 Create shortcut %1 Failed");
    }

    void theResultOfTheShellIsTheLevel()
    {
        QFETCH(qint32, result);
        QFETCH(QString, line);
        m_fixture->machine.shellLinkResult = result;
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(lines().last(), line.arg(m_link));
    }

    void everyTextOfALinkHasRoomFor259Characters_data()
    {
        QTest::addColumn<int>("place");
        QTest::newRow("target") << 0;
        QTest::newRow("link path") << 1;
        QTest::newRow("description") << 2;
        QTest::newRow("icon") << 3;
        QTest::newRow("arguments") << 4;
    }

    void everyTextOfALinkHasRoomFor259Characters()
    {
        QFETCH(int, place);
        QVERIFY(makeWith(place, letters(259)));
        for (const int tooMany : {260, 261, 100000}) {
            QVERIFY(!makeWith(place, letters(tooMany)));
            QVERIFY(m_fixture->machine.shellLinks.isEmpty());
        }
    }

    void aWorkFolderThatIsTooLongIsNotCutShort()
    {
        m_fixture->state.installDir = letters(260);
        createShortcut(m_fixture->context(), text("t"), text("l"), text("d"), QString(), QString());
        QVERIFY(m_fixture->machine.shellLinks.isEmpty());
        QVERIFY(lines().last().startsWith(text("-2147024690 Create shortcut ")));
    }

    void aTextThatIsTooLongIsNamedInTheLog()
    {
        createShortcut(m_fixture->context(), letters(260), m_link, text("d"), QString(), QString());
        QCOMPARE(lines(), QStringList({text("1 This text is too long for a shortcut: ") + letters(260),
                                       text("-2147024690 Create shortcut ") + m_link + text(" Failed")}));
    }

private:
    int run(RunMode mode) { return createShortcuts(m_fixture->context(), mode); }

    const QStringList &lines() const { return m_fixture->reporter.lines; }

    // Makes a shortcut that has this text in one place; true when the machine was asked for it, whole.
    bool makeWith(int place, const QString &wanted)
    {
        QStringList texts = {text("t"), text("l"), text("d"), text("i"), text("a")};
        texts[place] = wanted;
        m_fixture->machine.shellLinks.clear();
        createShortcut(m_fixture->context(), texts[0], texts[1], texts[2], texts[3], texts[4]);
        if (lines().last().endsWith(text(" Failed")) || m_fixture->machine.shellLinks.isEmpty())
            return false;
        const ShellLink link = m_fixture->machine.shellLinks.first();
        return texts ==
               QStringList({link.target, link.linkPath, link.description, link.iconPath, link.arguments});
    }

    std::unique_ptr<SetupFixture> m_fixture;
    QString m_desktop;
    QString m_link;
};

NVX_GUILESS_TEST(tst_shortcuts)
#include "tst_shortcuts.moc"
