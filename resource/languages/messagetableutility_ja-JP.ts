<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Findings</name>
    <message>
        <source>no longer found in the sources</source>
        <translation>ソース コードに存在しなくなりました</translation>
    </message>
    <message>
        <source>not reviewed yet</source>
        <translation>まだ確認されていません</translation>
    </message>
    <message>
        <source>Findings: %L1</source>
        <translation>検査結果: %L1</translation>
    </message>
    <message>
        <source>%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with different placeholders, %L6 with different accelerators, %L7 with different blanks</source>
        <translation>%1: 完了 %L2、未完了 %L3、廃止 %L4、引数の違い %L5、アクセス キーの違い %L6、空白の違い %L7</translation>
    </message>
    <message>
        <source>no longer used</source>
        <translation>使われなくなりました</translation>
    </message>
    <message>
        <source>not translated yet</source>
        <translation>まだ翻訳されていません</translation>
    </message>
</context>
<context>
    <name>MessageRemarks</name>
    <message>
        <source>missing</source>
        <translation>入力がありません</translation>
    </message>
    <message>
        <source>begins with a blank</source>
        <translation>空白で始まっています</translation>
    </message>
    <message>
        <source>ends with a blank</source>
        <translation>空白で終わっています</translation>
    </message>
    <message>
        <source>the file cannot store the character %1</source>
        <translation>文字 %1 はファイルに保存できません</translation>
    </message>
    <message>
        <source>no translation is found, because %1 is not ASCII</source>
        <translation>%1 は ASCII 文字ではないため、翻訳が見つかりません</translation>
    </message>
    <message>
        <source>%1 is not filled in</source>
        <translation>%1 には値が入りません</translation>
    </message>
    <message>
        <source>%1 is used, but %2 is not</source>
        <translation>%1 は使われていますが、%2 は使われていません</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>not saved with this severity</source>
        <translation>この重大度では保存されません</translation>
    </message>
    <message>
        <source>the accelerator is missing</source>
        <translation>アクセス キーがありません</translation>
    </message>
    <message>
        <source>the source has no accelerator</source>
        <translation>原文にアクセス キーはありません</translation>
    </message>
    <message>
        <source>begins with different blanks than the source</source>
        <translation>先頭の空白が原文と異なります</translation>
    </message>
    <message>
        <source>ends with different blanks than the source</source>
        <translation>末尾の空白が原文と異なります</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 がありません</translation>
    </message>
    <message>
        <source>the source has no %1</source>
        <translation>原文に %1 はありません</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>コンテキスト</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>対処方法</translation>
    </message>
</context>
<context>
    <name>MessageTableFile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
