#include "materials/mat_translation_table.h"
#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString databaseName = u"matprop.mdb"_s;
const QString tableName = u"table.ts"_s;

using UpdateResult = Nvx::Util::Result<Materials::NameUpdate>;

/// The result as "expected.txt" has it. An error begins with the file that it is about.
QString reportOf(const UpdateResult &update, const QString &database, const QString &table)
{
    if (update.error().startsWith(database + u": "_s))
        return u"database not read\n"_s;
    if (update.error() == table + u": It cannot be written"_s)
        return u"table not saved\n"_s;
    if (update.error().startsWith(table + u": "_s))
        return u"table not read\n"_s;
    if (!update)
        return update.error();
    return u"found %1, new %2, existing %3, obsolete %4\n"_s.arg(update->counts.found)
        .arg(update->counts.added)
        .arg(update->counts.existing())
        .arg(update->counts.obsolete);
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
    void tablesAreSynchronized_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void tablesAreSynchronized()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(tableName);
        QFile::copy(folder + u'/' + tableName, table);
        const QString database = folder + u'/' + databaseName;
        const UpdateResult update = Materials::updateTranslationFile(database, table);
        QCOMPARE(reportOf(update, database, table), expected(folder, u"expected.txt"_s));
        QCOMPARE(QString::fromUtf8(fileLines(table).value_or("missing")), expected(folder, u"expected.ts"_s));
        QCOMPARE(update.error().isEmpty(), bool(update));
        const bool isThere = QFile::exists(table);
        QCOMPARE(QDir(work.path()).entryList(QDir::Files), isThere ? QStringList(tableName) : QStringList());
    }

    void updatingAgainChangesNothing_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void updatingAgainChangesNothing()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(tableName);
        QFile::copy(folder + u"/expected.ts"_s, table);
        const std::optional<QByteArray> before = fileLines(table);
        (void)Materials::updateTranslationFile(folder + u'/' + databaseName, table);
        QCOMPARE(fileLines(table), before);
    }

    void sampleDatabaseIsRead()
    {
        const TestFolder work;
        const QString database = inCheckout(SAMPLE_DATABASE);
        const QString table = work.path(tableName);
        const UpdateResult update = Materials::updateTranslationFile(database, table);
        QCOMPARE(reportOf(update, database, table), u"found 3, new 3, existing 0, obsolete 0\n"_s);
    }
};

NVX_GUILESS_TEST(tst_material_cases)
#include "tst_material_cases.moc"
