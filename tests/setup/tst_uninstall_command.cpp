#include "setup/product_values.h"
#include "support/random_text.h"
#include "support/test_class.h"

#include <QTest>

#include <algorithm>

using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

class tst_uninstall_command : public QObject
{
    Q_OBJECT

private slots:
    void theCommandGetsTheLocale_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("rewritten");
        QTest::newRow("what follows is dropped")
            << u"setup.exe /LANG=en-US /X"_s << u"setup.exe /LANG=de-DE"_s;
        QTest::newRow("nothing follows") << u"setup.exe /LANG=en-US"_s << u"setup.exe /LANG=de-DE"_s;
        QTest::newRow("the separator stays") << u"setup.exe /LANG:en-US"_s << u"setup.exe /LANG:de-DE"_s;
        QTest::newRow("a blank separates") << u"setup.exe /LANG en-US"_s << u"setup.exe /LANG de-DE"_s;
        QTest::newRow("no language yet") << u"setup.exe /LANG="_s << u"setup.exe /LANG=de-DE"_s;
        QTest::newRow("at the very end") << u"setup.exe /LANG"_s << u"setup.exe /LANGde-DE"_s;
        QTest::newRow("twice: the first counts")
            << u"setup.exe /LANG=en-US /LANG=fr-FR"_s << u"setup.exe /LANG=de-DE"_s;
        QTest::newRow("directly after the first character") << u"x/LANG=en-US"_s << u"x/LANG=de-DE"_s;
        QTest::newRow("inside a longer option") << u"a /LANGUAGE=en"_s << u"a /LANGUde-DE"_s;
        QTest::newRow("quotes and letters of several alphabets")
            << u"\"C:\\Größe 日本\\setup.exe\" /LANG=en-US"_s
            << u"\"C:\\Größe 日本\\setup.exe\" /LANG=de-DE"_s;
        QTest::newRow("already that locale") << u"a /LANG=de-DE"_s << u"a /LANG=de-DE"_s;
    }

    void theCommandGetsTheLocale()
    {
        QFETCH(QString, command);
        QTEST(uninstallCommandIn(command, u"de-DE"_s).value_or(u"left alone"_s), "rewritten");
    }

    void theCommandIsLeftAlone_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("empty") << QString();
        QTest::newRow("without the option") << u"setup.exe /X"_s;
        QTest::newRow("in lower case") << u"setup.exe /lang=en-US"_s;
        QTest::newRow("the option at the start") << u"/LANG=en-US setup.exe"_s;
        QTest::newRow("the option at the start and again") << u"/LANG=en-US /LANG=en-US"_s;
        QTest::newRow("the option alone") << u"/LANG"_s;
        QTest::newRow("a part of the option") << u"setup.exe /LAN"_s;
    }

    void theCommandIsLeftAlone()
    {
        QFETCH(QString, command);
        QVERIFY(!uninstallCommandIn(command, u"de-DE"_s));
    }

    void anEmptyLocaleLeavesTheSeparator()
    {
        QCOMPARE(uninstallCommandIn(u"a /LANG=en-US"_s, QString()), std::optional(u"a /LANG="_s));
    }

    void theTextBeforeTheLocaleStays()
    {
        RandomText random(2017);
        const QStringList pieces = {u"/LANG"_s, u"/LANG="_s, u"/LAN"_s, u"/lang="_s, u"="_s};
        for (int round = 0; round < 5000; ++round) {
            QString command;
            for (quint32 count = random.below(5); count > 0; --count)
                command += random.below(2) ? pieces.at(random.below(5)) : random.text();

            const auto rewritten = uninstallCommandIn(command, u"ja-JP"_s);
            const auto option = command.indexOf(u"/LANG"_s);
            QCOMPARE(rewritten.has_value(), option > 0);
            if (!rewritten)
                continue;
            QVERIFY2(rewritten->endsWith(u"ja-JP"_s), qPrintable(command));
            const QString beginning = rewritten->chopped(5);
            QVERIFY2(command.startsWith(beginning), qPrintable(command));
            QCOMPARE(beginning.size(), std::min(command.size(), option + 6));
        }
    }
};

NVX_GUILESS_TEST(tst_uninstall_command)
#include "tst_uninstall_command.moc"
