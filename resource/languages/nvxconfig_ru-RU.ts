<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ArchiveComponents</name>
    <message>
        <source> Tutorials</source>
        <translation> учебных примеров</translation>
    </message>
    <message>
        <source>Installing Tutorials</source>
        <translation>Выполняется установка учебных примеров</translation>
    </message>
    <message>
        <source> Python (locally for NVX)</source>
        <translation> Python (локально для NVX)</translation>
    </message>
    <message>
        <source>Installing Python</source>
        <translation>Выполняется установка Python</translation>
    </message>
    <message>
        <source> Mertle Server</source>
        <translation> Mertle Server</translation>
    </message>
    <message>
        <source>No translators folder is set; the Mertle Server is not installed or removed</source>
        <translation>Папка трансляторов отсутствует, Mertle Server оставлен без изменений</translation>
    </message>
    <message>
        <source>Installing Mertle Server</source>
        <translation>Выполняется установка Mertle Server</translation>
    </message>
</context>
<context>
    <name>BrevantLauncher</name>
    <message>
        <source>Configure Brevant</source>
        <translation>Настройка Brevant</translation>
    </message>
</context>
<context>
    <name>ClassWizard</name>
    <message>
        <source>%1 %2 Configuration Wizard</source>
        <translation>Мастер настройки %1 %2</translation>
    </message>
    <message>
        <source>Program exiting</source>
        <translation>Завершение работы программы</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Valid NVX command line arguments are:
-I Install mode(default)
-U UnInstall mode
-STop Stop Services
-S Slient mode
-L Install USA language
-Lxxx Install language xxx
-E look in %temp%NVXENv.txt for install language

 Do you want to continue?
</source>
        <translation>Допустимые аргументы командной строки NVX:
-I Режим установки (по умолчанию)
-U Режим удаления
-STop Остановить службы
-S Тихий режим
-L Установить английский язык (США)
-Lxxx Установить язык xxx
-E Искать язык установки в %temp%NVXENv.txt

 Продолжить?
</translation>
    </message>
</context>
<context>
    <name>CommandRunner</name>
    <message>
        <source>The program could not be started.</source>
        <translation>Не удалось запустить программу.</translation>
    </message>
    <message>
        <source>The program was still running after %1 ms and has been ended.</source>
        <translation>Программа не завершилась за %1 мс и была остановлена.</translation>
    </message>
    <message>
        <source>The program crashed.</source>
        <translation>Программа завершилась аварийно.</translation>
    </message>
    <message>
        <source>The name of this folder cannot be written in the command interpreter&apos;s code page; it is not removed: %1</source>
        <translation>Имя этой папки невозможно представить в кодовой странице командного интерпретатора, папка не удалена: %1</translation>
    </message>
    <message>
        <source>Unable to create %1; this folder is not removed: %2</source>
        <translation>Не удалось создать %1, эта папка не удалена: %2</translation>
    </message>
    <message>
        <source>The name of this folder contains a character that ends or changes a command; it is not removed: %1</source>
        <translation>Имя этой папки содержит символ, который завершает или изменяет команду, папка не удалена: %1</translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>Conclusion </source>
        <translation>Завершение </translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
</context>
<context>
    <name>ContextHelp</name>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
</context>
<context>
    <name>CreoLauncher</name>
    <message>
        <source> Creo Remove:</source>
        <translation> Creo — удаление:</translation>
    </message>
    <message>
        <source>Removing Ostrade from:</source>
        <translation>Удаление Ostrade из:</translation>
    </message>
    <message>
        <source>Writing </source>
        <translation>Запись файла </translation>
    </message>
    <message>
        <source>Creating  </source>
        <translation>Создание файла  </translation>
    </message>
    <message>
        <source>Ostrade %1 already exists, do nothing</source>
        <translation>Ostrade %1 уже существует, изменения не требуются</translation>
    </message>
</context>
<context>
    <name>Detection</name>
    <message>
        <source>%1 Install Dir:%2</source>
        <translation>Папка установки %1: %2</translation>
    </message>
    <message>
        <source>Using %1 Install Dir:%2</source>
        <translation>Используется %1, папка установки: %2</translation>
    </message>
    <message>
        <source>%1 Product Code =%2</source>
        <translation>Код продукта %1 =%2</translation>
    </message>
