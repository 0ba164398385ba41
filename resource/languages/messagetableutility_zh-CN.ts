<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>MessageTableFile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
</context>
<context>
    <name>MessageTableUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>同步...</translation>
    </message>
    <message>
        <source>Synchronize with source code</source>
        <translation>与源代码同步</translation>
    </message>
    <message>
        <source>Update Translation...</source>
        <translation>更新翻译...</translation>
    </message>
    <message>
        <source>Update translation</source>
        <translation>更新翻译</translation>
    </message>
    <message>
        <source>tr</source>
        <translation>tr</translation>
    </message>
    <message>
        <source>Found in the sources, not reviewed yet</source>
        <translation>在源代码中找到，尚未审阅</translation>
    </message>
    <message>
        <source>No longer found in the sources</source>
        <translation>源代码中已不存在</translation>
    </message>
    <message>
        <source>Message Table Utility</source>
        <translation>消息表实用程序</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>上下文</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Open Message Table</source>
        <translation>打开消息表</translation>
    </message>
    <message>
        <source>Save Message Table</source>
        <translation>保存消息表</translation>
    </message>
    <message>
        <source>Could not load message table</source>
        <translation>无法加载消息表</translation>
    </message>
    <message>
        <source>Table saved</source>
        <translation>表已保存</translation>
    </message>
    <message>
        <source>Table saved as %1</source>
        <translation>表已另存为 %1</translation>
    </message>
    <message>
        <source>Loading message table &quot;%1&quot;...</source>
        <translation>正在加载消息表“%1”...</translation>
    </message>
    <message>
        <source>Open Visual Studio Project</source>
        <translation>打开 Visual Studio 项目</translation>
    </message>
    <message>
        <source>Visual Studio Project Error</source>
        <translation>Visual Studio 项目错误</translation>
    </message>
    <message>
        <source>Could not parse %1</source>
        <translation>无法解析 %1</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>已取消同步，表未更改</translation>
    </message>
    <message>
        <source>Parser Error</source>
        <translation>解析错误</translation>
    </message>
    <message>
        <source>Parsing</source>
        <translation>解析</translation>
    </message>
    <message>
        <source>Parsing source files from %1</source>
        <translation>正在解析 %1 中的源文件</translation>
    </message>
    <message>
        <source>Found %1 keys</source>
        <translation>找到 %1 个键</translation>
    </message>
    <message>
        <source>Found 0 keys</source>
        <translation>找到 0 个键</translation>
    </message>
    <message>
        <source>Found %1 keys (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>找到 %1 个键（新增 %2 个，现有 %3 个，已过时 %4 个）</translation>
    </message>
    <message>
        <source>Elapsed time: %1 sec</source>
        <translation>用时：%1 秒</translation>
    </message>
    <message>
        <source>Open Qt Translation File</source>
        <translation>打开 Qt 翻译文件</translation>
    </message>
    <message>
        <source>Qt Translation File Error</source>
        <translation>Qt 翻译文件错误</translation>
    </message>
    <message>
        <source>Could not load &apos;%1&apos;: %2</source>
        <translation>无法加载“%1”：%2</translation>
    </message>
    <message>
        <source>Added %1 new strings to %2</source>
        <translation>已向 %2 添加 %1 个新字符串</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>无法保存 %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>正在读取 %1</translation>
    </message>
    <message>
        <source>Update cancelled; the translation is unchanged</source>
        <translation>已取消更新，翻译未更改</translation>
    </message>
</context>
<context>
    <name>ProjectScan</name>
    <message>
        <source>... and %1 more</source>
        <translation>... 以及另外 %1 个</translation>
    </message>
    <message>
        <source>These files were skipped: their messages were not found.</source>
        <translation>已跳过这些文件：未找到其中的消息。</translation>
    </message>
</context>
</TS>
