<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>MaterialTranslationTable</name>
    <message>
        <source>It is not a translation file</source>
        <translation>這不是翻譯檔</translation>
    </message>
    <message>
        <source>It cannot be written</source>
        <translation>無法寫入檔案</translation>
    </message>
</context>
<context>
    <name>mat::MaterialNameUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>同步...</translation>
    </message>
    <message>
        <source>Synchronize with material database</source>
        <translation>與材料資料庫同步</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Obsolete</source>
        <translation>過時</translation>
    </message>
    <message>
        <source>New in the material database, to be translated</source>
        <translation>材料資料庫中的新名稱，需要翻譯</translation>
    </message>
    <message>
        <source>Obsolete: was not found in the material database; the translation is kept</source>
        <translation>過時：在材料資料庫中找不到；翻譯會保留</translation>
    </message>
    <message>
        <source>Material Name Utility</source>
        <translation>材料名稱公用程式</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>翻譯</translation>
    </message>
    <message>
        <source>Open Translation Table</source>
        <translation>開啟翻譯表</translation>
    </message>
    <message>
        <source>Save Translation Table</source>
        <translation>儲存翻譯表</translation>
    </message>
    <message>
        <source>Could not load translation table</source>
        <translation>無法載入翻譯表</translation>
    </message>
    <message>
        <source>Created new translation table</source>
        <translation>已建立新的翻譯表</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>已開啟 %1</translation>
    </message>
    <message>
        <source>Saved translation table</source>
        <translation>已儲存翻譯表</translation>
    </message>
    <message>
        <source>Saved translation table as %1</source>
        <translation>已將翻譯表另存為 %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>正在讀取 %1</translation>
    </message>
    <message>
        <source>Open Material Database</source>
        <translation>開啟材料資料庫</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>已取消同步，表格未變更</translation>
    </message>
    <message>
        <source>Load Material Database</source>
        <translation>載入材料資料庫</translation>
    </message>
    <message>
        <source>Cannot read material database</source>
        <translation>無法讀取材料資料庫</translation>
    </message>
    <message>
        <source>Found %1 names (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>找到 %1 個名稱（新增 %2 個，現有 %3 個，過時 %4 個）</translation>
    </message>
</context>
</TS>
