<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>MaterialTranslationTable</name>
    <message>
        <source>It is not a translation file</source>
        <translation>翻訳ファイルではありません</translation>
    </message>
    <message>
        <source>It cannot be written</source>
        <translation>ファイルに書き込めません</translation>
    </message>
</context>
<context>
    <name>mat::MaterialNameUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>同期...</translation>
    </message>
    <message>
        <source>Synchronize with material database</source>
        <translation>材料データベースと同期します</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Obsolete</source>
        <translation>廃止</translation>
    </message>
    <message>
        <source>New in the material database, to be translated</source>
        <translation>材料データベースに新しく追加された名前です。翻訳が必要です。</translation>
    </message>
    <message>
        <source>Obsolete: was not found in the material database; the translation is kept</source>
        <translation>廃止: 材料データベースで見つかりませんでした。翻訳は保持されます。</translation>
    </message>
    <message>
        <source>Material Name Utility</source>
        <translation>材料名ユーティリティ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>翻訳</translation>
    </message>
    <message>
        <source>Open Translation Table</source>
        <translation>翻訳テーブルを開く</translation>
    </message>
    <message>
        <source>Save Translation Table</source>
        <translation>翻訳テーブルの保存</translation>
    </message>
    <message>
        <source>Could not load translation table</source>
        <translation>翻訳テーブルを読み込めませんでした</translation>
    </message>
    <message>
        <source>Created new translation table</source>
        <translation>新しい翻訳テーブルを作成しました</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1 を開きました</translation>
    </message>
    <message>
        <source>Saved translation table</source>
        <translation>翻訳テーブルを保存しました</translation>
    </message>
    <message>
        <source>Saved translation table as %1</source>
        <translation>翻訳テーブルを %1 として保存しました</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 を読み込んでいます</translation>
    </message>
    <message>
        <source>Open Material Database</source>
        <translation>材料データベースを開く</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>同期をキャンセルしました。テーブルは変更されていません。</translation>
    </message>
    <message>
        <source>Load Material Database</source>
        <translation>材料データベースの読み込み</translation>
    </message>
    <message>
        <source>Cannot read material database</source>
        <translation>材料データベースを読み込めません</translation>
    </message>
    <message>
        <source>Found %1 names (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>%1 個の名前が見つかりました (新規 %2、既存 %3、廃止 %4)</translation>
    </message>
</context>
</TS>
