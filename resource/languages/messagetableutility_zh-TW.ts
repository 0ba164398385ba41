<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>Findings</name>
    <message>
        <source>no longer found in the sources</source>
        <translation>原始程式碼中已不存在</translation>
    </message>
    <message>
        <source>not reviewed yet</source>
        <translation>尚未檢閱</translation>
    </message>
    <message>
        <source>Findings: %L1</source>
        <translation>檢查結果：%L1</translation>
    </message>
    <message>
        <source>%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with different placeholders, %L6 with different accelerators, %L7 with different blanks</source>
        <translation>%1：已完成 %L2，未完成 %L3，過時 %L4，參數不同 %L5，快速鍵不同 %L6，空格不同 %L7</translation>
    </message>
    <message>
        <source>no longer used</source>
        <translation>不再使用</translation>
    </message>
    <message>
        <source>not translated yet</source>
        <translation>尚未翻譯</translation>
    </message>
</context>
<context>
    <name>MessageRemarks</name>
    <message>
        <source>missing</source>
        <translation>缺少</translation>
    </message>
    <message>
        <source>begins with a blank</source>
        <translation>以空格開頭</translation>
    </message>
    <message>
        <source>ends with a blank</source>
        <translation>以空格結尾</translation>
    </message>
    <message>
        <source>the file cannot store the character %1</source>
        <translation>檔案無法儲存字元 %1</translation>
    </message>
    <message>
        <source>no translation is found, because %1 is not ASCII</source>
        <translation>找不到翻譯，因為 %1 不是 ASCII 字元</translation>
    </message>
    <message>
        <source>%1 is not filled in</source>
        <translation>%1 不會被填入</translation>
    </message>
    <message>
        <source>%1 is used, but %2 is not</source>
        <translation>使用了 %1，但未使用 %2</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>not saved with this severity</source>
        <translation>此嚴重性不會儲存它</translation>
    </message>
    <message>
        <source>the accelerator is missing</source>
        <translation>缺少快速鍵</translation>
    </message>
    <message>
        <source>the source has no accelerator</source>
        <translation>來源文字沒有快速鍵</translation>
    </message>
    <message>
        <source>begins with different blanks than the source</source>
        <translation>開頭的空格與來源文字不同</translation>
    </message>
    <message>
        <source>ends with different blanks than the source</source>
        <translation>結尾的空格與來源文字不同</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>the source has no %1</source>
        <translation>來源文字沒有 %1</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>上下文</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
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
        <translation>與原始程式碼同步</translation>
    </message>
    <message>
        <source>Update Translation...</source>
        <translation>更新翻譯...</translation>
    </message>
    <message>
        <source>Update translation</source>
        <translation>更新翻譯</translation>
    </message>
    <message>
        <source>tr</source>
        <translation>tr</translation>
    </message>
    <message>
        <source>Found in the sources, not reviewed yet</source>
        <translation>在原始程式碼中找到，尚未檢閱</translation>
    </message>
    <message>
        <source>No longer found in the sources</source>
        <translation>原始程式碼中已不存在</translation>
    </message>
    <message>
        <source>Message Table Utility</source>
        <translation>訊息表公用程式</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>處理程序</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>上下文</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>標籤</translation>
    </message>
    <message>
        <source>State</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Open Message Table</source>
        <translation>開啟訊息表</translation>
    </message>
    <message>
        <source>Save Message Table</source>
        <translation>儲存訊息表</translation>
    </message>
    <message>
        <source>Could not load message table</source>
        <translation>無法載入訊息表</translation>
    </message>
    <message>
        <source>Table saved</source>
        <translation>已儲存表格</translation>
    </message>
    <message>
        <source>Table saved as %1</source>
        <translation>已將表格另存為 %1</translation>
    </message>
    <message>
        <source>Loading message table &quot;%1&quot;...</source>
        <translation>正在載入訊息表「%1」...</translation>
    </message>
    <message>
        <source>Open Visual Studio Project</source>
        <translation>開啟 Visual Studio 專案</translation>
    </message>
    <message>
        <source>Visual Studio Project Error</source>
        <translation>Visual Studio 專案錯誤</translation>
    </message>
    <message>
        <source>Could not parse %1</source>
        <translation>無法剖析 %1</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>已取消同步，表格未變更</translation>
    </message>
    <message>
        <source>Parser Error</source>
        <translation>剖析錯誤</translation>
    </message>
    <message>
        <source>Parsing</source>
        <translation>剖析</translation>
    </message>
    <message>
        <source>Parsing source files from %1</source>
        <translation>正在剖析 %1 中的原始程式檔</translation>
    </message>
    <message>
        <source>Found %1 keys</source>
        <translation>找到 %1 個索引鍵</translation>
    </message>
    <message>
        <source>Found 0 keys</source>
        <translation>找到 0 個索引鍵</translation>
    </message>
    <message>
        <source>Found %1 keys (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>找到 %1 個索引鍵（新增 %2 個，現有 %3 個，過時 %4 個）</translation>
    </message>
    <message>
        <source>Elapsed time: %1 sec</source>
        <translation>經過時間：%1 秒</translation>
    </message>
    <message>
        <source>Open Qt Translation File</source>
        <translation>開啟 Qt 翻譯檔</translation>
    </message>
    <message>
        <source>Qt Translation File Error</source>
        <translation>Qt 翻譯檔錯誤</translation>
    </message>
    <message>
        <source>Could not load &apos;%1&apos;: %2</source>
        <translation>無法載入「%1」：%2</translation>
    </message>
    <message>
        <source>Added %1 new strings to %2</source>
        <translation>已將 %1 個新字串新增至 %2</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>無法儲存 %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>正在讀取 %1</translation>
    </message>
    <message>
        <source>Update cancelled; the translation is unchanged</source>
        <translation>已取消更新，翻譯未變更</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>取消復原</translation>
    </message>
    <message>
        <source>Find and Replace...</source>
        <translation>尋找與取代...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>找下一個</translation>
    </message>
    <message>
        <source>Edit Message</source>
        <translation>編輯訊息</translation>
    </message>
    <message>
        <source>Mark as Reviewed</source>
        <translation>標示為已檢閱</translation>
    </message>
    <message>
        <source>Next New Message</source>
        <translation>下一則新訊息</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>訊息</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>鍵入</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>嚴重性</translation>
    </message>
    <message>
        <source>There are no new messages</source>
        <translation>沒有新訊息</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>找不到</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>取代</translation>
    </message>
    <message>
        <source>Messages changed: %L1</source>
        <translation>已變更的訊息：%L1</translation>
    </message>
    <message>
        <source>New: %L1, obsolete: %L2, incomplete: %L3</source>
        <translation>新增：%L1，過時：%L2，不完整：%L3</translation>
    </message>
    <message>
        <source>Untranslated strings with a translation in another context: %L1

Take these translations over? The strings stay unfinished.</source>
        <translation>在其他上下文中已有翻譯的未翻譯字串：%L1

是否沿用這些翻譯？字串仍保持未完成狀態。</translation>
    </message>
    <message>
        <source>Adopt Texts From...</source>
        <translation>沿用文字...</translation>
    </message>
    <message>
        <source>Select a new message</source>
        <translation>請選取一則新訊息</translation>
    </message>
    <message>
        <source>No obsolete message has a similar tag or text</source>
        <translation>沒有標籤或文字相似的過時訊息</translation>
    </message>
    <message>
        <source>Check Messages</source>
        <translation>檢查訊息</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>檢查結果</translation>
    </message>
    <message>
        <source>Messages with a title or an action that is not saved with their severity: %L1</source>
        <translation>標題或動作因嚴重性而不會儲存的訊息：%L1</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>尋找與取代</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>正在取代...</translation>
    </message>
    <message>
        <source>Cancelled; nothing was replaced</source>
        <translation>已取消，未取代任何內容</translation>
    </message>
</context>
<context>
    <name>MessageWindow::AdoptionDialog</name>
    <message>
        <source>Adopt Texts</source>
        <translation>沿用文字</translation>
    </message>
    <message>
        <source>Obsolete messages</source>
        <translation>過時的訊息</translation>
    </message>
    <message>
        <source>The message adopts the texts of this obsolete message, which is removed:</source>
        <translation>該訊息將沿用下面過時訊息的文字，並移除後者：</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindDialog</name>
    <message>
        <source>Match case</source>
        <translation>大小寫須相符</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>尋找與取代</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>尋找目標：</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>取代為：</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>找下一個</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>取代</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>全部取代</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>檢查結果</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 以及其他 %1 個</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePanel</name>
    <message>
        <source>Process</source>
        <translation>處理程序</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>上下文</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>標籤</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>嚴重性</translation>
    </message>
    <message>
        <source>State</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>備註</translation>
    </message>
    <message>
        <source>Select a message to edit it.</source>
        <translation>選取要編輯的訊息。</translation>
    </message>
    <message>
        <source>Selected messages: %L1</source>
        <translation>已選取的訊息：%L1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePreview</name>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
</context>
<context>
    <name>ProjectScan</name>
    <message>
        <source>... and %1 more</source>
        <translation>... 以及其他 %1 個</translation>
    </message>
    <message>
        <source>These files were skipped: their messages were not found.</source>
        <translation>已略過這些檔案：找不到其中的訊息。</translation>
    </message>
    <message>
        <source>These entries of the project were not resolved: the files that they list were not scanned.</source>
        <translation>無法解析專案中的這些項目：未掃描它們指定的原始程式檔。</translation>
    </message>
</context>
</TS>
