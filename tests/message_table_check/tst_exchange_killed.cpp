// Files of the exchange with translators' tools after a conversion that was killed.

#include "message_table_check/exchange.h"
#include "support/file_bytes.h"
#include "support/test_folder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kills = 15;
const QString convertOption = u"--convert"_s;
const QString takeBackOption = u"--take-back"_s;

/// A translation file that takes some milliseconds to read and write.
QByteArray translationWith(const QByteArray &translation)
{
    QByteArray messages;
    for (int number = 0; number < 3000; ++number)
        messages += "<message><source>Row " + QByteArray::number(number) + "</source><translation>" +
                    translation + "</translation></message>\n";
    return "<TS version=\"2.1\" language=\"de_DE\"><defaultcodec></defaultcodec><context><name>Clt</name>\n" +
           messages + "</context></TS>\n";
}

bool convertOnce(const QString &option, const QString &from, const QString &to)
{
    return option == convertOption ? bool(TableCheck::convertForQt6(from, to))
                                   : bool(TableCheck::takeBack(from, to));
}

/// Converts one file and the other in turn until this program is killed.
int convertForever(const QString &option, const QString &one, const QString &other, const QString &to)
{
    while (convertOnce(option, one, to) && convertOnce(option, other, to)) {
    }
    return 1;
}

} // namespace

class tst_exchange_killed : public QObject
{
    Q_OBJECT

private slots:
    void oldFileOrNewFileIsThere_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("target");
        QTest::newRow("for Qt 6") << convertOption << u"out.ts"_s;
        QTest::newRow("as XLIFF") << convertOption << u"out.xlf"_s;
        QTest::newRow("back from Qt 6") << takeBackOption << u"out.ts"_s;
    }

    void oldFileOrNewFileIsThere()
    {
        QFETCH(const QString, option);
        QFETCH(const QString, target);
        const TestFolder folder;
        const QString one = folder.path(u"one.ts"_s);
        const QString other = folder.path(u"other.ts"_s);
        const QString to = folder.path(target);
        QVERIFY(writeBytes(one, translationWith("Zeile")));
        QVERIFY(writeBytes(other, translationWith("Reihe und mehr")));
        QVERIFY(convertOnce(option, other, to));
        const QByteArray fromOther = readFile(to);
        QVERIFY(convertOnce(option, one, to));
        const QByteArray fromOne = readFile(to);
        QVERIFY(fromOne != fromOther);

        for (int kill = 0; kill < kills; ++kill) {
            const QDateTime before = QFileInfo(to).lastModified();
            QProcess writer;
            writer.start(QCoreApplication::applicationFilePath(), {option, one, other, to});
            QVERIFY(writer.waitForStarted());
            // The writer is at work, and is killed at a different point each time.
            QVERIFY(QTest::qWaitFor([&] { return QFileInfo(to).lastModified() != before; }, 20'000));
            QVERIFY(!writer.waitForFinished(7 * kill % 50));
            writer.kill();
            QVERIFY(writer.waitForFinished());
            const QByteArray left = readFile(to);
            QVERIFY2(left == fromOne || left == fromOther, left.right(100).constData());
        }

        // The next run removes what a killed one has left.
        QVERIFY(convertOnce(option, one, to));
        QVERIFY(convertOnce(option, other, to));
        QStringList expected{u"one.ts"_s, u"other.ts"_s, target};
        std::ranges::sort(expected);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), expected);
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString option = arguments.value(1);
    if (option == convertOption || option == takeBackOption)
        return convertForever(option, arguments.value(2), arguments.value(3), arguments.value(4));
    tst_exchange_killed test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_exchange_killed.moc"
