<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>MaterialTranslationTable</name>
    <message>
        <source>It is not a translation file</source>
        <translation>这不是翻译文件</translation>
    </message>
    <message>
        <source>It cannot be written</source>
        <translation>无法写入文件</translation>
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
        <translation>与材料数据库同步</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Obsolete</source>
        <translation>已过时</translation>
    </message>
    <message>
        <source>New in the material database, to be translated</source>
        <translation>材料数据库中的新名称，需要翻译</translation>
    </message>
    <message>
        <source>Obsolete: was not found in the material database; the translation is kept</source>
        <translation>已过时：在材料数据库中未找到；翻译将保留</translation>
    </message>
    <message>
        <source>Material Name Utility</source>
        <translation>材料名称实用程序</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>翻译</translation>
    </message>
    <message>
        <source>Open Translation Table</source>
        <translation>打开翻译表</translation>
    </message>
    <message>
        <source>Save Translation Table</source>
        <translation>保存翻译表</translation>
    </message>
    <message>
        <source>Could not load translation table</source>
        <translation>无法加载翻译表</translation>
    </message>
    <message>
        <source>Created new translation table</source>
        <translation>已创建新的翻译表</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>已打开 %1</translation>
    </message>
    <message>
        <source>Saved translation table</source>
        <translation>已保存翻译表</translation>
    </message>
    <message>
        <source>Saved translation table as %1</source>
        <translation>已将翻译表另存为 %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>正在读取 %1</translation>
    </message>
    <message>
        <source>Open Material Database</source>
        <translation>打开材料数据库</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>已取消同步，表未更改</translation>
    </message>
    <message>
        <source>Load Material Database</source>
        <translation>加载材料数据库</translation>
    </message>
    <message>
        <source>Cannot read material database</source>
        <translation>无法读取材料数据库</translation>
    </message>
    <message>
        <source>Found %1 names (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>找到 %1 个名称（新增 %2 个，现有 %3 个，已过时 %4 个）</translation>
    </message>
</context>
</TS>
