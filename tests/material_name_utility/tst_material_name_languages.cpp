// The window in the languages of the catalogues.

#include "name_utility_fixture.h"
#include "nvx_util/system.h"
#include "nvx_util/translators.h"
#include "support/checkout.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Texts of the window in one language. A language without a row must only differ from English.
struct Words
{
    QString title;
    QString open; // from the library that the windows share
    QString translation;
    QString status; // after a synchronisation
};

const QHash<QString, Words> wordsOf{
    {u"en-US"_s,
     {u"Material Name Utility"_s, u"Open..."_s, u"Translation"_s,
      u"Found 3 names (2 new, -1 existing, and 2 obsolete)"_s}},
    {u"de-DE"_s,
     {u"Materialnamen-Dienstprogramm"_s, u"Öffnen..."_s, u"Übersetzung"_s,
      u"3 Namen gefunden (2 neu, -1 vorhanden und 2 veraltet)"_s}},
    {u"fr-FR"_s,
     {u"Utilitaire de noms de matériaux"_s, u"Ouvrir..."_s, u"Traduction"_s,
      u"3 noms trouvés (2 nouveaux, -1 existants et 2 obsolètes)"_s}},
    {u"it-IT"_s,
     {u"Utilità nomi dei materiali"_s, u"Apri..."_s, u"Traduzione"_s,
      u"Trovati 3 nomi (2 nuovi, -1 esistenti e 2 obsoleti)"_s}},
    {u"ja-JP"_s,
     {u"材料名ユーティリティ"_s, u"開く..."_s, u"翻訳"_s,
      u"3 個の名前が見つかりました (新規 2、既存 -1、廃止 2)"_s}},
    {u"ko-KR"_s,
     {u"재료 이름 유틸리티"_s, u"열기..."_s, u"번역"_s,
      u"이름 3개를 찾았습니다(신규 2개, 기존 -1개, 사용되지 않음 2개)"_s}},
    {u"ru-RU"_s,
     {u"Программа для работы с названиями материалов"_s, u"Открыть..."_s, u"Перевод"_s,
      u"Найдено названий: 3 (новых: 2, существующих: -1, устаревших: 2)"_s}},
    {u"zh-CN"_s,
     {u"材料名称实用程序"_s, u"打开..."_s, u"翻译"_s,
      u"找到 3 个名称（新增 2 个，现有 -1 个，已过时 2 个）"_s}},
    {u"zh-TW"_s,
     {u"材料名稱公用程式"_s, u"開啟..."_s, u"翻譯"_s,
      u"找到 3 個名稱（新增 2 個，現有 -1 個，過時 2 個）"_s}},
};

} // namespace

class tst_material_name_languages : public QObject
{
    Q_OBJECT

private slots:
    void windowIsShownInTheLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        const QStringList locales = Nvx::Util::System::validLocales();
        for (const QString &locale : locales)
            QTest::newRow(qPrintable(locale)) << locale;
    }

    void windowIsShownInTheLanguage()
    {
        QFETCH(const QString, locale);
        const Nvx::Util::Translators translators(inCheckout(NVX_LANGUAGES_FOLDER), locale,
                                                 {u"materialnameutility"_s, u"nvxwindow"_s});
        NameUtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        f.window.synchronize(f.databaseFile);

        if (!wordsOf.contains(locale)) {
            QVERIFY(f.window.windowTitle() != wordsOf.value(u"en-US"_s).title);
            return;
        }
        const Words expected = wordsOf.value(locale);
        QCOMPARE(f.window.windowTitle().remove(u"[*]"_s), expected.title);
        QCOMPARE(f.action("actionOpen")->text(), expected.open);
        QCOMPARE(f.view()->model()->headerData(1, Qt::Horizontal).toString(), expected.translation);
        QCOMPARE(f.status(), expected.status);
    }
};

NVX_TEST(tst_material_name_languages)
#include "tst_material_name_languages.moc"
