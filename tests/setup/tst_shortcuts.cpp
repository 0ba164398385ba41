#include "setup/setup_fixture.h"
#include "setup/shortcuts.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using Nvx::Util::ShellLink;
using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

namespace {

QString letters(qsizetype count)
{
    return QString(count, u'x');
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
        m_desktop = m_fixture->test.path(u"Desktop"_s);
        m_link = m_fixture->test.path(u"Desktop/Velmora NVX 2017.lnk"_s);
        m_fixture->state.commonDesktop = m_desktop;
    }

    void anInstallCreatesTheShortcut()
    {
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(m_fixture->machine.shellLinks.size(), 1);
        const ShellLink link = m_fixture->machine.shellLinks.first();
        QCOMPARE(link.target, m_fixture->installed("NVX.exe"));
        QCOMPARE(link.linkPath, m_link);
        QCOMPARE(link.description, u"Velmora NVX 2017"_s);
        QCOMPARE(link.workFolder, m_fixture->state.installDir);
        QCOMPARE(link.iconPath, QString());
        QCOMPARE(link.arguments, QString());
        QCOMPARE(lines(), QStringList({u"0 Desktop="_s + m_desktop,
                                       u"0 Create shortcut "_s + m_link + u" Success"_s}));
        QCOMPARE(m_fixture->machine.associationNotices, 1);
    }

    void everyModeRemovesTheOldShortcut_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("writeProtected");
        QTest::newRow("install") << int(RunMode::Install) << false;
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << false;
        QTest::newRow("stop services") << int(RunMode::StopServices) << false;
        QTest::newRow("write-protected") << int(RunMode::Uninstall) << true;
    }

    void everyModeRemovesTheOldShortcut()
    {
        QFETCH(int, mode);
        QFETCH(bool, writeProtected);
        writeFile(m_link, "old");
        writeFile(m_fixture->test.path(u"Desktop/Velmora NVX 2018.lnk"_s), "foreign");
        if (writeProtected)
            QFile::setPermissions(m_link, QFile::ReadOwner);
        QCOMPARE(run(static_cast<RunMode>(mode)), 0);
        // The recording machine does not create the file.
        QCOMPARE(namesIn(m_desktop), QStringList(u"Velmora NVX 2018.lnk"_s));
        QCOMPARE(m_fixture->machine.shellLinks.size(),
                 static_cast<RunMode>(mode) == RunMode::Install ? 1 : 0);
        QCOMPARE(m_fixture->machine.associationNotices, 1);
    }

    void aChangeOfLanguageCreatesTheShortcutAgain()
    {
        run(RunMode::Uninstall);
        run(RunMode::Install);
        QCOMPARE(m_fixture->machine.shellLinks.size(), 1);
        QCOMPARE(m_fixture->machine.associationNotices, 2);
        QCOMPARE(lines(), QStringList({u"0 Desktop="_s + m_desktop, u"0 Desktop="_s + m_desktop,
                                       u"0 Create shortcut "_s + m_link + u" Success"_s}));
    }

    void withoutADesktopFolderNoShortcutIsCreated_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("install") << int(RunMode::Install);
        QTest::newRow("uninstall") << int(RunMode::Uninstall);
    }

    void withoutADesktopFolderNoShortcutIsCreated()
    {
        QFETCH(int, mode);
        m_fixture->state.commonDesktop.clear();
        QCOMPARE(run(static_cast<RunMode>(mode)), 0);
        QVERIFY(m_fixture->machine.shellLinks.isEmpty());
        QCOMPARE(lines(),
                 QStringList({u"0 Desktop="_s,
                              u"1 The shared desktop folder was not found; no shortcut was created"_s}));
        QCOMPARE(m_fixture->machine.associationNotices, 1);
    }

    void aLinkThatCannotBeRemovedIsLogged()
    {
        QVERIFY(QDir().mkpath(m_link)); // a folder has its name
        run(RunMode::Uninstall);
        QCOMPARE(lines().last(), u"1 Unable to remove "_s + m_link);
    }

    void theShellsResultIsTheLevel_data()
    {
        QTest::addColumn<qint32>("result");
        QTest::addColumn<QString>("line");
        QTest::newRow("success") << 0 << u"0 Create shortcut %1 Success"_s;
        QTest::newRow("a positive result") << 1 << u"1 Create shortcut %1 Failed"_s;
        QTest::newRow("no such folder")
            << static_cast<qint32>(0x80070003U) << u"-2147024893 Create shortcut %1 Failed"_s;
        QTest::newRow("a machine without shell links")
            << Nvx::Util::shellLinksMissing << u"-2147467263 Create shortcut %1 Failed"_s;
    }

    void theShellsResultIsTheLevel()
    {
        QFETCH(qint32, result);
        QFETCH(QString, line);
        m_fixture->machine.shellLinkResult = result;
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(lines().last(), line.arg(m_link));
    }

    void everyTextOfALinkMayHave259Characters_data()
    {
        QTest::addColumn<int>("position");
        QTest::newRow("target") << 0;
        QTest::newRow("link path") << 1;
        QTest::newRow("description") << 2;
        QTest::newRow("icon") << 3;
        QTest::newRow("arguments") << 4;
    }

    void everyTextOfALinkMayHave259Characters()
    {
        QFETCH(int, position);
        QVERIFY(createWith(position, letters(259)));
        for (const int tooMany : {260, 261, 100000}) {
            QVERIFY(!createWith(position, letters(tooMany)));
            QVERIFY(m_fixture->machine.shellLinks.isEmpty());
        }
    }

    void aWorkFolderThatIsTooLongFails()
    {
        m_fixture->state.installDir = letters(260);
        createShortcut(m_fixture->context(), u"t"_s, u"l"_s, u"d"_s, QString(), QString());
        QVERIFY(m_fixture->machine.shellLinks.isEmpty());
        QVERIFY(lines().last().startsWith(u"-2147024690 Create shortcut "_s));
    }

    void aTextThatIsTooLongIsNamedInTheLog()
    {
        createShortcut(m_fixture->context(), letters(260), m_link, u"d"_s, QString(), QString());
        QCOMPARE(lines(), QStringList({u"1 This text is too long for a shortcut: "_s + letters(260),
                                       u"-2147024690 Create shortcut "_s + m_link + u" Failed"_s}));
    }

private:
    int run(RunMode mode) { return createShortcuts(m_fixture->context(), mode); }

    const QStringList &lines() const { return m_fixture->reporter.lines; }

    // Creates a shortcut with a given text at one position. Returns true if the machine received it
    // unchanged.
    bool createWith(int position, const QString &wanted)
    {
        QStringList texts = {u"t"_s, u"l"_s, u"d"_s, u"i"_s, u"a"_s};
        texts[position] = wanted;
        m_fixture->machine.shellLinks.clear();
        createShortcut(m_fixture->context(), texts[0], texts[1], texts[2], texts[3], texts[4]);
        if (lines().last().endsWith(u" Failed"_s) || m_fixture->machine.shellLinks.isEmpty())
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
