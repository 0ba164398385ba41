<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Leftovers</name>
    <message>
        <source>Line %1: %2 is not kept</source>
        <translation>%1 行目: %2 は保持されません</translation>
    </message>
    <message>
        <source>Line %1: %2 is not kept; it occurs again in line %3</source>
        <translation>%1 行目: %2 は保持されません。%3 行目にもう一度あります</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 他 %1 件</translation>
    </message>
    <message>
        <source>Parts of the file were dropped; the previous file is kept as %1</source>
        <translation>ファイルの一部は失われました。元のファイルは %1 です</translation>
    </message>
</context>
<context>
    <name>MessageTable</name>
    <message>
        <source>The marks of an unfinished merge</source>
        <translation>完了していないマージのマーカーがあります</translation>
    </message>
</context>
<context>
    <name>Window::FilterField</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>フィルター (Ctrl+F)</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text</source>
        <translation>このテキストを含む行だけを表示します</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
</context>
<context>
    <name>Window::MarkedTableView</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>Window::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Window::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使ったファイル(&amp;R)</translation>
    </message>
</context>
<context>
    <name>Window::TableWindow</name>
    <message>
        <source>Untitled</source>
        <translation>無題</translation>
    </message>
    <message>
        <source>%1 has unsaved changes. Save them?</source>
        <translation>%1 には保存されていない変更があります。保存しますか?</translation>
    </message>
    <message>
        <source>Could not save %1

The location may be write-protected or full. The table stays open, unsaved; save it in another location.</source>
        <translation>%1 を保存できませんでした

保存先が書き込み禁止か、空き領域がない可能性があります。テーブルは未保存のまま残っています。別の場所に保存してください。</translation>
    </message>
    <message>
        <source>Rows: %L1</source>
        <translation>行数: %L1</translation>
    </message>
    <message>
        <source>Rows: %L1 of %L2</source>
        <translation>行数: %L1 / %L2</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (未保存)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規作成</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>開く...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>名前を付けて保存...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>バージョン情報...</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>ツール バー</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Load it again?</source>
        <translation>%1 は別のプログラムによって変更されました。再読み込みしますか?</translation>
    </message>
    <message>
        <source>Your unsaved changes will be lost.</source>
        <translation>保存されていない変更は失われます。</translation>
    </message>
    <message>
        <source>Not everything in the file was understood. Saving the table drops these parts: %1</source>
        <translation>ファイルに認識できない部分があります。テーブルを保存すると失われる部分: %1</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 は別のプログラムによって変更されました。</translation>
    </message>
    <message>
        <source>Saving drops the parts of %1 that were not understood (%2). The old file is kept next to it.</source>
        <translation>保存すると、%1 の認識できなかった部分 (%2) が失われます。元のファイルは同じ場所に残ります。</translation>
    </message>
    <message>
        <source>Save the table anyway?</source>
        <translation>このままテーブルを保存しますか?</translation>
    </message>
</context>
<context>
    <name>XmlSource</name>
    <message>
        <source>An element has too many attributes</source>
        <translation>要素の属性が多すぎます</translation>
    </message>
    <message>
        <source>The entities expand to too many characters</source>
        <translation>エンティティの展開後の文字数が多すぎます</translation>
    </message>
</context>
</TS>
