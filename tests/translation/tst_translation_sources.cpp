// A translation file is read by one of two XML sources. Both must read the same.

#include "clt_leftovers.h"
#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QBuffer>
#include <QDebug>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Translation::TranslationRoot;
using Translation::TranslationTable;

namespace {

using Read = Nvx::Util::Result<TranslationRoot> (*)(QIODevice &, TranslationTable &);

/// All that can be seen of reading the bytes.
QString readingOf(const QByteArray &bytes, Read read)
{
    QBuffer device;
    device.setData(bytes);
    if (!device.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot open a buffer");
    TranslationTable table;
    const Nvx::Util::Result<TranslationRoot> root = read(device, table);
    QStringList lines{root ? QString::number(static_cast<int>(*root)) : root.error()};
    lines += table.leftovers().logLines(u"table.ts"_s);
    QBuffer written;
    if (!written.open(QIODevice::WriteOnly))
        qFatal("cannot open a buffer");
    const bool isWritten = Translation::writeTranslationTable(written, table);
    return lines.join(u'\n') + (isWritten ? QString::fromUtf8(written.data()) : u"not written"_s);
}

void compare(const QByteArray &bytes)
{
    const QString read = readingOf(bytes, Translation::readTranslationTable);
    const QString readWithQt = readingOf(bytes, Translation::readTranslationTableWithQt);
    if (read != readWithQt)
        qInfo().noquote() << bytes;
    QCOMPARE(read, readWithQt);
}

} // namespace

class tst_translation_sources : public QObject
{
    Q_OBJECT

private slots:
    void everyCaseReadsTheSame_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void everyCaseReadsTheSame()
    {
        QFETCH(const QString, folder);
        const QByteArray bytes = fileBytes(folder + u"/table.ts"_s).value_or("missing");
        compare(bytes);
        // Cut short and with a byte changed, at many places.
        const qsizetype step = qMax<qsizetype>(1, bytes.size() / 15);
        for (qsizetype at = 0; at < bytes.size(); at += step) {
            compare(bytes.first(at));
            for (const char byte : {'<', '>', '&', ' ', '/', '"', 'x', '\r', '\0', '\xC3'})
                compare(QByteArray(bytes).replace(at, 1, QByteArray(1, byte)));
        }
    }

    void defaultAttributesDoNotFillTheMemory()
    {
        QBuffer device;
        device.setData("<!DOCTYPE TS [<!ATTLIST translation type CDATA \"" + QByteArray(100'000, 'a') +
                       "\">]>\n<TS>\n<context>\n" +
                       QByteArray("<message><translation/></message>\n").repeated(10'000) +
                       "</context></TS>");
        QVERIFY(device.open(QIODevice::ReadOnly));
        TranslationTable table;
        const auto root = Translation::readTranslationTable(device, table);
        QVERIFY2(root.error().startsWith(u"The entities expand to too many characters at line "_s),
                 qPrintable(root.error()));
    }
};

NVX_GUILESS_TEST(tst_translation_sources)
#include "tst_translation_sources.moc"
