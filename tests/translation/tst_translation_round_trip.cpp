#include "random_translation_table.h"
#include "support/test_class.h"
#include "translation/translation_table_xml.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Translation::TranslationRoot;
using Translation::TranslationTable;

namespace {

constexpr quint32 seeds = 60;

QByteArray written(const TranslationTable &table)
{
    QBuffer device;
    return device.open(QIODevice::WriteOnly) && Translation::writeTranslationTable(device, table)
               ? device.data()
               : QByteArray();
}

Nvx::Util::Result<TranslationRoot> read(const QByteArray &bytes, TranslationTable &table)
{
    QBuffer device;
    device.setData(bytes);
    if (!device.open(QIODevice::ReadOnly))
        return Nvx::Util::Failure{u"not open"_s};
    return Translation::readTranslationTable(device, table);
}

/// The contents of the table, in order.
QStringList shown(const TranslationTable &table)
{
    QStringList shown{table.version(), table.language(), table.defaultCodec()};
    for (const auto &[name, context] : table.contexts()) {
        shown += u"context "_s + name + u' ' + context.name();
        for (const Translation::TranslationMessage &message : context.messages())
            shown += {message.source, message.translation, message.type, message.comment};
    }
    return shown;
}

} // namespace

class tst_translation_round_trip : public QObject
{
    Q_OBJECT

private slots:
    void writtenTableIsReadUnchanged_data() { addSeedRows(seeds); }

    void writtenTableIsReadUnchanged()
    {
        QFETCH(const quint32, seed);
        const TranslationTable table = randomTranslationTable(seed);
        TranslationTable again;
        const auto root = read(written(table), again);
        QCOMPARE(root.error(), QString());
        QCOMPARE(*root, TranslationRoot::Found);
        QCOMPARE(shown(again), shown(table));
    }

    void tableThatWasReadIsWrittenUnchanged_data() { addSeedRows(seeds); }

    void tableThatWasReadIsWrittenUnchanged()
    {
        QFETCH(const quint32, seed);
        const QByteArray bytes = written(randomTranslationTable(seed));
        TranslationTable again;
        QCOMPARE(read(bytes, again).error(), QString());
        QCOMPARE(written(again), bytes);
    }

    // Wherever a file is cut, the messages read from it are the first ones of each context of the whole file.
    void truncatedFileGivesOnlyWholeMessages_data() { addSeedRows(seeds); }

    void truncatedFileGivesOnlyWholeMessages()
    {
        QFETCH(const quint32, seed);
        const TranslationTable table = randomTranslationTable(seed);
        const QByteArray bytes = written(table);
        RandomText random(seed);
        TranslationTable part;
        const auto cut = static_cast<qsizetype>(random.below(static_cast<quint32>(bytes.size() - 6)));
        QVERIFY(!read(bytes.first(cut), part));
        for (const auto &[name, context] : part.contexts()) {
            QVERIFY(table.contexts().count(name) == 1);
            const Translation::TranslationMessages &whole = table.contexts().at(name).messages();
            QVERIFY(context.messages().size() <= whole.size());
            for (std::size_t at = 0; at < context.messages().size(); ++at) {
                QCOMPARE(context.messages()[at].source, whole[at].source);
                QCOMPARE(context.messages()[at].translation, whole[at].translation);
            }
        }
    }

    void fileWithoutItsLastTagGivesEveryMessage_data() { addSeedRows(seeds); }

    void fileWithoutItsLastTagGivesEveryMessage()
    {
        QFETCH(const quint32, seed);
        const TranslationTable table = randomTranslationTable(seed);
        QByteArray bytes = written(table);
        bytes.truncate(bytes.lastIndexOf("</TS>"));
        TranslationTable part;
        QVERIFY(!read(bytes, part));
        QCOMPARE(shown(part), shown(table));
    }
};

NVX_GUILESS_TEST(tst_translation_round_trip)
#include "tst_translation_round_trip.moc"
