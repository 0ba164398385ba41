<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Leftovers</name>
    <message>
        <source>Line %1: %2 is not kept</source>
        <translation>第 %1 行：%2 不会保留</translation>
    </message>
    <message>
        <source>Line %1: %2 is not kept; it occurs again in line %3</source>
        <translation>第 %1 行：%2 不会保留，它在第 %3 行再次出现</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 以及另外 %1 个</translation>
    </message>
    <message>
        <source>Parts of the file were dropped; the previous file is kept as %1</source>
        <translation>文件的部分内容已被省略，原来的文件是 %1</translation>
    </message>
</context>
<context>
    <name>MessageTable</name>
    <message>
        <source>The marks of an unfinished merge</source>
        <translation>存在未完成合并的标记</translation>
    </message>
</context>
<context>
    <name>Window::FilterField</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>筛选（Ctrl+F）</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text</source>
        <translation>仅显示包含此文本的行</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
</context>
<context>
    <name>Window::MarkedTableView</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
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
        <translation>最近使用的文件(&amp;R)</translation>
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
        <translation>%1 中有未保存的更改。是否保存？</translation>
    </message>
    <message>
        <source>Could not save %1

The location may be write-protected or full. The table stays open, unsaved; save it in another location.</source>
        <translation>无法保存 %1

该位置可能有写保护或空间已满。表仍保留在此处且尚未保存，请保存到其他位置。</translation>
    </message>
    <message>
        <source>Rows: %L1</source>
        <translation>行数：%L1</translation>
    </message>
    <message>
        <source>Rows: %L1 of %L2</source>
        <translation>行数：%L1 / %L2</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1（未保存）</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>打开...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存为...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>关于...</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Load it again?</source>
        <translation>%1 已被其他程序更改。是否重新加载？</translation>
    </message>
    <message>
        <source>Your unsaved changes will be lost.</source>
        <translation>未保存的更改将会丢失。</translation>
    </message>
    <message>
        <source>Not everything in the file was understood. Saving the table drops these parts: %1</source>
        <translation>文件中有未能识别的内容。保存表时将省略这些部分：%1</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 已被其他程序更改。</translation>
    </message>
    <message>
        <source>Saving drops the parts of %1 that were not understood (%2). The old file is kept next to it.</source>
        <translation>保存时将省略 %1 中未能识别的部分（%2）。原来的文件会保留在旁边。</translation>
    </message>
    <message>
        <source>Save the table anyway?</source>
        <translation>仍要保存表吗？</translation>
    </message>
</context>
<context>
    <name>XmlSource</name>
    <message>
        <source>An element has too many attributes</source>
        <translation>元素的属性过多</translation>
    </message>
    <message>
        <source>The entities expand to too many characters</source>
        <translation>实体展开后的字符过多</translation>
    </message>
</context>
</TS>