</context>
<context>
    <name>FeaturePage</name>
    <message>
        <source>Pro/ENGINEER Creo</source>
        <translation>Pro/ENGINEER Creo</translation>
    </message>
    <message>
        <source>SolidWorks</source>
        <translation>SolidWorks</translation>
    </message>
    <message>
        <source>Brevant</source>
        <translation>Brevant</translation>
    </message>
    <message>
        <source>UGS NX</source>
        <translation>UGS NX</translation>
    </message>
    <message>
        <source>Tamsel</source>
        <translation>Tamsel</translation>
    </message>
    <message>
        <source>Tamsel Architecture</source>
        <translation>Tamsel Architecture</translation>
    </message>
    <message>
        <source>Tamsel MEP</source>
        <translation>Tamsel MEP</translation>
    </message>
    <message>
        <source>SpaceClaim</source>
        <translation>SpaceClaim</translation>
    </message>
    <message>
        <source>CAD Launchers </source>
        <translation>Модули запуска для САПР </translation>
    </message>
    <message>
        <source>NVX launchers will be installed for the CAD systems that are checked.</source>
        <translation>Для отмеченных САПР будут установлены модули запуска NVX.</translation>
    </message>
</context>
<context>
    <name>FileAssociations</name>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; no files are associated with the product: %1</source>
        <translation>Имя папки невозможно представить в кодовой странице системы, файлы не сопоставлены с продуктом: %1</translation>
    </message>
    <message>
        <source>Create file associations</source>
        <translation>Создание сопоставлений файлов</translation>
    </message>
    <message>
        <source>The install folder is unknown; no files are associated</source>
        <translation>Папка установки неизвестна, файлы не сопоставлены</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>The install folder&apos;s path cannot be written in the system&apos;s code page; the launcher is not added to %1</source>
        <translation>Имя папки установки невозможно представить в кодовой странице системы, модуль запуска не внесен в %1</translation>
    </message>
</context>
<context>
    <name>Localization::TranslationJob</name>
    <message>
        <source>%1 is a link, which is not followed</source>
        <translation>%1 является ссылкой, переход по ней не выполняется</translation>
    </message>
    <message>
        <source>%1 has more than %2 files; the others are not downloaded</source>
        <translation>В папке %1 больше файлов, чем %2, остальные не загружаются</translation>
    </message>
    <message>
        <source>%1 is refused: %2</source>
        <translation>Файл %1 отклонен: %2</translation>
    </message>
</context>
<context>
    <name>MaterialDatabase</name>
    <message>
        <source>Checking material database</source>
        <translation>Проверка базы данных материалов</translation>
    </message>
    <message>
        <source>Installation error matprop.mdb does not exist?</source>
        <translation>Ошибка установки: файл matprop.mdb отсутствует?</translation>
    </message>
    <message>
        <source>Installation error: </source>
        <translation>Ошибка установки: </translation>
    </message>
    <message>
        <source> does not exist.</source>
        <translation> отсутствует.</translation>
    </message>
    <message>
        <source>Copy: </source>
        <translation>Копирование: </translation>
    </message>
    <message>
        <source> to: </source>
        <translation> в: </translation>
    </message>
    <message>
        <source>Remove: </source>
        <translation>Удаление: </translation>
    </message>
</context>
<context>
    <name>Nvx::Wizard::ProgressList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Выделить &amp;все</translation>
    </message>
</context>
<context>
    <name>NxLauncher</name>
    <message>
        <source>Copying %1 to %2</source>
        <translation>Копирование %1 в %2</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Проверка:</translation>
    </message>
    <message>
        <source>Creating</source>
        <translation>Создание:</translation>
    </message>
</context>
<context>
    <name>ParallelConfiguration</name>
    <message>
        <source>Created NVX2 default configuration: %1</source>
        <translation>Создана конфигурация NVX2 по умолчанию: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 default configuration: %1</source>
        <translation>Не удалось создать конфигурацию NVX2 по умолчанию: %1</translation>
    </message>
    <message>
        <source>Created NVX2 analyze folder: %1</source>
        <translation>Создана папка анализа NVX2: %1</translation>
    </message>
    <message>
        <source>Unable to create NVX2 analyze folder: %1</source>
        <translation>Не удалось создать папку анализа NVX2: %1</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>%1 terminated</source>
        <translation>Процесс %1 завершен</translation>
    </message>
    <message>
        <source>%1 was not terminated</source>
        <translation>Процесс %1 не удалось завершить</translation>
    </message>
</context>
<context>
    <name>ProcessGuard</name>
    <message>
        <source>Click Yes to continue after the process is stopped.
