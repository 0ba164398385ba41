#include "materials/mat_translation_table.h"
#include "support/case_folders.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QDir>
#include <QTest>

using Outcome = mat::TableUpdate::Outcome;

namespace {

const QString databaseName = QStringLiteral("matprop.mdb");
const QString tableName = QStringLiteral("table.ts");

QString told(const mat::TableUpdate &update)
{
    switch (update.outcome) {
    case Outcome::DatabaseNotRead:
        return QStringLiteral("database not read\n");
    case Outcome::TableNotRead:
        return QStringLiteral("table not read\n");
    case Outcome::TableNotSaved:
        return QStringLiteral("table not saved\n");
    case Outcome::Updated:
        break;
    }
    return QStringLiteral("found %1, new %2, existing %3, obsolete %4\n")
        .arg(update.counts.found)
        .arg(update.counts.added)
        .arg(update.counts.existing())
        .arg(update.counts.obsolete);
}

QString expected(const QString &folder, const QString &name)
{
    return QString::fromUtf8(fileLines(folder + u'/' + name).value_or("missing"));
}

} // namespace

class tst_material_cases : public QObject
{
    Q_OBJECT

private slots:
    void tablesAreBroughtInStep_data() { addCaseRows(QStringLiteral(CASES_FOLDER)); }

    void tablesAreBroughtInStep()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(tableName);
        QFile::copy(folder + u'/' + tableName, table);
        const mat::TableUpdate update = mat::updateTranslationFile(folder + u'/' + databaseName, table);
        QCOMPARE(told(update), expected(folder, QStringLiteral("expected.txt")));
        QCOMPARE(QString::fromUtf8(fileLines(table).value_or("missing")),
                 expected(folder, QStringLiteral("expected.ts")));
        QCOMPARE(update.error.isEmpty(), update.outcome == Outcome::Updated);
        const bool isThere = QFile::exists(table);
        QCOMPARE(QDir(work.path()).entryList(QDir::Files), isThere ? QStringList(tableName) : QStringList());
    }

    void updatingAgainChangesNothing_data() { addCaseRows(QStringLiteral(CASES_FOLDER)); }

    void updatingAgainChangesNothing()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(tableName);
        QFile::copy(folder + QStringLiteral("/expected.ts"), table);
        const std::optional<QByteArray> before = fileLines(table);
        mat::updateTranslationFile(folder + u'/' + databaseName, table);
        QCOMPARE(fileLines(table), before);
    }

    void sampleDatabaseIsRead()
    {
        const TestFolder work;
        const mat::TableUpdate update =
            mat::updateTranslationFile(QStringLiteral(SAMPLE_DATABASE), work.path(tableName));
        QCOMPARE(told(update), QStringLiteral("found 3, new 3, existing 0, obsolete 0\n"));
    }
};

NVX_GUILESS_TEST(tst_material_cases)
#include "tst_material_cases.moc"
