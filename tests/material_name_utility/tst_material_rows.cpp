#include "material_name_utility/material_rows.h"
#include "support/test_class.h"
#include "translation/error_translation_table.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using MaterialWindow::materialRows;
using Translation::TranslationTable;
using Window::MarkedRows;
using Window::RowMark;

namespace {

const QString context = u"Clt::Material"_s;

TranslationTable tableOf(const Translation::TranslationMessages &messages)
{
    Translation::TranslationContext names(context);
    for (const Translation::TranslationMessage &message : messages)
        names.append(message);
    TranslationTable table;
    table.setContext(names);
    return table;
}

Translation::TranslationMessage messageOf(const char *name, const char *translation, const char *type = "")
{
    return {QString::fromUtf8(name), QString::fromUtf8(translation), QString::fromLatin1(type), QString()};
}

QString shown(const MarkedRows &rows)
{
    static const QHash<RowMark, QString> marks{
        {RowMark::None, QString()}, {RowMark::New, u"+"_s}, {RowMark::Obsolete, u"-"_s}};
    QStringList texts;
    for (int row = 0; row < rows.size(); ++row)
        texts += marks.value(rows.mark(row)) + rows.text(row, 0) + u'=' + rows.text(row, 1);
    return texts.join(u' ');
}

} // namespace

class tst_material_rows : public QObject
{
    Q_OBJECT

private slots:
    void rowsAreInNameOrder()
    {
        const auto table = tableOf({messageOf("b", "1"), messageOf("Ä", "2"), messageOf("", "3"),
                                    messageOf("B", "4"), messageOf("a", "5")});
        QCOMPARE(shown(materialRows(table, {})), u"=3 B=4 a=5 b=1 Ä=2"_s);
    }

    void duplicatesKeepTheirOrder()
    {
        const auto table = tableOf({messageOf("a", "2"), messageOf("a", "1"), messageOf("A", "3")});
        QCOMPARE(shown(materialRows(table, {})), u"A=3 a=2 a=1"_s);
    }

    void obsoleteAndNewNamesAreMarked()
    {
        const auto table = tableOf({messageOf("a", "1", "obsolete"), messageOf("b", "2", "unfinished"),
                                    messageOf("c", "3", "unfinished"), messageOf("d", "4", "vanished")});
        QCOMPARE(shown(materialRows(table, {u"a"_s, u"c"_s})), u"-a=1 b=2 +c=3 d=4"_s);
    }

    void otherContextsAreNotShown()
    {
        TranslationTable table;
        table.addString(u"Clt::Session"_s, u"a"_s);
        QCOMPARE(materialRows(table, {}).size(), 0);
        QCOMPARE(materialRows(table, {}).columns(), 2);
    }
};

NVX_GUILESS_TEST(tst_material_rows)
#include "tst_material_rows.moc"
