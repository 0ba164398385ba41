<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
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
        <source>%1 was changed by another program. Replace it?</source>
        <translation>%1 已被其他程式變更。是否取代？</translation>
    </message>
</context>
</TS>
