// The compiled catalogues of the window programs, as the real windows show them.

#include "message_table_utility/error_message_table_utility.h"
#include "nvx_util/languages.h"
#include "nvx_util/translators.h"
#include "support/checkout.h"
#include "support/recording_dialogs.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QAction>
#include <QHash>
#include <QSettings>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

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
    {u"de-DE"_s,
     {u"Meldungstabellen-Dienstprogramm"_s, u"Öffnen..."_s, u"Synchronisieren..."_s, u"Status"_s}},
    {u"fr-FR"_s, {u"Utilitaire de table de messages"_s, u"Ouvrir..."_s, u"Synchroniser..."_s, u"État"_s}},
    {u"it-IT"_s, {u"Utilità tabella messaggi"_s, u"Apri..."_s, u"Sincronizza..."_s, u"Stato"_s}},
    {u"ja-JP"_s, {u"メッセージ テーブル ユーティリティ"_s, u"開く..."_s, u"同期..."_s, u"状態"_s}},
    {u"ko-KR"_s, {u"메시지 테이블 유틸리티"_s, u"열기..."_s, u"동기화..."_s, u"상태"_s}},
    {u"ru-RU"_s,
     {u"Программа для работы с таблицами сообщений"_s, u"Открыть..."_s, u"Синхронизировать..."_s,
      u"Состояние"_s}},
    {u"zh-CN"_s, {u"消息表实用程序"_s, u"打开..."_s, u"同步..."_s, u"状态"_s}},
    {u"zh-TW"_s, {u"訊息表公用程式"_s, u"開啟..."_s, u"同步..."_s, u"狀態"_s}},
    {u"en-US"_s, {u"Message Table Utility"_s, u"Open..."_s, u"Synchronize..."_s, u"State"_s}},
};

} // namespace

class tst_window_translators : public QObject
{
    Q_OBJECT

private slots:
    void windowIsInTheLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        for (const Nvx::Util::Language &language : Nvx::Util::languages)
            QTest::newRow(language.locale.data()) << QString(language.locale);
    }

    void windowIsInTheLanguage()
    {
        QFETCH(QString, locale);
        const Nvx::Util::Translators translators(inCheckout(NVX_LANGUAGES_FOLDER), locale,
                                                 {u"messagetableutility"_s, u"nvxwindow"_s});
        const TestFolder folder;
        QSettings settings(folder.path(u"settings.ini"_s), QSettings::IniFormat);
        RecordingDialogs dialogs;
        const MessageTableUtility window(dialogs, settings);

        if (!wordsOf.contains(locale)) {
            QVERIFY(window.windowTitle() != wordsOf.value(u"en-US"_s).title);
            return;
        }
        const Words expected = wordsOf.value(locale);
        QCOMPARE(window.windowTitle(), expected.title);
        QCOMPARE(window.findChild<QAction *>(u"actionOpen"_s)->text(), expected.open);
        QCOMPARE(window.findChild<QAction *>(u"actionSynchronize"_s)->text(), expected.synchronize);
        const QAbstractItemModel *model = window.findChild<QTableView *>(u"tableWidget"_s)->model();
        QCOMPARE(model->headerData(3, Qt::Horizontal).toString(), expected.state);
    }
};

NVX_TEST(tst_window_translators)
#include "tst_window_translators.moc"
