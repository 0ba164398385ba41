// The window in the languages of the compiled catalogues.

#include "name_utility_fixture.h"
#include "nvx_util/system.h"
#include "nvx_util/translators.h"
#include "support/test_class.h"

#include <QTest>

namespace {

/// What the window shows in one language. A language without a row must only differ from English.
struct Words
{
    QString title;
    QString open; // of the library that the windows share
    QString translation;
    QString status; // after a synchronisation
};

const QHash<QString, Words> wordsOf{
    {QStringLiteral("en-US"),
     {QStringLiteral("Material Name Utility"), QStringLiteral("Open..."), QStringLiteral("Translation"),
      QStringLiteral("Found 3 names (2 new, -1 existing, and 2 obsolete)")}},
    {QStringLiteral("de-DE"),
     {QStringLiteral("Materialnamen-Dienstprogramm"), QStringLiteral("Öffnen..."),
      QStringLiteral("Übersetzung"),
      QStringLiteral("3 Namen gefunden (2 neu, -1 vorhanden und 2 veraltet)")}},
    {QStringLiteral("fr-FR"),
     {QStringLiteral("Utilitaire de noms de matériaux"), QStringLiteral("Ouvrir..."),
      QStringLiteral("Traduction"),
      QStringLiteral("3 noms trouvés (2 nouveaux, -1 existants et 2 obsolètes)")}},
    {QStringLiteral("it-IT"),
     {QStringLiteral("Utilità nomi dei materiali"), QStringLiteral("Apri..."), QStringLiteral("Traduzione"),
      QStringLiteral("Trovati 3 nomi (2 nuovi, -1 esistenti e 2 obsoleti)")}},
    {QStringLiteral("ja-JP"),
     {QStringLiteral("材料名ユーティリティ"), QStringLiteral("開く..."), QStringLiteral("翻訳"),
      QStringLiteral("3 個の名前が見つかりました (新規 2、既存 -1、廃止 2)")}},
    {QStringLiteral("ko-KR"),
     {QStringLiteral("재료 이름 유틸리티"), QStringLiteral("열기..."), QStringLiteral("번역"),
      QStringLiteral("이름 3개를 찾았습니다(신규 2개, 기존 -1개, 사용되지 않음 2개)")}},
    {QStringLiteral("ru-RU"),
     {QStringLiteral("Программа для работы с названиями материалов"), QStringLiteral("Открыть..."),
      QStringLiteral("Перевод"),
      QStringLiteral("Найдено названий: 3 (новых: 2, существующих: -1, устаревших: 2)")}},
    {QStringLiteral("zh-CN"),
     {QStringLiteral("材料名称实用程序"), QStringLiteral("打开..."), QStringLiteral("翻译"),
      QStringLiteral("找到 3 个名称（新增 2 个，现有 -1 个，已过时 2 个）")}},
    {QStringLiteral("zh-TW"),
     {QStringLiteral("材料名稱公用程式"), QStringLiteral("開啟..."), QStringLiteral("翻譯"),
      QStringLiteral("找到 3 個名稱（新增 2 個，現有 -1 個，過時 2 個）")}},
};

} // namespace

class tst_material_name_languages : public QObject
{
    Q_OBJECT

private slots:
    void windowSpeaksTheLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        const QStringList locales = Nvx::Util::System::validLocales();
        for (const QString &locale : locales)
            QTest::newRow(qPrintable(locale)) << locale;
    }

    void windowSpeaksTheLanguage()
    {
        QFETCH(const QString, locale);
        const Nvx::Util::Translators translators(
            QStringLiteral(NVX_LANGUAGES_FOLDER), locale,
            {QStringLiteral("materialnameutility"), QStringLiteral("nvxwindow")});
        NameUtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        f.window.synchronize(f.databaseFile);

        if (!wordsOf.contains(locale)) {
            QVERIFY(f.window.windowTitle() != wordsOf.value(QStringLiteral("en-US")).title);
            return;
        }
        const Words expected = wordsOf.value(locale);
        QCOMPARE(f.window.windowTitle(), expected.title);
        QCOMPARE(f.action("actionOpen")->text(), expected.open);
        QCOMPARE(f.view()->model()->headerData(1, Qt::Horizontal).toString(), expected.translation);
        QCOMPARE(f.status(), expected.status);
    }
};

NVX_TEST(tst_material_name_languages)
#include "tst_material_name_languages.moc"
