<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
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
</context>
</TS>
