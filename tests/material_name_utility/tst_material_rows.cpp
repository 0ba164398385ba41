#include "material_name_utility/material_rows.h"
#include "support/test_class.h"
#include "translation/error_translation_table.h"

#include <QTest>

using Error::TranslationTable;
using mat::rowsOf;
using Window::MarkedRows;
using Window::RowMark;

namespace {

const QString context = QStringLiteral("Clt::Material");

TranslationTable tableOf(const Error::TranslationMessages &messages)
{
    Error::TranslationContext names(context);
    for (const Error::TranslationMessage &message : messages)
        names.append(message);
    TranslationTable table;
    table.setContext(names);
    return table;
}

Error::TranslationMessage messageOf(const char *name, const char *translation, const char *type = "")
{
    return {QString::fromUtf8(name), QString::fromUtf8(translation), QString::fromLatin1(type), QString()};
}

QString shown(const MarkedRows &rows)
{
    static const QHash<RowMark, QString> marks{{RowMark::None, QString()},
                                               {RowMark::New, QStringLiteral("+")},
                                               {RowMark::Obsolete, QStringLiteral("-")}};
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
    void rowsComeInNameOrder()
    {
        const auto table = tableOf({messageOf("b", "1"), messageOf("Ä", "2"), messageOf("", "3"),
                                    messageOf("B", "4"), messageOf("a", "5")});
        QCOMPARE(shown(rowsOf(table, {})), QStringLiteral("=3 B=4 a=5 b=1 Ä=2"));
    }

    void equalNamesStayInTheirOrder()
    {
        const auto table = tableOf({messageOf("a", "2"), messageOf("a", "1"), messageOf("A", "3")});
        QCOMPARE(shown(rowsOf(table, {})), QStringLiteral("A=3 a=2 a=1"));
    }

    void obsoleteAndNewNamesAreMarked()
    {
        const auto table = tableOf({messageOf("a", "1", "obsolete"), messageOf("b", "2", "unfinished"),
                                    messageOf("c", "3", "unfinished"), messageOf("d", "4", "vanished")});
        QCOMPARE(shown(rowsOf(table, {QStringLiteral("a"), QStringLiteral("c")})),
                 QStringLiteral("-a=1 b=2 +c=3 d=4"));
    }

    void otherContextsAreNotShown()
    {
        TranslationTable table;
        table.addString(QStringLiteral("Clt::Session"), QStringLiteral("a"));
        QCOMPARE(rowsOf(table, {}).size(), 0);
        QCOMPARE(rowsOf(table, {}).columns(), 2);
    }
};

NVX_GUILESS_TEST(tst_material_rows)
#include "tst_material_rows.moc"
