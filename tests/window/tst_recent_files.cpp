#include "support/test_class.h"
#include "support/test_folder.h"
#include "window/recent_files.h"

#include <QAction>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using Window::RecentFiles;
using Window::withRecent;

namespace {

const QStringList abc{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};

} // namespace

class tst_recent_files : public QObject
{
    Q_OBJECT

private slots:
    void latestFileComesFirst()
    {
        QCOMPARE(withRecent(abc, QStringLiteral("d"), 8).join(u' '), QStringLiteral("d a b c"));
        QCOMPARE(withRecent(abc, QStringLiteral("c"), 8).join(u' '), QStringLiteral("c a b"));
        QCOMPARE(withRecent(abc, QStringLiteral("d"), 3).join(u' '), QStringLiteral("d a b"));
    }

    void menuRemembersItsFiles()
    {
        const TestFolder folder;
        QSettings settings(folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat);
        const QString file = folder.path(QStringLiteral("größe & メ.xml"));
        {
            RecentFiles menu(settings);
            QVERIFY(!menu.isEnabled());
            menu.add(file);
            QVERIFY(menu.isEnabled());
        }
        RecentFiles menu(settings);
        QCOMPARE(menu.files(), QStringList(file));
        QCOMPARE(menu.actions().size(), 1);
        QVERIFY(menu.actions().first()->text().endsWith(QStringLiteral("größe && メ.xml")));
    }

    void chosenFileIsTold()
    {
        const TestFolder folder;
        QSettings settings(folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat);
        RecentFiles menu(settings);
        menu.add(folder.path(QStringLiteral("a.xml")));
        menu.add(folder.path(QStringLiteral("b.xml")));
        QSignalSpy chosen(&menu, &RecentFiles::chosen);
        menu.actions().at(1)->trigger();
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().toString(), folder.path(QStringLiteral("a.xml")));
    }

    void removedFileIsForgotten()
    {
        const TestFolder folder;
        QSettings settings(folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat);
        RecentFiles menu(settings);
        menu.add(folder.path(QStringLiteral("a.xml")));
        menu.remove(folder.path(QStringLiteral("a.xml")));
        QVERIFY(menu.actions().isEmpty());
        QVERIFY(RecentFiles(settings).files().isEmpty());
    }

    void listDoesNotGrowForEver()
    {
        const TestFolder folder;
        QSettings settings(folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat);
        RecentFiles menu(settings);
        for (int number = 0; number < 20; ++number)
            menu.add(folder.path(QString::number(number)));
        QCOMPARE(menu.files().size(), RecentFiles::most);
        QCOMPARE(menu.files().first(), folder.path(QStringLiteral("19")));
    }
};

NVX_TEST(tst_recent_files)
#include "tst_recent_files.moc"
