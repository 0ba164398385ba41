// Files that do not answer as ordinary ones do.

#include "nvx_util/whole_file.h"
#include "support/file_bytes.h"
#include "support/odd_files.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QFileInfo>
#include <QTest>

class tst_whole_file_odd : public QObject
{
    Q_OBJECT

private slots:
    void copyOfWhatCannotBeReadWholeLeavesNothing_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("it breaks when it is read") << breakingFile();
        QTest::newRow("it is shorter than it says") << boastingFile();
    }

    void copyOfWhatCannotBeReadWholeLeavesNothing()
    {
        QFETCH(const QString, source);
        const TestFolder folder;
        QVERIFY(QFileInfo::exists(source));
        QVERIFY(!Nvx::Util::copyToFreeName(source, folder.path(QStringLiteral("copy"))));
        QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void linkThatLeadsNowhereIsNotCopiedOver()
    {
        const TestFolder folder;
        const QString source = folder.path(QStringLiteral("source"));
        const QString target = folder.path(QStringLiteral("target"));
        QVERIFY(writeBytes(source, "new"));
        QVERIFY(QFile::link(folder.path(QStringLiteral("nowhere")), target));
        QVERIFY(!Nvx::Util::copyToFreeName(source, target));
        QVERIFY(QFileInfo(target).isSymLink());
        QVERIFY(!QFile::exists(target + QStringLiteral(".nvxpart")));
        QVERIFY(!QFile::exists(folder.path(QStringLiteral("nowhere"))));
    }

    void linkStaysOneWhenItsFileIsReplaced_data()
    {
        QTest::addColumn<int>("links");
        QTest::addColumn<QByteArray>("old");
        QTest::newRow("a link") << 1 << QByteArray("old");
        QTest::newRow("a link to a link to a link") << 3 << QByteArray("old");
        QTest::newRow("a link to a file that is to come") << 2 << QByteArray();
    }

    void linkStaysOneWhenItsFileIsReplaced()
    {
        QFETCH(const int, links);
        QFETCH(const QByteArray, old);
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("file"));
        QVERIFY(old.isEmpty() || writeBytes(fileName, old));
        QString link = fileName;
        for (int number = 0; number < links; ++number) {
            QVERIFY(QFile::link(link, link + QStringLiteral("+")));
            link += QLatin1Char('+');
        }
        QVERIFY(Nvx::Util::replaceWholeFile(link, "new"));
        QCOMPARE(fileBytes(fileName), QByteArray("new"));
        QVERIFY(!QFileInfo(fileName).isSymLink());
        for (; link != fileName; link.chop(1))
            QVERIFY(QFileInfo(link).isSymLink());
    }

    void linksInACircleAreNotReplaced()
    {
        const TestFolder folder;
        const QString first = folder.path(QStringLiteral("first"));
        const QString second = folder.path(QStringLiteral("second"));
        QVERIFY(QFile::link(second, first));
        QVERIFY(QFile::link(first, second));
        QVERIFY(!Nvx::Util::replaceWholeFile(first, "new"));
        QVERIFY(QFileInfo(first).isSymLink());
        QVERIFY(QFileInfo(second).isSymLink());
    }

    void fileThatIsShorterThanItSaysDoesNotHoldWhatBeginsLikeIt()
    {
        const std::optional<QByteArray> line = fileBytes(boastingFile());
        const qint64 claimed = QFileInfo(boastingFile()).size();
        QVERIFY(line && line->size() < claimed);
        // Were it taken for the same, this would count as done; it is not ours to write.
        QVERIFY(!Nvx::Util::replaceWholeFile(boastingFile(), line->leftJustified(claimed, 'x')));
        QCOMPARE(fileBytes(boastingFile()), line);
    }
};

NVX_GUILESS_TEST(tst_whole_file_odd)
#include "tst_whole_file_odd.moc"
