<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Leftovers</name>
    <message>
        <source>Line %1: %2 is not kept</source>
        <translation>Строка %1: %2 не сохраняется</translation>
    </message>
    <message>
        <source>Line %1: %2 is not kept; it occurs again in line %3</source>
        <translation>Строка %1: %2 не сохраняется, повторяется в строке %3</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... и еще %1</translation>
    </message>
    <message>
        <source>Parts of the file were dropped; the previous file is kept as %1</source>
        <translation>Части файла опущены, прежний файл: %1</translation>
    </message>
</context>
<context>
    <name>MessageTable</name>
    <message>
        <source>The marks of an unfinished merge</source>
        <translation>Метки незавершенного слияния</translation>
    </message>
</context>
<context>
    <name>Window::FilterField</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Фильтр (Ctrl+F)</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text</source>
        <translation>Показывает только строки с этим текстом</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
</context>
<context>
    <name>Window::MarkedTableView</name>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
</context>
<context>
    <name>Window::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>Window::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Недав&amp;ние файлы</translation>
    </message>
</context>
<context>
    <name>Window::TableWindow</name>
    <message>
        <source>Untitled</source>
        <translation>Без имени</translation>
    </message>
    <message>
        <source>%1 has unsaved changes. Save them?</source>
        <translation>В %1 есть несохраненные изменения. Сохранить их?</translation>
    </message>
    <message>
        <source>Could not save %1

The location may be write-protected or full. The table stays open, unsaved; save it in another location.</source>
        <translation>Не удалось сохранить %1

Возможно, расположение защищено от записи или на нем нет свободного места. Таблица остается открытой и не сохранена; сохраните ее в другом месте.</translation>
    </message>
    <message>
        <source>Rows: %L1</source>
        <translation>Строк: %L1</translation>
    </message>
    <message>
        <source>Rows: %L1 of %L2</source>
        <translation>Строк: %L1 из %L2</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (не сохранено)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Открыть...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>О программе...</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Load it again?</source>
        <translation>Файл %1 изменен другой программой. Загрузить его заново?</translation>
    </message>
    <message>
        <source>Your unsaved changes will be lost.</source>
        <translation>Несохраненные изменения будут потеряны.</translation>
    </message>
    <message>
        <source>Not everything in the file was understood. Saving the table drops these parts: %1</source>
        <translation>Не все содержимое файла распознано. При сохранении таблицы будут опущены части: %1</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>Файл %1 изменен другой программой.</translation>
    </message>
    <message>
        <source>Saving drops the parts of %1 that were not understood (%2). The old file is kept next to it.</source>
        <translation>При сохранении нераспознанные части %1 (%2) будут опущены. Прежний файл останется рядом.</translation>
    </message>
    <message>
        <source>Save the table anyway?</source>
        <translation>Все равно сохранить таблицу?</translation>
    </message>
</context>
<context>
    <name>XmlSource</name>
    <message>
        <source>An element has too many attributes</source>
        <translation>У элемента слишком много атрибутов</translation>
    </message>
    <message>
        <source>The entities expand to too many characters</source>
        <translation>Сущности раскрываются в слишком большое число символов</translation>
    </message>
</context>
</TS>
