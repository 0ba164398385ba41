#include "setup/uninstall_command.h"
#include "support/random_text.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <algorithm>

class tst_uninstall_command : public QObject
{
    Q_OBJECT

private slots:
    void theCommandGetsTheLocale_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("rewritten");
        QTest::newRow("what follows is dropped")
            << text("setup.exe /LANG=en-US /X") << text("setup.exe /LANG=de-DE");
        QTest::newRow("nothing follows") << text("setup.exe /LANG=en-US") << text("setup.exe /LANG=de-DE");
        QTest::newRow("the separator is kept")
            << text("setup.exe /LANG:en-US") << text("setup.exe /LANG:de-DE");
        QTest::newRow("a blank separates") << text("setup.exe /LANG en-US") << text("setup.exe /LANG de-DE");
        QTest::newRow("no language yet") << text("setup.exe /LANG=") << text("setup.exe /LANG=de-DE");
        QTest::newRow("at the very end") << text("setup.exe /LANG") << text("setup.exe /LANGde-DE");
        QTest::newRow("twice: the first counts")
            << text("setup.exe /LANG=en-US /LANG=fr-FR") << text("setup.exe /LANG=de-DE");
        QTest::newRow("right behind the first character") << text("x/LANG=en-US") << text("x/LANG=de-DE");
        QTest::newRow("inside a longer option") << text("a /LANGUAGE=en") << text("a /LANGUde-DE");
        QTest::newRow("quotes and letters of all kinds") << text("\"C:\\Größe 日本\\setup.exe\" /LANG=en-US")
                                                         << text("\"C:\\Größe 日本\\setup.exe\" /LANG=de-DE");
        QTest::newRow("already that locale") << text("a /LANG=de-DE") << text("a /LANG=de-DE");
    }

    void theCommandGetsTheLocale()
    {
        QFETCH(QString, command);
        QTEST(uninstallCommandIn(command, text("de-DE")).value_or(text("left alone")), "rewritten");
    }

    void theCommandIsLeftAlone_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("empty") << QString();
        QTest::newRow("without the option") << text("setup.exe /X");
        QTest::newRow("in lower case") << text("setup.exe /lang=en-US");
        QTest::newRow("it begins with the option") << text("/LANG=en-US setup.exe");
        QTest::newRow("it begins with the option and has it again") << text("/LANG=en-US /LANG=en-US");
        QTest::newRow("it is the option") << text("/LANG");
        QTest::newRow("half the option") << text("setup.exe /LAN");
    }

    void theCommandIsLeftAlone()
    {
        QFETCH(QString, command);
        QVERIFY(!uninstallCommandIn(command, text("de-DE")));
    }

    void anEmptyLocaleLeavesTheSeparator()
    {
        QCOMPARE(uninstallCommandIn(text("a /LANG=en-US"), QString()), std::optional(text("a /LANG=")));
    }

    void whateverTheCommandItsBeginningStays()
    {
        RandomText random(2017);
        const QStringList pieces = {text("/LANG"), text("/LANG="), text("/LAN"), text("/lang="), text("=")};
        for (int round = 0; round < 5000; ++round) {
            QString command;
            for (quint32 count = random.below(5); count > 0; --count)
                command += random.below(2) ? pieces.at(random.below(5)) : random.text();

            const auto rewritten = uninstallCommandIn(command, text("ja-JP"));
            const auto option = command.indexOf(text("/LANG"));
            QCOMPARE(rewritten.has_value(), option > 0);
            if (!rewritten)
                continue;
            QVERIFY2(rewritten->endsWith(text("ja-JP")), qPrintable(command));
            const QString kept = rewritten->chopped(5);
            QVERIFY2(command.startsWith(kept), qPrintable(command));
            QCOMPARE(kept.size(), std::min(command.size(), option + 6));
        }
    }
};

NVX_GUILESS_TEST(tst_uninstall_command)
#include "tst_uninstall_command.moc"
