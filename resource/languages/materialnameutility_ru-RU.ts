<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>MaterialTranslationTable</name>
    <message>
        <source>It is not a translation file</source>
        <translation>Это не файл перевода</translation>
    </message>
    <message>
        <source>It cannot be written</source>
        <translation>Не удается записать файл</translation>
    </message>
</context>
<context>
    <name>mat::MaterialNameUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>Синхронизировать...</translation>
    </message>
    <message>
        <source>Synchronize with material database</source>
        <translation>Синхронизировать с базой данных материалов</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новое</translation>
    </message>
    <message>
        <source>Obsolete</source>
        <translation>Устаревшее</translation>
    </message>
    <message>
        <source>New in the material database, to be translated</source>
        <translation>Новое название в базе данных материалов, требует перевода</translation>
    </message>
    <message>
        <source>Obsolete: was not found in the material database; the translation is kept</source>
        <translation>Устаревшее: название не найдено в базе данных материалов; перевод сохранен</translation>
    </message>
    <message>
        <source>Material Name Utility</source>
        <translation>Программа для работы с названиями материалов</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Перевод</translation>
    </message>
    <message>
        <source>Open Translation Table</source>
        <translation>Открыть таблицу перевода</translation>
    </message>
    <message>
        <source>Save Translation Table</source>
        <translation>Сохранить таблицу перевода</translation>
    </message>
    <message>
        <source>Could not load translation table</source>
        <translation>Не удалось загрузить таблицу перевода</translation>
    </message>
    <message>
        <source>Created new translation table</source>
        <translation>Создана новая таблица перевода</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>Открыт файл %1</translation>
    </message>
    <message>
        <source>Saved translation table</source>
        <translation>Таблица перевода сохранена</translation>
    </message>
    <message>
        <source>Saved translation table as %1</source>
        <translation>Таблица перевода сохранена как %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Чтение %1</translation>
    </message>
    <message>
        <source>Open Material Database</source>
        <translation>Открыть базу данных материалов</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>Синхронизация отменена, таблица не изменена</translation>
    </message>
    <message>
        <source>Load Material Database</source>
        <translation>Загрузка базы данных материалов</translation>
    </message>
    <message>
        <source>Cannot read material database</source>
        <translation>Не удается прочитать базу данных материалов</translation>
    </message>
    <message>
        <source>Found %1 names (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>Найдено названий: %1 (новых: %2, существующих: %3, устаревших: %4)</translation>
    </message>
</context>
</TS>