</context>
<context>
    <name>MessageTableUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>同期...</translation>
    </message>
    <message>
        <source>Synchronize with source code</source>
        <translation>ソース コードと同期します</translation>
    </message>
    <message>
        <source>Update Translation...</source>
        <translation>翻訳の更新...</translation>
    </message>
    <message>
        <source>Update translation</source>
        <translation>翻訳の更新</translation>
    </message>
    <message>
        <source>tr</source>
        <translation>tr</translation>
    </message>
    <message>
        <source>Found in the sources, not reviewed yet</source>
        <translation>ソース コードで見つかりましたが、まだ確認されていません</translation>
    </message>
    <message>
        <source>No longer found in the sources</source>
        <translation>ソース コードに存在しなくなりました</translation>
    </message>
    <message>
        <source>Message Table Utility</source>
        <translation>メッセージ テーブル ユーティリティ</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>コンテキスト</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Open Message Table</source>
        <translation>メッセージ テーブルを開く</translation>
    </message>
    <message>
        <source>Save Message Table</source>
        <translation>メッセージ テーブルの保存</translation>
    </message>
    <message>
        <source>Could not load message table</source>
        <translation>メッセージ テーブルを読み込めませんでした</translation>
    </message>
    <message>
        <source>Table saved</source>
        <translation>テーブルを保存しました</translation>
    </message>
    <message>
        <source>Table saved as %1</source>
        <translation>テーブルを %1 として保存しました</translation>
    </message>
    <message>
        <source>Loading message table &quot;%1&quot;...</source>
        <translation>メッセージ テーブル「%1」を読み込んでいます...</translation>
    </message>
    <message>
        <source>Open Visual Studio Project</source>
        <translation>Visual Studio プロジェクトを開く</translation>
    </message>
    <message>
        <source>Visual Studio Project Error</source>
        <translation>Visual Studio プロジェクト エラー</translation>
    </message>
    <message>
        <source>Could not parse %1</source>
        <translation>%1 を解析できませんでした</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>同期をキャンセルしました。テーブルは変更されていません。</translation>
    </message>
    <message>
        <source>Parser Error</source>
        <translation>解析エラー</translation>
    </message>
    <message>
        <source>Parsing</source>
        <translation>解析</translation>
    </message>
    <message>
        <source>Parsing source files from %1</source>
        <translation>%1 のソース ファイルを解析しています</translation>
    </message>
    <message>
        <source>Found %1 keys</source>
        <translation>%1 個のキーが見つかりました</translation>
    </message>
    <message>
        <source>Found 0 keys</source>
        <translation>0 個のキーが見つかりました</translation>
    </message>
    <message>
        <source>Found %1 keys (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>%1 個のキーが見つかりました (新規 %2、既存 %3、廃止 %4)</translation>
    </message>
    <message>
        <source>Elapsed time: %1 sec</source>
        <translation>経過時間: %1 秒</translation>
    </message>
    <message>
        <source>Open Qt Translation File</source>
        <translation>Qt 翻訳ファイルを開く</translation>
    </message>
    <message>
        <source>Qt Translation File Error</source>
        <translation>Qt 翻訳ファイル エラー</translation>
    </message>
    <message>
        <source>Could not load &apos;%1&apos;: %2</source>
        <translation>「%1」を読み込めませんでした: %2</translation>
    </message>
    <message>
        <source>Added %1 new strings to %2</source>
        <translation>%1 個の新しい文字列を %2 に追加しました</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 を保存できませんでした</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 を読み込んでいます</translation>
    </message>
    <message>
        <source>Update cancelled; the translation is unchanged</source>
        <translation>更新をキャンセルしました。翻訳は変更されていません。</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Find and Replace...</source>
        <translation>検索と置換...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>次を検索</translation>
    </message>
    <message>
        <source>Edit Message</source>
        <translation>メッセージの編集</translation>
    </message>
    <message>
        <source>Mark as Reviewed</source>
        <translation>確認済みにする</translation>
    </message>
    <message>
        <source>Next New Message</source>
        <translation>次の新しいメッセージ</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>重大度</translation>
    </message>
    <message>
        <source>There are no new messages</source>
        <translation>新しいメッセージはありません</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>Messages changed: %L1</source>
        <translation>変更されたメッセージ: %L1</translation>
    </message>
    <message>
        <source>New: %L1, obsolete: %L2, incomplete: %L3</source>
        <translation>新規: %L1、廃止: %L2、未完成: %L3</translation>
    </message>
    <message>
        <source>Untranslated strings with a translation in another context: %L1

Take these translations over? The strings stay unfinished.</source>
        <translation>別のコンテキストに翻訳がある未翻訳の文字列: %L1

これらの翻訳を引き継ぎますか? 文字列は未完了のままです。</translation>
    </message>
    <message>
        <source>Adopt Texts From...</source>
        <translation>テキストの引き継ぎ...</translation>
    </message>
    <message>
        <source>Select a new message</source>
        <translation>新しいメッセージを選択してください</translation>
    </message>
    <message>
        <source>No obsolete message has a similar tag or text</source>
        <translation>似たタグまたはテキストの廃止されたメッセージはありません</translation>
    </message>
    <message>
        <source>Check Messages</source>
        <translation>メッセージの検査</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>検査結果</translation>
    </message>
    <message>
        <source>Messages with a title or an action that is not saved with their severity: %L1</source>
        <translation>重大度のためにタイトルまたは対処方法が保存されないメッセージ: %L1</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>検索と置換</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>置換しています...</translation>
    </message>
    <message>
        <source>Cancelled; nothing was replaced</source>
        <translation>キャンセルしました。何も置換されていません。</translation>
    </message>
</context>
<context>
    <name>MessageWindow::AdoptionDialog</name>
    <message>
        <source>Adopt Texts</source>
        <translation>テキストの引き継ぎ</translation>
    </message>
    <message>
        <source>Obsolete messages</source>
        <translation>廃止されたメッセージ</translation>
    </message>
    <message>
        <source>The message adopts the texts of this obsolete message, which is removed:</source>
        <translation>メッセージは次の廃止されたメッセージのテキストを引き継ぎ、そのメッセージは削除されます:</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindDialog</name>
    <message>
        <source>Match case</source>
        <translation>大文字と小文字を区別する</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>検索と置換</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>検索する文字列:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>置換後の文字列:</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>次を検索</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>すべて置換</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>検査結果</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 他 %1 件</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePanel</name>
    <message>
        <source>Process</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>コンテキスト</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>重大度</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>対処方法</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>注意点</translation>
    </message>
    <message>
        <source>Select a message to edit it.</source>
        <translation>編集するメッセージを選択してください。</translation>
    </message>
    <message>
        <source>Selected messages: %L1</source>
        <translation>選択されたメッセージ: %L1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePreview</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>ProjectScan</name>
    <message>
        <source>... and %1 more</source>
        <translation>... 他 %1 件</translation>
    </message>
    <message>
        <source>These files were skipped: their messages were not found.</source>
        <translation>これらのファイルはスキップされたため、含まれるメッセージは検出されていません。</translation>
    </message>
    <message>
        <source>These entries of the project were not resolved: the files that they list were not scanned.</source>
        <translation>プロジェクトのこれらの項目は解決できなかったため、項目が示すソース ファイルはスキャンされていません。</translation>
    </message>
</context>
</TS>