Click No to continue without stopping the process.</source>
        <translation>Нажмите кнопку «Да», чтобы остановить процесс и продолжить.
Нажмите кнопку «Нет», чтобы продолжить без остановки процесса.</translation>
    </message>
    <message>
        <source>Click Yes to continue after the processes are stopped.
Click No to continue without stopping the processes.</source>
        <translation>Нажмите кнопку «Да», чтобы остановить процессы и продолжить.
Нажмите кнопку «Нет», чтобы продолжить без остановки процессов.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>Программа %1 запущена. Ее следует остановить, прежде чем настраивать надстройку модуля запуска NVX.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before the NVX launcher add-in can be configured.</source>
        <translation>Программы %1 запущены. Их следует остановить, прежде чем настраивать надстройку модуля запуска NVX.</translation>
    </message>
    <message>
        <source>%1 is running, and should be stopped before continuing.</source>
        <translation>Программа %1 запущена. Ее следует остановить, прежде чем продолжить.</translation>
    </message>
    <message>
        <source>%1 are running, and should be stopped before continuing.</source>
        <translation>Программы %1 запущены. Их следует остановить, прежде чем продолжить.</translation>
    </message>
    <message>
        <source>CAD Launcher Installation</source>
        <translation>Установка модулей запуска для САПР</translation>
    </message>
    <message>
        <source>Velmora %1 Installation</source>
        <translation>Установка Velmora %1</translation>
    </message>
</context>
<context>
    <name>ProductFiles</name>
    <message>
        <source>%1 does not belong to administrators and may lead elsewhere; this is left unchanged: %2</source>
        <translation>%1 не принадлежит администраторам и может вести в другое место, оставлено без изменений: %2</translation>
    </message>
    <message>
        <source>Unable to limit write access to this folder to administrators: %1</source>
        <translation>Не удалось ограничить право записи в эту папку администраторами: %1</translation>
    </message>
    <message>
        <source>Unable to take this folder over from the user who created it: %1</source>
        <translation>Не удалось стать владельцем этой папки вместо создавшего ее пользователя: %1</translation>
    </message>
</context>
<context>
    <name>ProductRegistry</name>
    <message>
        <source>Updating language registry uninstall </source>
        <translation>Обновление языка удаления в реестре </translation>
    </message>
    <message>
        <source>Updating language registry uninstall currently is:</source>
        <translation>Язык удаления в реестре, текущее значение:</translation>
    </message>
    <message>
        <source>Updating language registry uninstall locale=</source>
        <translation>Язык удаления в реестре, языковой стандарт=</translation>
    </message>
    <message>
        <source>Updating language registry uninstall set to:</source>
        <translation>Язык удаления в реестре, новое значение:</translation>
    </message>
    <message>
        <source>Registry paths</source>
        <translation>Пути реестра</translation>
    </message>
</context>
<context>
    <name>ServerService</name>
    <message>
        <source>Unable to find server executable; Check_ Installation Directory path:</source>
        <translation>Не найдена программа сервера; проверьте путь к папке установки:</translation>
    </message>
    <message>
        <source>Unable to install the server</source>
        <translation>Не удалось установить сервер</translation>
    </message>
    <message>
        <source>Server Error</source>
        <translation>Ошибка сервера</translation>
    </message>
    <message>
        <source>Manages communication between NVX components.</source>
        <translation>Управляет обменом данными между компонентами NVX.</translation>
    </message>
    <message>
        <source>uninstallServer </source>
        <translation>uninstallServer </translation>
    </message>
    <message>
        <source>uninstallServer - could not stop service</source>
        <translation>uninstallServer - не удалось остановить службу</translation>
    </message>
    <message>
        <source>uninstallServer - service was not installed</source>
        <translation>uninstallServer - служба не была установлена</translation>
    </message>
    <message>
        <source>uninstallServer - could not uninstall service</source>
        <translation>uninstallServer - не удалось удалить службу</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Desktop=</source>
        <translation>Рабочий стол=</translation>
    </message>
    <message>
        <source>The shared desktop folder was not found; no shortcut was created</source>
        <translation>Нет общей папки рабочего стола для всех пользователей, ярлык не создан</translation>
    </message>
    <message>
        <source>Unable to remove %1</source>
        <translation>Не удалось удалить %1</translation>
    </message>
    <message>
        <source>This text is too long for a shortcut: %1</source>
        <translation>Этот текст слишком длинный для ярлыка: %1</translation>
    </message>
    <message>
        <source>Create shortcut </source>
        <translation>Создание ярлыка </translation>
    </message>
