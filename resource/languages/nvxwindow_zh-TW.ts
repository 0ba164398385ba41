<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>Leftovers</name>
    <message>
        <source>Line %1: %2 is not kept</source>
        <translation>第 %1 行：%2 不會保留</translation>
    </message>
    <message>
        <source>Line %1: %2 is not kept; it occurs again in line %3</source>
        <translation>第 %1 行：%2 不會保留，它在第 %3 行再次出現</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 以及其他 %1 個</translation>
    </message>
    <message>
        <source>Parts of the file were dropped; the previous file is kept as %1</source>
        <translation>檔案的部分內容已被省略，原來的檔案是 %1</translation>
    </message>
</context>
<context>
    <name>MessageTable</name>
    <message>
        <source>The marks of an unfinished merge</source>
        <translation>有未完成合併的標記</translation>
    </message>
</context>
<context>
    <name>Window::FilterField</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>篩選（Ctrl+F）</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text</source>
        <translation>僅顯示包含此文字的列</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
</context>
<context>
    <name>Window::MarkedTableView</name>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
</context>
<context>
    <name>Window::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Window::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使用的檔案(&amp;R)</translation>
    </message>
</context>
<context>
    <name>Window::TableWindow</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>%1 has unsaved changes. Save them?</source>
        <translation>%1 有尚未儲存的變更。要儲存嗎？</translation>
    </message>
    <message>
        <source>Could not save %1

The location may be write-protected or full. The table stays open, unsaved; save it in another location.</source>
        <translation>無法儲存 %1

該位置可能已設為防寫或空間已滿。表格仍保留在此且尚未儲存，請儲存到其他位置。</translation>
    </message>
    <message>
        <source>Rows: %L1</source>
        <translation>列數：%L1</translation>
    </message>
    <message>
        <source>Rows: %L1 of %L2</source>
        <translation>列數：%L1 / %L2</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1（未儲存）</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>開啟...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存新檔...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>關於...</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具列</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Load it again?</source>
        <translation>%1 已被其他程式變更。是否重新載入？</translation>
    </message>
    <message>
        <source>Your unsaved changes will be lost.</source>
        <translation>未儲存的變更將會遺失。</translation>
    </message>
    <message>
        <source>Not everything in the file was understood. Saving the table drops these parts: %1</source>
        <translation>檔案中有無法辨識的內容。儲存表時將省略這些部分：%1</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 已被其他程式變更。</translation>
    </message>
    <message>
        <source>Saving drops the parts of %1 that were not understood (%2). The old file is kept next to it.</source>
        <translation>儲存時將省略 %1 中無法辨識的部分（%2）。原來的檔案會保留在旁邊。</translation>
    </message>
    <message>
        <source>Save the table anyway?</source>
        <translation>仍要儲存表格嗎？</translation>
    </message>
</context>
<context>
    <name>XmlSource</name>
    <message>
        <source>An element has too many attributes</source>
        <translation>元素的屬性過多</translation>
    </message>
    <message>
        <source>The entities expand to too many characters</source>
        <translation>實體展開後的字元過多</translation>
    </message>
</context>
</TS>
