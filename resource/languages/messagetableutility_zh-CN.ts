<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Findings</name>
    <message>
        <source>no longer found in the sources</source>
        <translation>源代码中已不存在</translation>
    </message>
    <message>
        <source>not reviewed yet</source>
        <translation>尚未审阅</translation>
    </message>
    <message>
        <source>Findings: %L1</source>
        <translation>检查结果：%L1</translation>
    </message>
    <message>
        <source>%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with different placeholders, %L6 with different accelerators, %L7 with different blanks</source>
        <translation>%1：已完成 %L2，未完成 %L3，已过时 %L4，参数不同 %L5，访问键不同 %L6，空格不同 %L7</translation>
    </message>
    <message>
        <source>no longer used</source>
        <translation>不再使用</translation>
    </message>
    <message>
        <source>not translated yet</source>
        <translation>尚未翻译</translation>
    </message>
</context>
<context>
    <name>MessageRemarks</name>
    <message>
        <source>missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>begins with a blank</source>
        <translation>以空格开头</translation>
    </message>
    <message>
        <source>ends with a blank</source>
        <translation>以空格结尾</translation>
    </message>
    <message>
        <source>the file cannot store the character %1</source>
        <translation>文件无法存储字符 %1</translation>
    </message>
    <message>
        <source>no translation is found, because %1 is not ASCII</source>
        <translation>找不到翻译，因为 %1 不是 ASCII 字符</translation>
    </message>
    <message>
        <source>%1 is not filled in</source>
        <translation>%1 不会被填充</translation>
    </message>
    <message>
        <source>%1 is used, but %2 is not</source>
        <translation>使用了 %1，但未使用 %2</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>not saved with this severity</source>
        <translation>此严重性不会保存它</translation>
    </message>
    <message>
        <source>the accelerator is missing</source>
        <translation>缺少访问键</translation>
    </message>
    <message>
        <source>the source has no accelerator</source>
        <translation>源文本没有访问键</translation>
    </message>
    <message>
        <source>begins with different blanks than the source</source>
        <translation>开头的空格与源文本不同</translation>
    </message>
    <message>
        <source>ends with different blanks than the source</source>
        <translation>结尾的空格与源文本不同</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>the source has no %1</source>
        <translation>源文本没有 %1</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>上下文</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
</context>
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
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤消</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Find and Replace...</source>
        <translation>查找和替换...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>查找下一个</translation>
    </message>
    <message>
        <source>Edit Message</source>
        <translation>编辑消息</translation>
    </message>
    <message>
        <source>Mark as Reviewed</source>
        <translation>标记为已审阅</translation>
    </message>
    <message>
        <source>Next New Message</source>
        <translation>下一条新消息</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>键入</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>严重性</translation>
    </message>
    <message>
        <source>There are no new messages</source>
        <translation>没有新消息</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Messages changed: %L1</source>
        <translation>已更改的消息：%L1</translation>
    </message>
    <message>
        <source>New: %L1, obsolete: %L2, incomplete: %L3</source>
        <translation>新增：%L1，已过时：%L2，不完整：%L3</translation>
    </message>
    <message>
        <source>Untranslated strings with a translation in another context: %L1

Take these translations over? The strings stay unfinished.</source>
        <translation>在其他上下文中已有翻译的未翻译字符串：%L1

是否沿用这些翻译？字符串仍保持未完成状态。</translation>
    </message>
    <message>
        <source>Adopt Texts From...</source>
        <translation>沿用文本...</translation>
    </message>
    <message>
        <source>Select a new message</source>
        <translation>请选择一条新消息</translation>
    </message>
    <message>
        <source>No obsolete message has a similar tag or text</source>
        <translation>没有标记或文本相似的已过时消息</translation>
    </message>
    <message>
        <source>Check Messages</source>
        <translation>检查消息</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>Messages with a title or an action that is not saved with their severity: %L1</source>
        <translation>标题或操作因严重性而不会保存的消息：%L1</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>查找和替换</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>正在替换...</translation>
    </message>
    <message>
        <source>Cancelled; nothing was replaced</source>
        <translation>已取消，未替换任何内容</translation>
    </message>
</context>
<context>
    <name>MessageWindow::AdoptionDialog</name>
    <message>
        <source>Adopt Texts</source>
        <translation>沿用文本</translation>
    </message>
    <message>
        <source>Obsolete messages</source>
        <translation>已过时的消息</translation>
    </message>
    <message>
        <source>The message adopts the texts of this obsolete message, which is removed:</source>
        <translation>该消息将沿用下面已过时消息的文本，并移除后者：</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindDialog</name>
    <message>
        <source>Match case</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>查找和替换</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>查找内容：</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>替换为：</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>查找下一个</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>全部替换</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 以及另外 %1 个</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePanel</name>
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
        <source>Severity</source>
        <translation>严重性</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Select a message to edit it.</source>
        <translation>选择要编辑的消息。</translation>
    </message>
    <message>
        <source>Selected messages: %L1</source>
        <translation>已选择的消息：%L1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePreview</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
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
    <message>
        <source>These entries of the project were not resolved: the files that they list were not scanned.</source>
        <translation>无法解析项目中的这些条目：未扫描它们指定的源文件。</translation>
    </message>
</context>
</TS>