</context>
<context>
    <name>SpaceClaimLauncher</name>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>Копирование: %1 в: %2</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Stopping Services</source>
        <translation>Остановка служб</translation>
    </message>
</context>
<context>
    <name>TamselLauncher</name>
    <message>
        <source>Open failed:</source>
        <translation>Не удалось открыть файл:</translation>
    </message>
    <message>
        <source>Copying:%1 to: %2</source>
        <translation>Копирование: %1 в: %2</translation>
    </message>
    <message>
        <source>Tamsel Addin</source>
        <translation>Надстройка Tamsel</translation>
    </message>
    <message>
        <source>Removing:</source>
        <translation>Удаление:</translation>
    </message>
</context>
<context>
    <name>TranslationAnswer</name>
    <message>
        <source>it is for the language %1</source>
        <translation>файл предназначен для языка %1</translation>
    </message>
    <message>
        <source>the values such as %1 differ between &quot;%2&quot; and its translation &quot;%3&quot;</source>
        <translation>значения вида %1 различаются в тексте «%2» и в переводе «%3»</translation>
    </message>
    <message>
        <source>it has %1 finished texts, and the existing file has %2</source>
        <translation>готовых текстов: %1, в существующем файле: %2</translation>
    </message>
</context>
<context>
    <name>UserFiles</name>
    <message>
        <source>Remove: </source>
        <translation>Удаление: </translation>
    </message>
    <message>
        <source>Remove: Report .pyc files</source>
        <translation>Удаление: файлы .pyc отчетов</translation>
    </message>
    <message>
        <source> Sorvane</source>
        <translation> Sorvane</translation>
    </message>
</context>
<context>
    <name>ViewerConfiguration</name>
    <message>
        <source>Running NVX 3D-ViewerConfig.</source>
        <translation>Запуск NVX 3D-ViewerConfig.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>English</source>
        <translation>Английский</translation>
    </message>
    <message>
        <source>Chinese (Simplified)</source>
        <translation>Китайский (упрощенный)</translation>
    </message>
    <message>
        <source>Chinese (Traditional)</source>
        <translation>Китайский (традиционный)</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Немецкий</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Французский</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Японский</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Итальянский</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Корейский</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>This wizard will configure Velmora %1 %2 for your system.</source>
        <translation>Этот мастер настроит Velmora %1 %2 для вашей системы.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Изменить язык</translation>
    </message>
