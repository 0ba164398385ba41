<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Findings</name>
    <message>
        <source>no longer found in the sources</source>
        <translation>больше не найдено в исходном коде</translation>
    </message>
    <message>
        <source>not reviewed yet</source>
        <translation>еще не проверено</translation>
    </message>
    <message>
        <source>Findings: %L1</source>
        <translation>Замечаний: %L1</translation>
    </message>
    <message>
        <source>%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with different placeholders, %L6 with different accelerators, %L7 with different blanks</source>
        <translation>%1: завершено %L2, не завершено %L3, устаревших %L4, с другими параметрами %L5, с другими клавишами доступа %L6, с другими пробелами %L7</translation>
    </message>
    <message>
        <source>no longer used</source>
        <translation>больше не используется</translation>
    </message>
    <message>
        <source>not translated yet</source>
        <translation>еще не переведено</translation>
    </message>
</context>
<context>
    <name>MessageRemarks</name>
    <message>
        <source>missing</source>
        <translation>отсутствует</translation>
    </message>
    <message>
        <source>begins with a blank</source>
        <translation>начинается с пробела</translation>
    </message>
    <message>
        <source>ends with a blank</source>
        <translation>заканчивается пробелом</translation>
    </message>
    <message>
        <source>the file cannot store the character %1</source>
        <translation>файл не может хранить символ %1</translation>
    </message>
    <message>
        <source>no translation is found, because %1 is not ASCII</source>
        <translation>перевод не будет найден: %1 не является символом ASCII</translation>
    </message>
    <message>
        <source>%1 is not filled in</source>
        <translation>%1 не заполняется</translation>
    </message>
    <message>
        <source>%1 is used, but %2 is not</source>
        <translation>%1 используется, а %2 — нет</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>not saved with this severity</source>
        <translation>не сохраняется при этой важности</translation>
    </message>
    <message>
        <source>the accelerator is missing</source>
        <translation>отсутствует клавиша доступа</translation>
    </message>
    <message>
        <source>the source has no accelerator</source>
        <translation>в исходном тексте нет клавиши доступа</translation>
    </message>
    <message>
        <source>begins with different blanks than the source</source>
        <translation>начинается не с тех же пробелов, что исходный текст</translation>
    </message>
    <message>
        <source>ends with different blanks than the source</source>
        <translation>заканчивается не теми же пробелами, что исходный текст</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>отсутствует %1</translation>
    </message>
    <message>
        <source>the source has no %1</source>
        <translation>в исходном тексте нет %1</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>Контекст</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
</context>
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
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Find and Replace...</source>
        <translation>Найти и заменить...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Найти далее</translation>
    </message>
    <message>
        <source>Edit Message</source>
        <translation>Изменить сообщение</translation>
    </message>
    <message>
        <source>Mark as Reviewed</source>
        <translation>Отметить как проверенное</translation>
    </message>
    <message>
        <source>Next New Message</source>
        <translation>Следующее новое сообщение</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Ввод</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Важность</translation>
    </message>
    <message>
        <source>There are no new messages</source>
        <translation>Новых сообщений нет</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Не найдено</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Messages changed: %L1</source>
        <translation>Изменено сообщений: %L1</translation>
    </message>
    <message>
        <source>New: %L1, obsolete: %L2, incomplete: %L3</source>
        <translation>Новых: %L1, устаревших: %L2, неполных: %L3</translation>
    </message>
    <message>
        <source>Untranslated strings with a translation in another context: %L1

Take these translations over? The strings stay unfinished.</source>
        <translation>Непереведенных строк с переводом в другом контексте: %L1

Взять эти переводы? Строки останутся незавершенными.</translation>
    </message>
    <message>
        <source>Adopt Texts From...</source>
        <translation>Взять тексты из...</translation>
    </message>
    <message>
        <source>Select a new message</source>
        <translation>Выберите новое сообщение</translation>
    </message>
    <message>
        <source>No obsolete message has a similar tag or text</source>
        <translation>Нет устаревших сообщений с похожим тегом или текстом</translation>
    </message>
    <message>
        <source>Check Messages</source>
        <translation>Проверить сообщения</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Результаты проверки</translation>
    </message>
    <message>
        <source>Messages with a title or an action that is not saved with their severity: %L1</source>
        <translation>Сообщений с заголовком или действием, которые не сохраняются при их важности: %L1</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Найти и заменить</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Выполняется замена...</translation>
    </message>
    <message>
        <source>Cancelled; nothing was replaced</source>
        <translation>Отменено, ничего не заменено</translation>
    </message>
</context>
<context>
    <name>MessageWindow::AdoptionDialog</name>
    <message>
        <source>Adopt Texts</source>
        <translation>Взять тексты</translation>
    </message>
    <message>
        <source>Obsolete messages</source>
        <translation>Устаревшие сообщения</translation>
    </message>
    <message>
        <source>The message adopts the texts of this obsolete message, which is removed:</source>
        <translation>Сообщение получит тексты этого устаревшего сообщения, а оно будет удалено:</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindDialog</name>
    <message>
        <source>Match case</source>
        <translation>Учитывать регистр</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Найти и заменить</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Найти:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Заменить на:</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Найти далее</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Заменить все</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>Результаты проверки</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... и еще %1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePanel</name>
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
        <source>Severity</source>
        <translation>Важность</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Замечания</translation>
    </message>
    <message>
        <source>Select a message to edit it.</source>
        <translation>Выберите сообщение, чтобы изменить его.</translation>
    </message>
    <message>
        <source>Selected messages: %L1</source>
        <translation>Выбрано сообщений: %L1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePreview</name>
    <message>
        <source>Preview</source>
        <translation>Предварительный просмотр</translation>
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
    <message>
        <source>These entries of the project were not resolved: the files that they list were not scanned.</source>
        <translation>Эти записи проекта не удалось разрешить: указанные в них исходные файлы не просмотрены.</translation>
    </message>
</context>
</TS>
