#include "support/test_class.h"
#include "support/test_folder.h"
#include "window/window_memory.h"

#include <QAction>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Window::RecentFiles;
using Window::withRecent;

namespace {

const QStringList abc{u"a"_s, u"b"_s, u"c"_s};

} // namespace

class tst_recent_files : public QObject
{
    Q_OBJECT

private slots:
    void latestFileComesFirst()
    {
        QCOMPARE(withRecent(abc, u"d"_s, 8).join(u' '), u"d a b c"_s);
        QCOMPARE(withRecent(abc, u"c"_s, 8).join(u' '), u"c a b"_s);
        QCOMPARE(withRecent(abc, u"d"_s, 3).join(u' '), u"d a b"_s);
    }

    void menuIsStored()
    {
        const TestFolder folder;
        QSettings settings(folder.path(u"settings.ini"_s), QSettings::IniFormat);
        const QString file = folder.path(u"größe & メ.xml"_s);
        {
            RecentFiles menu(settings);
            QVERIFY(!menu.isEnabled());
            menu.add(file);
            QVERIFY(menu.isEnabled());
        }
        RecentFiles menu(settings);
        QCOMPARE(menu.files(), QStringList(file));
        QCOMPARE(menu.actions().size(), 1);
        QVERIFY(menu.actions().first()->text().endsWith(u"größe && メ.xml"_s));
    }

    void chosenFileIsSignalled()
    {
        const TestFolder folder;
        QSettings settings(folder.path(u"settings.ini"_s), QSettings::IniFormat);
        RecentFiles menu(settings);
        menu.add(folder.path(u"a.xml"_s));
        menu.add(folder.path(u"b.xml"_s));
        QSignalSpy chosen(&menu, &RecentFiles::chosen);
        menu.actions().at(1)->trigger();
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().toString(), folder.path(u"a.xml"_s));
    }

    void removedFileIsNotStored()
    {
        const TestFolder folder;
        QSettings settings(folder.path(u"settings.ini"_s), QSettings::IniFormat);
        RecentFiles menu(settings);
        menu.add(folder.path(u"a.xml"_s));
        menu.remove(folder.path(u"a.xml"_s));
        QVERIFY(menu.actions().isEmpty());
        QVERIFY(RecentFiles(settings).files().isEmpty());
    }

    void listHasAMaximum()
    {
        const TestFolder folder;
        QSettings settings(folder.path(u"settings.ini"_s), QSettings::IniFormat);
        RecentFiles menu(settings);
        for (int number = 0; number < 20; ++number)
            menu.add(folder.path(QString::number(number)));
        QCOMPARE(menu.files().size(), RecentFiles::maximum);
        QCOMPARE(menu.files().first(), folder.path(u"19"_s));
    }
};

NVX_TEST(tst_recent_files)
#include "tst_recent_files.moc"
