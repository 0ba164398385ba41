// The compiled catalogues of the window programs, as the real windows show them.

#include "message_table_utility/error_message_table_utility.h"
#include "nvx_util/languages.h"
#include "nvx_util/translators.h"
#include "support/recording_dialogs.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QAction>
#include <QHash>
#include <QSettings>
#include <QTableView>
#include <QTest>

namespace {

/// What a window shows in one language. A language without a row must only differ from English.
struct Words
{
    QString title;
    QString open; // of the library that the windows share
    QString synchronize;
    QString state; // the last column's heading
};

const QHash<QString, Words> wordsOf{
    {QStringLiteral("de-DE"),
     {QStringLiteral("Meldungstabellen-Dienstprogramm"), QStringLiteral("Öffnen..."),
      QStringLiteral("Synchronisieren..."), QStringLiteral("Status")}},
    {QStringLiteral("fr-FR"),
     {QStringLiteral("Utilitaire de table de messages"), QStringLiteral("Ouvrir..."),
      QStringLiteral("Synchroniser..."), QStringLiteral("État")}},
    {QStringLiteral("it-IT"),
     {QStringLiteral("Utilità tabella messaggi"), QStringLiteral("Apri..."), QStringLiteral("Sincronizza..."),
      QStringLiteral("Stato")}},
    {QStringLiteral("ja-JP"),
     {QStringLiteral("メッセージ テーブル ユーティリティ"), QStringLiteral("開く..."),
      QStringLiteral("同期..."), QStringLiteral("状態")}},
    {QStringLiteral("ko-KR"),
     {QStringLiteral("메시지 테이블 유틸리티"), QStringLiteral("열기..."), QStringLiteral("동기화..."),
      QStringLiteral("상태")}},
    {QStringLiteral("ru-RU"),
     {QStringLiteral("Программа для работы с таблицами сообщений"), QStringLiteral("Открыть..."),
      QStringLiteral("Синхронизировать..."), QStringLiteral("Состояние")}},
    {QStringLiteral("zh-CN"),
     {QStringLiteral("消息表实用程序"), QStringLiteral("打开..."), QStringLiteral("同步..."),
      QStringLiteral("状态")}},
    {QStringLiteral("zh-TW"),
     {QStringLiteral("訊息表公用程式"), QStringLiteral("開啟..."), QStringLiteral("同步..."),
      QStringLiteral("狀態")}},
    {QStringLiteral("en-US"),
     {QStringLiteral("Message Table Utility"), QStringLiteral("Open..."), QStringLiteral("Synchronize..."),
      QStringLiteral("State")}},
};

} // namespace

class tst_window_translators : public QObject
{
    Q_OBJECT

private slots:
    void windowSpeaksTheLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        for (const Nvx::Util::Language &language : Nvx::Util::languages)
            QTest::newRow(language.locale.data()) << QString(language.locale);
    }

    void windowSpeaksTheLanguage()
    {
        QFETCH(QString, locale);
        const Nvx::Util::Translators translators(
            QStringLiteral(NVX_LANGUAGES_FOLDER), locale,
            {QStringLiteral("messagetableutility"), QStringLiteral("nvxwindow")});
        const TestFolder folder;
        QSettings settings(folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat);
        RecordingDialogs dialogs;
        const MessageTableUtility window(dialogs, settings);

        if (!wordsOf.contains(locale)) {
            QVERIFY(window.windowTitle() != wordsOf.value(QStringLiteral("en-US")).title);
            return;
        }
        const Words expected = wordsOf.value(locale);
        QCOMPARE(window.windowTitle(), expected.title);
        QCOMPARE(window.findChild<QAction *>(QStringLiteral("actionOpen"))->text(), expected.open);
        QCOMPARE(window.findChild<QAction *>(QStringLiteral("actionSynchronize"))->text(),
                 expected.synchronize);
        const QAbstractItemModel *model =
            window.findChild<QTableView *>(QStringLiteral("tableWidget"))->model();
        QCOMPARE(model->headerData(3, Qt::Horizontal).toString(), expected.state);
    }
};

NVX_TEST(tst_window_translators)
#include "tst_window_translators.moc"
