<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>MessageTableFile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Строка %1: %2</translation>
    </message>
</context>
<context>
    <name>MessageTableUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>Синхронизировать...</translation>
    </message>
    <message>
        <source>Synchronize with source code</source>
        <translation>Синхронизировать с исходным кодом</translation>
    </message>
    <message>
        <source>Update Translation...</source>
        <translation>Обновить перевод...</translation>
    </message>
    <message>
        <source>Update translation</source>
        <translation>Обновить перевод</translation>
    </message>
    <message>
        <source>tr</source>
        <translation>tr</translation>
    </message>
    <message>
        <source>Found in the sources, not reviewed yet</source>
        <translation>Найдено в исходном коде, еще не проверено</translation>
    </message>
    <message>
        <source>No longer found in the sources</source>
        <translation>Больше не встречается в исходном коде</translation>
    </message>
    <message>
        <source>Message Table Utility</source>
        <translation>Программа для работы с таблицами сообщений</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Процесс</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>Контекст</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Тег</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Open Message Table</source>
        <translation>Открыть таблицу сообщений</translation>
    </message>
    <message>
        <source>Save Message Table</source>
        <translation>Сохранить таблицу сообщений</translation>
    </message>
    <message>
        <source>Could not load message table</source>
        <translation>Не удалось загрузить таблицу сообщений</translation>
    </message>
    <message>
        <source>Table saved</source>
        <translation>Таблица сохранена</translation>
    </message>
    <message>
        <source>Table saved as %1</source>
        <translation>Таблица сохранена как %1</translation>
    </message>
    <message>
        <source>Loading message table &quot;%1&quot;...</source>
        <translation>Загрузка таблицы сообщений «%1»...</translation>
    </message>
    <message>
        <source>Open Visual Studio Project</source>
        <translation>Открыть проект Visual Studio</translation>
    </message>
    <message>
        <source>Visual Studio Project Error</source>
        <translation>Ошибка проекта Visual Studio</translation>
    </message>
    <message>
        <source>Could not parse %1</source>
        <translation>Не удалось разобрать %1</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>Синхронизация отменена, таблица не изменена</translation>
    </message>
    <message>
        <source>Parser Error</source>
        <translation>Ошибка разбора</translation>
    </message>
    <message>
        <source>Parsing</source>
        <translation>Разбор</translation>
    </message>
    <message>
        <source>Parsing source files from %1</source>
        <translation>Разбор исходных файлов из %1</translation>
    </message>
    <message>
        <source>Found %1 keys</source>
        <translation>Найдено ключей: %1</translation>
    </message>
    <message>
        <source>Found 0 keys</source>
        <translation>Найдено ключей: 0</translation>
    </message>
    <message>
        <source>Found %1 keys (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>Найдено ключей: %1 (новых: %2, существующих: %3, устаревших: %4)</translation>
    </message>
    <message>
        <source>Elapsed time: %1 sec</source>
        <translation>Затраченное время: %1 с</translation>
    </message>
    <message>
        <source>Open Qt Translation File</source>
        <translation>Открыть файл перевода Qt</translation>
    </message>
    <message>
        <source>Qt Translation File Error</source>
        <translation>Ошибка файла перевода Qt</translation>
    </message>
    <message>
        <source>Could not load &apos;%1&apos;: %2</source>
        <translation>Не удалось загрузить «%1»: %2</translation>
    </message>
    <message>
        <source>Added %1 new strings to %2</source>
        <translation>Новых строк добавлено в %2: %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Не удалось сохранить %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Чтение %1</translation>
    </message>
    <message>
        <source>Update cancelled; the translation is unchanged</source>
        <translation>Обновление отменено, перевод не изменен</translation>
    </message>
</context>
<context>
    <name>ProjectScan</name>
    <message>
        <source>... and %1 more</source>
        <translation>... и еще %1</translation>
    </message>
    <message>
        <source>These files were skipped: their messages were not found.</source>
        <translation>Эти файлы пропущены: их сообщения не найдены.</translation>
    </message>
</context>
</TS>