</context>
<context>
    <name>cfg_utilitys</name>
    <message>
        <source>Program startup - %1 DIR== %2</source>
        <translation>Запуск программы - %1 DIR== %2</translation>
    </message>
    <message>
        <source>NVX Configuration Utility</source>
        <translation>Программа настройки NVX</translation>
    </message>
    <message>
        <source>Processing </source>
        <translation>Обработка файла </translation>
    </message>
    <message>
        <source> has not changed</source>
        <translation> — без изменений</translation>
    </message>
    <message>
        <source> has changed, not removing</source>
        <translation> изменен и не удаляется</translation>
    </message>
    <message>
        <source>Creating </source>
        <translation>Создание файла </translation>
    </message>
    <message>
        <source>Unable to create %1</source>
        <translation>Не удалось создать %1</translation>
    </message>
    <message>
        <source>Language </source>
        <translation>Язык: </translation>
    </message>
    <message>
        <source>No Language locale Specified</source>
        <translation>Язык не указан</translation>
    </message>
    <message>
        <source>Install Language: </source>
        <translation>Язык установки: </translation>
    </message>
    <message>
        <source>ChangeLanguage = </source>
        <translation>Смена языка = </translation>
    </message>
    <message>
        <source>COPY:%1 to %2</source>
        <translation>КОПИРОВАНИЕ: %1 в %2</translation>
    </message>
    <message>
        <source>Remove:</source>
        <translation>Удаление:</translation>
    </message>
    <message>
        <source>zorv :</source>
        <translation>zorv :</translation>
    </message>
    <message>
        <source>Beginning </source>
        <translation>Начало: </translation>
    </message>
    <message>
        <source>The installation or update is complete. Click finish to continue.</source>
        <translation>Установка или обновление завершено. Чтобы продолжить, нажмите кнопку «Завершить».</translation>
    </message>
    <message>
        <source>Processors: %1, Cores per processor: %2</source>
        <translation>Процессоров: %1, ядер на процессор: %2</translation>
    </message>
    <message>
        <source>Command Line:</source>
        <translation>Командная строка:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установка</translation>
    </message>
    <message>
        <source>UnInstall</source>
        <translation>Удаление</translation>
    </message>
    <message>
        <source>Found </source>
        <translation>Найдено: </translation>
    </message>
    <message>
        <source> Success</source>
        <translation> — успешно</translation>
    </message>
    <message>
        <source> Failed</source>
        <translation> — сбой</translation>
    </message>
    <message>
        <source>Command line arguments</source>
        <translation>Аргументы командной строки</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora %1 %2 DIR=</source>
        <translation>Проверка пути установки Velmora %1 %2 DIR=</translation>
    </message>
    <message>
        <source>Validating Installation Path Velmora NVX %1 DIR=</source>
        <translation>Проверка пути установки Velmora NVX %1 DIR=</translation>
    </message>
    <message>
        <source>Install Path OK </source>
        <translation>Путь установки в порядке: </translation>
    </message>
    <message>
        <source>user dir=</source>
        <translation>папка пользователя=</translation>
    </message>
    <message>
        <source>Program startup - Install path is empty or is invalid, resetting to:</source>
        <translation>Запуск программы - Путь установки не задан или недопустим, заменяется на:</translation>
    </message>
    <message>
        <source>Removing installation path environment variables.</source>
        <translation>Удаление переменных среды с путем установки:</translation>
    </message>
    <message>
        <source>The folder&apos;s path cannot be written in the system&apos;s code page; %1 is not set</source>
        <translation>Имя папки невозможно представить в кодовой странице системы, переменная %1 не задана</translation>
    </message>
    <message>
        <source>Searching for CAD Packages</source>
        <translation>Поиск пакетов САПР</translation>
    </message>
    <message>
        <source>Finished searching for CAD Packages</source>
        <translation>Поиск пакетов САПР завершен</translation>
    </message>
    <message>
        <source>Another run of this program is in progress on this machine. This one continues when that has ended, after %1 minutes at the latest.</source>
        <translation>Эта программа уже выполняется на этом компьютере. Работа продолжится, когда завершится другой запуск, самое позднее через %1 мин.</translation>
    </message>
    <message>
        <source>Another run was in progress; this one has waited for its end</source>
        <translation>Выполнялся другой запуск; этот дождался его завершения</translation>
    </message>
    <message>
        <source>Another run has been in progress for %1 minutes; this one no longer waits for its end</source>
        <translation>Другой запуск выполняется уже %1 мин; этот больше не ждет его завершения</translation>
    </message>
    <message>
        <source>Unable to check whether another run is in progress; a program without administrator rights may have prevented it</source>
        <translation>Не удалось проверить, выполняется ли другой запуск; возможно, этому помешала программа без прав администратора</translation>
    </message>
    <message>
        <source>%1 is not used; it is not an ordinary file of at most %2 KiB</source>
        <translation>%1 не используется: это не обычный файл размером не более %2 КиБ</translation>
    </message>
    <message>
        <source>%1 is being configured. If you sign out now, it stays incomplete.</source>
        <translation>Выполняется настройка %1. Если выйти из системы сейчас, она останется незавершенной.</translation>
    </message>
</context>
<context>
    <name>util::util_localization_tool</name>
    <message>
        <source>%1 is damaged</source>
        <translation>Файл %1 поврежден</translation>
    </message>
    <message>
        <source>No source folder was found; nothing is translated</source>
        <translation>Папка с исходным кодом отсутствует, перевод не выполняется</translation>
    </message>
    <message>
        <source>%1: %2 texts to translate</source>
        <translation>%1: текстов для перевода: %2</translation>
    </message>
    <message>
        <source>%1 texts to translate in %2 files</source>
        <translation>Текстов для перевода: %1, файлов: %2</translation>
    </message>
    <message>
        <source>localization.xml has no full path of a folder with lupdate and lrelease; nothing is updated or compiled</source>
        <translation>В localization.xml нет полного пути к папке с lupdate и lrelease, обновление и компиляция не выполняются</translation>
    </message>
    <message>
        <source>%1: %2 texts finished, %3 open; %4 files refused</source>
        <translation>%1: готовых текстов: %2, неготовых: %3, отклонено файлов: %4</translation>
    </message>
</context>
</TS>
