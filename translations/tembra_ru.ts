<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en_US">
<context>
    <name>AccessibleFile</name>
    <message>
        <source>Pinned</source>
        <translation>Закреплён</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Изменён</translation>
    </message>
    <message>
        <source>Original unavailable</source>
        <translation>Исходный файл недоступен</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
</context>
<context>
    <name>ActivationShortcut</name>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Tembra is still starting.</source>
        <translation>Tembra ещё запускается.</translation>
    </message>
</context>
<context>
    <name>AutoClean</name>
    <message>
        <source>Some pinned files couldn’t be located. Auto-clean remains unchanged.</source>
        <translation>Не удалось найти некоторые закреплённые файлы. Автоочистка не изменена.</translation>
    </message>
</context>
<context>
    <name>AutoCleanChange</name>
    <message>
        <source>Couldn’t check screenshots</source>
        <translation>Не удалось проверить снимки</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Включить</translation>
    </message>
    <message numerus="yes">
        <source>%n files will move to Trash when you click %1. Pinned files stay.</source>
        <translation>
            <numerusform>Когда вы нажмёте «%1», %n файл переместится в корзину. Закреплённые файлы останутся.</numerusform>
            <numerusform>Когда вы нажмёте «%1», %n файла переместятся в корзину. Закреплённые файлы останутся.</numerusform>
            <numerusform>Когда вы нажмёте «%1», %n файлов переместятся в корзину. Закреплённые файлы останутся.</numerusform>
        </translation>
    </message>
    <message>
        <source>Change auto-clean?</source>
        <translation>Изменить автоочистку?</translation>
    </message>
    <message>
        <source>Moves old screenshots and recordings to Trash, including existing ones. Pinned items stay.</source>
        <translation>Старые снимки и записи, в том числе уже имеющиеся, перемещаются в корзину. Закреплённые остаются.</translation>
    </message>
    <message>
        <source>Enable auto-clean?</source>
        <translation>Включить автоочистку?</translation>
    </message>
</context>
<context>
    <name>Bookmarks</name>
    <message>
        <source>The bookmark cannot be read.</source>
        <translation>Не удаётся прочитать закладку.</translation>
    </message>
    <message>
        <source>The disk that holds “%1” is not connected.</source>
        <translation>Диск, на котором находится «%1», не подключён.</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>«%1» больше нет на месте.</translation>
    </message>
</context>
<context>
    <name>CaptureCommand</name>
    <message>
        <source>Couldn’t Run the Command</source>
        <translation>Не удалось запустить команду</translation>
    </message>
    <message>
        <source>“%1”, which is to be run for new screenshots, could not be started.</source>
        <translation>Не удалось запустить команду «%1», заданную для новых снимков.</translation>
    </message>
</context>
<context>
    <name>CaptureNotification</name>
    <message>
        <source>Got it! First one caught</source>
        <translation>Есть! Первый пойман</translation>
    </message>
    <message>
        <source>Got the recording</source>
        <translation>Запись сохранена</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Снимок сохранён</translation>
    </message>
    <message numerus="yes">
        <source>%n captures</source>
        <translation>
            <numerusform>%n новый файл</numerusform>
            <numerusform>%n новых файла</numerusform>
            <numerusform>%n новых файлов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>%n снимок</numerusform>
            <numerusform>%n снимка</numerusform>
            <numerusform>%n снимков</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · copied</source>
        <translation>%1 · в буфере</translation>
    </message>
    <message>
        <source>Copies when you open the shelf</source>
        <translation>Скопируем при открытии полки</translation>
    </message>
</context>
<context>
    <name>ClearScreenshots</name>
    <message numerus="yes">
        <source>Move %n screenshots to Trash?</source>
        <translation>
            <numerusform>Переместить %n снимок в корзину?</numerusform>
            <numerusform>Переместить %n снимка в корзину?</numerusform>
            <numerusform>Переместить %n снимков в корзину?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pinned screenshots stay.</source>
        <translation>
            <numerusform>%n закреплённый снимок останется.</numerusform>
            <numerusform>%n закреплённых снимка останутся.</numerusform>
            <numerusform>%n закреплённых снимков останутся.</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Переместить</translation>
    </message>
</context>
<context>
    <name>ClipboardStore</name>
    <message>
        <source>Could not receive this file</source>
        <translation>Не удалось получить этот файл</translation>
    </message>
    <message>
        <source>Could not add this image</source>
        <translation>Не удалось добавить это изображение</translation>
    </message>
    <message>
        <source>Pipes, sockets and devices cannot be kept in the file tray</source>
        <translation>Каналы, сокеты и устройства нельзя хранить в лотке</translation>
    </message>
    <message>
        <source>Some files could not be received</source>
        <translation>Не удалось получить некоторые файлы</translation>
    </message>
    <message>
        <source>Receiving files…</source>
        <translation>Получение файлов…</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--tab takes tray, screenshots or text.</source>
        <translation>Параметр --tab принимает значения tray, screenshots или text.</translation>
    </message>
    <message>
        <source>%1 takes a file.</source>
        <translation>Параметру %1 нужен файл.</translation>
    </message>
    <message>
        <source>Unexpected word on the command line: %1</source>
        <translation>Лишнее слово в командной строке: %1</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>Нет команды «%1».</translation>
    </message>
    <message>
        <source>scan takes the folder to look at.</source>
        <translation>Команде scan нужна папка для просмотра.</translation>
    </message>
    <message>
        <source>add takes the files to put into the file tray.</source>
        <translation>Команде add нужны файлы для лотка.</translation>
    </message>
    <message>
        <source>edit takes the image to open.</source>
        <translation>Команде edit нужно изображение, которое следует открыть.</translation>
    </message>
    <message>
        <source>ocr takes the image to read.</source>
        <translation>Команде ocr нужно изображение, текст которого следует распознать.</translation>
    </message>
    <message>
        <source>render takes an image, --edits and -o with a file each.</source>
        <translation>Команде render нужны изображение и файлы для --edits и -o.</translation>
    </message>
    <message>
        <source>settings takes general, screenshots, editor, tray, text, shortcut, doctor or about.</source>
        <translation>settings принимает general, screenshots, editor, tray, text, shortcut, doctor или about.</translation>
    </message>
    <message>
        <source>Usage: tembra [COMMAND]

  tembra                       start, or show the shelf of the running one
  tembra --background          start without showing anything, as at login
  tembra open [--tab TAB]      open the shelf (TAB: tray, screenshots or text)
  tembra close                 close the shelf
  tembra toggle                open or close the shelf
  tembra add FILE...           put files into the file tray
  tembra edit FILE             open a screenshot in the editor
  tembra settings [PAGE]       open the settings (PAGE: general, screenshots, editor,
                               tray, text, shortcut, doctor or about)
  tembra doctor [--json]       tell what works on this desktop, and what mends the rest
  tembra status [--json]       tell the state of the running one
  tembra scan FOLDER [--json]  tell what is recognised as a capture, and why
  tembra render FILE --edits EDITS.json -o OUT
                               draw annotations and crop onto an image
  tembra ocr FILE [--paragraphs | --one-line] [--words] [--json]
                               read the text of an image
  tembra quit                  end the running one
  tembra --version, --help
</source>
        <translation>Использование: tembra [COMMAND]

  tembra                       запустить программу или показать её полку
  tembra --background          запустить, ничего не показывая, как при входе
  tembra open [--tab TAB]      открыть полку (TAB: tray, screenshots или text)
  tembra close                 закрыть полку
  tembra toggle                открыть или закрыть полку
  tembra add FILE...           положить файлы в лоток
  tembra edit FILE             открыть снимок в редакторе
  tembra settings [PAGE]       открыть настройки (PAGE: general, screenshots,
                               editor, tray, text, shortcut, doctor или about)
  tembra doctor [--json]       показать, что работает в этой рабочей среде
                               и что исправит остальное
  tembra status [--json]       показать состояние запущенной программы
  tembra scan FOLDER [--json]  показать, что признано снимком и почему
  tembra render FILE --edits EDITS.json -o OUT
                               нанести пометки и обрезку на изображение
  tembra ocr FILE [--paragraphs | --one-line] [--words] [--json]
                               распознать текст изображения
  tembra quit                  завершить запущенную программу
  tembra --version, --help
</translation>
    </message>
</context>
<context>
    <name>CommandService</name>
    <message>
        <source>Tembra does not know the command “%1”.</source>
        <translation>Tembra не знает команды «%1».</translation>
    </message>
    <message>
        <source>This tab is not shown.</source>
        <translation>Эта вкладка скрыта.</translation>
    </message>
    <message>
        <source>The settings have no page of this name.</source>
        <translation>В настройках нет страницы с таким именем.</translation>
    </message>
</context>
<context>
    <name>DesktopPaths</name>
    <message>
        <source>X11, with a compositor. Nothing is missing.</source>
        <translation>X11 с композитором. Всё доступно.</translation>
    </message>
    <message>
        <source>X11, without a compositor: the shelf’s corners are not see-through.</source>
        <translation>X11 без композитора: углы полки непрозрачны.</translation>
    </message>
    <message>
        <source>Start a compositor, for example picom.</source>
        <translation>Запустите композитор, например picom.</translation>
    </message>
    <message>
        <source>Wayland, through its X server, because this desktop gives programs no place at the edge of the screen. Over windows of other programs the pointer may go unnoticed there.</source>
        <translation>Wayland через его X-сервер: эта рабочая среда не даёт программам места у края экрана. Над окнами других программ указатель там может остаться незамеченным.</translation>
    </message>
    <message>
        <source>Bind the command “tembra toggle” to a key in the keyboard settings of the desktop.</source>
        <translation>Назначьте команде «tembra toggle» клавишу в настройках клавиатуры рабочей среды.</translation>
    </message>
    <message>
        <source>Wayland, as a layer of the desktop. Nothing is missing.</source>
        <translation>Wayland, слой рабочей среды. Всё доступно.</translation>
    </message>
    <message>
        <source>Wayland, on a desktop that gives programs no place at the edge of the screen.</source>
        <translation>Wayland, но эта рабочая среда не даёт программам места у края экрана.</translation>
    </message>
    <message>
        <source>Install the desktop’s X server, Xwayland, and log in again.</source>
        <translation>Установите X-сервер рабочей среды, Xwayland, и войдите снова.</translation>
    </message>
    <message>
        <source>Through the X server.</source>
        <translation>Через X-сервер.</translation>
    </message>
    <message>
        <source>Through the desktop’s data control, also in the background.</source>
        <translation>Через протокол data-control рабочей среды, в том числе в фоне.</translation>
    </message>
    <message>
        <source>This desktop lets only the program with the keyboard use the clipboard. New screenshots may not be copied by themselves.</source>
        <translation>Эта рабочая среда допускает к буферу обмена только программу, в которую сейчас идёт ввод с клавиатуры. Новые снимки могут не копироваться сами.</translation>
    </message>
    <message>
        <source>Select the screenshot in the shelf and press Ctrl+C.</source>
        <translation>Выделите снимок на полке и нажмите Ctrl+C.</translation>
    </message>
    <message>
        <source>Keys are taken from the X server.</source>
        <translation>Клавиши даёт X-сервер.</translation>
    </message>
    <message>
        <source>Keys are asked of the desktop’s portal.</source>
        <translation>Клавиши даёт портал рабочей среды.</translation>
    </message>
    <message>
        <source>This desktop lets programs have no keys of their own.</source>
        <translation>Эта рабочая среда не даёт программам своих клавиш.</translation>
    </message>
    <message>
        <source>This desktop shows no status items.</source>
        <translation>Эта рабочая среда не показывает значков программ.</translation>
    </message>
    <message>
        <source>Start Tembra once more to open the shelf, or use “tembra toggle”. Under GNOME the extension AppIndicator shows status items.</source>
        <translation>Чтобы открыть полку, запустите Tembra ещё раз или выполните «tembra toggle». В GNOME значки показывает расширение AppIndicator.</translation>
    </message>
    <message>
        <source>A new file in the folder was not noticed.</source>
        <translation>Новый файл в папке остался незамеченным.</translation>
    </message>
    <message>
        <source>Let programs watch more folders: sudo sysctl fs.inotify.max_user_watches=524288</source>
        <translation>Разрешите программам следить за большим числом папок: sudo sysctl fs.inotify.max_user_watches=524288</translation>
    </message>
    <message>
        <source>Text is read in: %1. Not installed: %2.</source>
        <translation>Языки распознавания: %1. Не установлены: %2.</translation>
    </message>
    <message>
        <source>Install the language’s data: sudo apt install tesseract-ocr-%1</source>
        <translation>Установите данные языка: sudo apt install tesseract-ocr-%1</translation>
    </message>
    <message>
        <source>Wayland, through its X server, although this desktop could do without.</source>
        <translation>Wayland через его X-сервер, хотя эта рабочая среда обходится без него.</translation>
    </message>
    <message>
        <source>Install Qt’s Wayland platform (sudo apt install qt6-wayland) and start Tembra without QT_QPA_PLATFORM.</source>
        <translation>Установите платформу Wayland для Qt (sudo apt install qt6-wayland) и запускайте Tembra без QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>This desktop shows status items.</source>
        <translation>Эта рабочая среда показывает значки программ.</translation>
    </message>
</context>
<context>
    <name>DesktopScreenshotOrganizer</name>
    <message>
        <source>“%1” is there already and is no folder.</source>
        <translation>«%1» уже существует, и это не папка.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation>Не удаётся создать папку «%1».</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be read.</source>
        <translation>Не удаётся прочитать папку «%1».</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A window stands at the top edge of the screen.</source>
        <translation>Окно стоит у верхнего края экрана.</translation>
    </message>
    <message>
        <source>A window that was put at the top edge of the screen is not there.</source>
        <translation>Окна, поставленного у верхнего края экрана, там нет.</translation>
    </message>
    <message>
        <source>Log in to another session of the desktop, for example on X11.</source>
        <translation>Войдите в другой сеанс рабочей среды, например X11.</translation>
    </message>
    <message>
        <source>No folder was tried.</source>
        <translation>Папка не проверялась.</translation>
    </message>
    <message>
        <source>The folder is on another machine, which does not tell what changes there: new captures are looked for now and then.</source>
        <translation>Папка находится на другом компьютере, который не сообщает об изменениях: новые снимки ищутся время от времени.</translation>
    </message>
    <message>
        <source>A new file in the folder was noticed.</source>
        <translation>Новый файл в папке замечен.</translation>
    </message>
    <message>
        <source>Screenshots folder</source>
        <translation>Папка снимков</translation>
    </message>
    <message>
        <source>Changes in the folder</source>
        <translation>Изменения в папке</translation>
    </message>
    <message>
        <source>Screenshot tool</source>
        <translation>Программа для снимков</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Окна</translation>
    </message>
    <message>
        <source>Place of the shelf</source>
        <translation>Место полки</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Комбинация клавиш</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Буфер обмена</translation>
    </message>
    <message>
        <source>Status item</source>
        <translation>Значок на панели</translation>
    </message>
    <message>
        <source>Languages of Image to Text</source>
        <translation>Языки «Текста с картинки»</translation>
    </message>
    <message>
        <source>Command for new captures</source>
        <translation>Команда для новых снимков</translation>
    </message>
    <message>
        <source>Trash for “%1”</source>
        <translation>Корзина для «%1»</translation>
    </message>
    <message>
        <source>Choose a folder in the settings: tembra settings screenshots</source>
        <translation>Выберите папку в настройках: tembra settings screenshots</translation>
    </message>
    <message>
        <source>No folder is chosen yet.</source>
        <translation>Папка ещё не выбрана.</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>«%1» не найдена.</translation>
    </message>
    <message>
        <source>Connect its disk, or choose another folder in the settings.</source>
        <translation>Подключите её диск или выберите в настройках другую папку.</translation>
    </message>
    <message>
        <source>“%1” may not be read.</source>
        <translation>«%1» нельзя прочитать.</translation>
    </message>
    <message>
        <source>“%1” may be read but not changed: captures cannot be renamed or removed.</source>
        <translation>«%1» можно читать, но не изменять: снимки нельзя переименовать или убрать.</translation>
    </message>
    <message>
        <source>Choose the folder once more in the settings: the tool is then told of it.</source>
        <translation>Выберите папку в настройках ещё раз: программа для снимков узнает о ней.</translation>
    </message>
    <message>
        <source>%1 puts captures on the clipboard and saves none.</source>
        <translation>%1 помещает снимки в буфер обмена и не сохраняет их.</translation>
    </message>
    <message>
        <source>%1 does not save captures to a folder.</source>
        <translation>%1 не сохраняет снимки в папку.</translation>
    </message>
    <message>
        <source>%1 saves into “%2”, but captures are looked for in “%3”.</source>
        <translation>%1 сохраняет в «%2», а новые снимки ищутся в «%3».</translation>
    </message>
    <message>
        <source>%1 saves into “%2”.</source>
        <translation>%1 сохраняет в «%2».</translation>
    </message>
    <message>
        <source>No shortcut is switched on.</source>
        <translation>Комбинация клавиш не включена.</translation>
    </message>
    <message>
        <source>Choose another one: tembra settings shortcut</source>
        <translation>Выберите другую: tembra settings shortcut</translation>
    </message>
    <message>
        <source>Text is read in: %1.</source>
        <translation>Языки распознавания: %1.</translation>
    </message>
    <message>
        <source>No command is run for new captures.</source>
        <translation>Для новых снимков команда не запускается.</translation>
    </message>
    <message>
        <source>There is no program “%1”.</source>
        <translation>Программы «%1» нет.</translation>
    </message>
    <message>
        <source>Name it with its whole path: tembra settings screenshots</source>
        <translation>Укажите полный путь: tembra settings screenshots</translation>
    </message>
    <message>
        <source>“%1” is run for new captures.</source>
        <translation>Для новых снимков запускается «%1».</translation>
    </message>
    <message>
        <source>Nothing may be written there.</source>
        <translation>Туда нельзя записывать.</translation>
    </message>
    <message>
        <source>Files move to the Trash and back.</source>
        <translation>Файлы перемещаются в корзину и обратно.</translation>
    </message>
    <message>
        <source>Remove files there with the file manager.</source>
        <translation>Удаляйте файлы оттуда в файловом менеджере.</translation>
    </message>
    <message>
        <source>Where this desktop’s screenshot tool saves is not known.</source>
        <translation>Неизвестно, куда сохраняет программа для снимков этой рабочей среды.</translation>
    </message>
    <message>
        <source>Let it save into “%1”.</source>
        <translation>Пусть она сохраняет в «%1».</translation>
    </message>
    <message>
        <source>It was not tried, because Tembra does not run.</source>
        <translation>Не проверялась: Tembra не запущена.</translation>
    </message>
</context>
<context>
    <name>DoctorReport</name>
    <message>
        <source>works</source>
        <translation>работает</translation>
    </message>
    <message>
        <source>in part</source>
        <translation>частично</translation>
    </message>
    <message>
        <source>BROKEN</source>
        <translation>НЕ РАБОТАЕТ</translation>
    </message>
</context>
<context>
    <name>EditorDocuments</name>
    <message>
        <source>This is the screenshot that you are editing. Save it, or choose another name for the copy.</source>
        <translation>Этот снимок вы сейчас редактируете. Сохраните его или выберите для копии другое имя.</translation>
    </message>
</context>
<context>
    <name>EditorPalette</name>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Оранжевый</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Фиолетовый</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Чёрный</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Белый</translation>
    </message>
</context>
<context>
    <name>EditorQuestions</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Save the edits of “%1”?</source>
        <translation>Сохранить правки в «%1»?</translation>
    </message>
    <message numerus="yes">
        <source>Save the edits of %n screenshots?</source>
        <translation>
            <numerusform>Сохранить правки в %n снимке?</numerusform>
            <numerusform>Сохранить правки в %n снимках?</numerusform>
            <numerusform>Сохранить правки в %n снимках?</numerusform>
        </translation>
    </message>
    <message>
        <source>Your edits are lost if you don’t save them.</source>
        <translation>Если не сохранить правки, они будут потеряны.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Сохранить все</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Discard all</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Reload “%1”?</source>
        <translation>Обновить «%1» с диска?</translation>
    </message>
    <message>
        <source>Your unsaved edits of it are lost.</source>
        <translation>Несохранённые правки этого файла будут потеряны.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Сохранить копию</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg)</source>
        <translation>Изображения (*.png *.jpg *.jpeg)</translation>
    </message>
</context>
<context>
    <name>EditorTool</name>
    <message>
        <source>Select</source>
        <translation>Выбор</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Стрелка</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Карандаш</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Обрезка</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Прямоугольник</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Эллипс</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Размытие</translation>
    </message>
</context>
<context>
    <name>EditorToolTip</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>FileCoordinator</name>
    <message>
        <source>Another program changed the file.</source>
        <translation>Файл изменён другой программой.</translation>
    </message>
    <message>
        <source>A file with this name already exists.</source>
        <translation>Файл с таким именем уже существует.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Это не обычный файл.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Файл слишком велик.</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>“%1” is no longer there.</source>
        <translation>«%1» больше нет на месте.</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>Папки «%1» больше нет на месте.</translation>
    </message>
    <message>
        <source>No file manager could open the folder “%1”.</source>
        <translation>Ни один файловый менеджер не смог открыть папку «%1».</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Couldn’t Show in Finder</source>
        <translation>Не удалось показать в Finder</translation>
    </message>
    <message>
        <source>Couldn’t Open Files</source>
        <translation>Не удалось открыть файлы</translation>
    </message>
</context>
<context>
    <name>FilePromises</name>
    <message>
        <source>The program that was to write the file did not do so.</source>
        <translation>Программа, которая должна была записать файл, не сделала этого.</translation>
    </message>
</context>
<context>
    <name>FileWatcherService</name>
    <message>
        <source>Folder access needs to be restored</source>
        <translation>Нужно восстановить доступ к папке</translation>
    </message>
</context>
<context>
    <name>FolderChooser</name>
    <message>
        <source>Choose where screenshots should save. Auto-clean will be set to Never for this folder.</source>
        <translation>Выберите, куда сохранять снимки. Для этой папки автоочистка будет выключена («Никогда»).</translation>
    </message>
    <message>
        <source>New macOS screenshots will be saved here and appear in Tembra.</source>
        <translation>Новые снимки экрана macOS будут сохраняться сюда и появляться в Tembra.</translation>
    </message>
    <message>
        <source>Choose Your Screenshots Folder</source>
        <translation>Выберите папку снимков</translation>
    </message>
</context>
<context>
    <name>FolderNotification</name>
    <message>
        <source>Screenshot location changed</source>
        <translation>Папка снимков изменилась</translation>
    </message>
    <message>
        <source>Screenshots aren’t saving to a folder</source>
        <translation>Снимки не сохраняются в папку</translation>
    </message>
    <message>
        <source>Screenshots folder unavailable</source>
        <translation>Папка снимков недоступна</translation>
    </message>
    <message>
        <source>Screenshots folder recovered</source>
        <translation>Папка снимков снова доступна</translation>
    </message>
</context>
<context>
    <name>GlobalActivationShortcut</name>
    <message>
        <source>This shortcut is unavailable. Choose another combination.</source>
        <translation>Эта комбинация недоступна. Выберите другую.</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>Another program has this shortcut.</source>
        <translation>Эта комбинация занята другой программой.</translation>
    </message>
    <message>
        <source>The desktop has ended this shortcut. Switch it off and on again.</source>
        <translation>Рабочая среда отключила эту комбинацию. Выключите её и включите снова.</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts of their own. Bind “tembra toggle” to one in its settings.</source>
        <translation>В этой рабочей среде программы не могут задавать комбинации клавиш сами. Назначьте комбинацию для команды «tembra toggle» в настройках среды.</translation>
    </message>
    <message>
        <source>Open or close the shelf</source>
        <translation>Открыть или закрыть полку</translation>
    </message>
</context>
<context>
    <name>ImageChooser</name>
    <message>
        <source>Choose an Image</source>
        <translation>Выберите изображение</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Все файлы</translation>
    </message>
</context>
<context>
    <name>LoginItem</name>
    <message>
        <source>Launch at login is unavailable for this copy of Tembra</source>
        <translation>Для этой копии Tembra запуск при входе в систему недоступен</translation>
    </message>
    <message>
        <source>“%1” can’t be removed: %2</source>
        <translation>Не удалось удалить «%1»: %2</translation>
    </message>
    <message>
        <source>This desktop has no settings for the programs that start at login.</source>
        <translation>В этой рабочей среде нет настройки программ, запускаемых при входе в систему.</translation>
    </message>
    <message>
        <source>“%1” can’t be written: %2</source>
        <translation>Не удалось записать «%1»: %2</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Check for updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Hide Tembra</source>
        <translation>Скрыть Tembra</translation>
    </message>
    <message>
        <source>Hide others</source>
        <translation>Скрыть остальные</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Показать все</translation>
    </message>
    <message>
        <source>Quit Tembra</source>
        <translation>Завершить Tembra</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Правка</translation>
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
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Дублировать</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>Копировать изображение</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Вписать в окно</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Исходный размер</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Bring all to front</source>
        <translation>Все окна на передний план</translation>
    </message>
</context>
<context>
    <name>OCR</name>
    <message>
        <source>Could not read this image. Try another one.</source>
        <translation>Не удалось прочитать это изображение. Попробуйте другое.</translation>
    </message>
    <message>
        <source>No text found. Try another image.</source>
        <translation>Текст не найден. Попробуйте другое изображение.</translation>
    </message>
    <message>
        <source>%1 isn’t an image file.</source>
        <translation>%1 — не файл изображения.</translation>
    </message>
    <message>
        <source>The image is damaged, too large or of an unknown kind.</source>
        <translation>Изображение повреждено, слишком велико или имеет неизвестный формат.</translation>
    </message>
    <message>
        <source>Animations can’t be read.</source>
        <translation>Анимации не распознаются.</translation>
    </message>
</context>
<context>
    <name>Onboarding</name>
    <message>
        <source>Your screenshots, always at hand</source>
        <translation>Снимки экрана всегда под рукой</translation>
    </message>
    <message>
        <source>Tembra keeps them at the top of your screen. Move the pointer to the edge, and they come down to meet it.</source>
        <translation>Tembra хранит их у верхнего края экрана. Подведите туда указатель — и они опустятся ему навстречу.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Where should screenshots go?</source>
        <translation>Куда сохранять снимки?</translation>
    </message>
    <message>
        <source>New screenshots will be saved here and appear in Tembra, at the top of your screen.</source>
        <translation>Новые снимки будут сохраняться сюда и появляться в Tembra у верхнего края экрана.</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Выбрать папку</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Сохранять сюда</translation>
    </message>
    <message>
        <source>Bring along what you have?</source>
        <translation>Перенести прежние снимки?</translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots lie on your Desktop. Tembra can move them to the folder you chose.</source>
        <translation>
            <numerusform>Tembra может переместить %n снимок с рабочего стола в выбранную вами папку.</numerusform>
            <numerusform>Tembra может переместить %n снимка с рабочего стола в выбранную вами папку.</numerusform>
            <numerusform>Tembra может переместить %n снимков с рабочего стола в выбранную вами папку.</numerusform>
        </translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>Перемещение…</translation>
    </message>
    <message>
        <source>Move Screenshots</source>
        <translation>Переместить</translation>
    </message>
    <message>
        <source>Leave Them</source>
        <translation>Оставить</translation>
    </message>
    <message>
        <source>Got it! First one caught</source>
        <translation>Есть! Первый снимок пойман</translation>
    </message>
    <message>
        <source>It is on your shelf now. Move the pointer to the top of your screen whenever you need it.</source>
        <translation>Теперь он на полке. Чтобы достать его, подведите указатель к верхнему краю экрана.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Take your first screenshot</source>
        <translation>Сделайте первый снимок</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Take a screenshot the way you always do, with Print for&#xa0;example. Tembra waits for it here.</source>
        <translation>Сделайте снимок как обычно, например клавишей&#xa0;Print. Tembra ждёт его здесь.</translation>
    </message>
</context>
<context>
    <name>Pasteboard</name>
    <message>
        <source>The clipboard is in use by another program.</source>
        <translation>Буфер обмена занят другой программой.</translation>
    </message>
    <message>
        <source>The desktop did not let Tembra use the clipboard.</source>
        <translation>Рабочая среда не предоставила Tembra доступ к буферу обмена.</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>Tembra needs a desktop: neither DISPLAY nor WAYLAND_DISPLAY leads to one.</source>
        <translation>Tembra нужен рабочий стол: ни DISPLAY, ни WAYLAND_DISPLAY к нему не ведут.</translation>
    </message>
</context>
<context>
    <name>RcFile</name>
    <message>
        <source>“%1” is not a settings file.</source>
        <translation>«%1» — не файл настроек.</translation>
    </message>
</context>
<context>
    <name>RenderCommand</name>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>Не удалось прочитать «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>Не удалось записать «%1»: %2</translation>
    </message>
    <message>
        <source>What is read is not written over: name another file for the output.</source>
        <translation>Нельзя записывать поверх исходного файла: укажите для результата другой файл.</translation>
    </message>
</context>
<context>
    <name>SafetyReview</name>
    <message>
        <source>Keep auto-clean enabled?</source>
        <translation>Оставить автоочистку включённой?</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n файл</numerusform>
            <numerusform>%n файла</numerusform>
            <numerusform>%n файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-clean is set to %1, with %2 to move to Trash.

Keep auto-clean enabled or turn it off to keep these files.</source>
        <translation>Автоочистка (срок: %1) переместит в корзину %2.

Оставьте её включённой или выключите, чтобы сохранить эти файлы.</translation>
    </message>
    <message>
        <source>Keep enabled</source>
        <translation>Оставить</translation>
    </message>
    <message>
        <source>Turn off</source>
        <translation>Выключить</translation>
    </message>
</context>
<context>
    <name>ScanCommand</name>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>Не удалось прочитать «%1»: %2</translation>
    </message>
</context>
<context>
    <name>ScanReport</name>
    <message>
        <source>neither an image nor a recording</source>
        <translation>не изображение и не запись</translation>
    </message>
    <message>
        <source>neither marker, metadata nor name say that it is a capture</source>
        <translation>ни метка, ни метаданные, ни имя не говорят, что это снимок</translation>
    </message>
    <message>
        <source> (not whole)</source>
        <translation> (не полностью)</translation>
    </message>
</context>
<context>
    <name>ScreenCapturePreferences</name>
    <message>
        <source>The screenshot tool</source>
        <translation>Программа для снимков</translation>
    </message>
    <message>
        <source>%1 has no floating thumbnail to turn on or off.</source>
        <translation>%1 не показывает всплывающую миниатюру: включать или выключать нечего.</translation>
    </message>
</context>
<context>
    <name>ScreenshotAutoCleanPeriod</name>
    <message>
        <source>Never</source>
        <translation>Никогда</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 день</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n день</numerusform>
            <numerusform>%n дня</numerusform>
            <numerusform>%n дней</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScreenshotCommands</name>
    <message>
        <source>Couldn’t Pin Screenshots</source>
        <translation>Не удалось закрепить снимки</translation>
    </message>
    <message>
        <source>Couldn’t Open Folder</source>
        <translation>Не удалось открыть папку</translation>
    </message>
</context>
<context>
    <name>ScreenshotEdit</name>
    <message>
        <source>Straighten</source>
        <translation>выпрямление</translation>
    </message>
    <message>
        <source>Change number</source>
        <translation>изменение номера</translation>
    </message>
    <message>
        <source>Change text style</source>
        <translation>изменение стиля текста</translation>
    </message>
    <message>
        <source>Change number size</source>
        <translation>изменение размера номера</translation>
    </message>
    <message>
        <source>Change style</source>
        <translation>изменение стиля</translation>
    </message>
    <message>
        <source>Move annotations</source>
        <translation>перемещение пометок</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>изменение размера</translation>
    </message>
    <message>
        <source>Change order</source>
        <translation>изменение порядка</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>дублирование</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>вставку</translation>
    </message>
    <message>
        <source>Draw arrow</source>
        <translation>рисование стрелки</translation>
    </message>
    <message>
        <source>Draw stroke</source>
        <translation>рисование штриха</translation>
    </message>
    <message>
        <source>Draw line</source>
        <translation>рисование линии</translation>
    </message>
    <message>
        <source>Draw rectangle</source>
        <translation>рисование прямоугольника</translation>
    </message>
    <message>
        <source>Draw ellipse</source>
        <translation>рисование эллипса</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>размытие</translation>
    </message>
    <message>
        <source>Add number</source>
        <translation>добавление номера</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>изгиб</translation>
    </message>
    <message>
        <source>Move end</source>
        <translation>перемещение конца</translation>
    </message>
    <message>
        <source>Blur words</source>
        <translation>размытие слов</translation>
    </message>
    <message>
        <source>“%1” already exists in this folder.</source>
        <translation>«%1» уже есть в этой папке.</translation>
    </message>
    <message>
        <source>Delete annotation</source>
        <translation>удаление пометки</translation>
    </message>
    <message>
        <source>Delete annotations</source>
        <translation>удаление пометок</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>обрезку</translation>
    </message>
    <message>
        <source>This file can’t be edited.</source>
        <translation>Этот файл нельзя редактировать.</translation>
    </message>
    <message>
        <source>The editor currently supports PNG and JPEG images.</source>
        <translation>Редактор пока поддерживает только изображения PNG и JPEG.</translation>
    </message>
    <message>
        <source>This image changed outside Tembra. Make a copy to edit it as a new image.</source>
        <translation>Изображение изменено вне Tembra. Создайте копию, чтобы редактировать его как новое.</translation>
    </message>
    <message>
        <source>The original image couldn’t be opened.</source>
        <translation>Не удалось открыть исходное изображение.</translation>
    </message>
    <message>
        <source>This annotation couldn’t be opened.</source>
        <translation>Не удалось открыть эту пометку.</translation>
    </message>
    <message>
        <source>This crop couldn’t be opened.</source>
        <translation>Не удалось открыть эту обрезку.</translation>
    </message>
    <message>
        <source>This image changed outside Tembra. Your edits are still here. Use Save a copy to keep them.</source>
        <translation>Изображение изменено вне Tembra. Ваши правки на месте. Чтобы не потерять их, нажмите «Сохранить копию».</translation>
    </message>
    <message>
        <source>Enter a name for this screenshot.</source>
        <translation>Введите имя снимка.</translation>
    </message>
    <message>
        <source>Choose a name without slashes, colons or a leading dot.</source>
        <translation>Выберите имя без косых черт, двоеточий и точки в начале.</translation>
    </message>
    <message>
        <source>This image changed outside Tembra. Its name hasn’t been changed.</source>
        <translation>Изображение изменено вне Tembra. Имя осталось прежним.</translation>
    </message>
    <message>
        <source>This image couldn’t be opened.</source>
        <translation>Не удалось открыть это изображение.</translation>
    </message>
    <message>
        <source>There isn’t enough memory to save this image.</source>
        <translation>Не хватает памяти, чтобы сохранить это изображение.</translation>
    </message>
    <message>
        <source>Couldn’t prepare the image.</source>
        <translation>Не удалось подготовить изображение.</translation>
    </message>
    <message>
        <source>This image format can’t be saved.</source>
        <translation>Изображение в этом формате нельзя сохранить.</translation>
    </message>
    <message>
        <source>Couldn’t encode the image.</source>
        <translation>Не удалось закодировать изображение.</translation>
    </message>
    <message>
        <source>Couldn’t prepare the blur.</source>
        <translation>Не удалось подготовить размытие.</translation>
    </message>
    <message>
        <source>The edits are not readable JSON.</source>
        <translation>Не удаётся прочитать правки: неверный JSON.</translation>
    </message>
</context>
<context>
    <name>ScreenshotFeedback</name>
    <message>
        <source>Got it</source>
        <translation>Есть</translation>
    </message>
    <message>
        <source>Caught it</source>
        <translation>Поймано</translation>
    </message>
    <message>
        <source>Got that</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>I got you</source>
        <translation>Всё под контролем</translation>
    </message>
    <message>
        <source>Saved it</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>Right here</source>
        <translation>Вот он</translation>
    </message>
    <message>
        <source>Keeping this one</source>
        <translation>Этот оставляем</translation>
    </message>
    <message>
        <source>Another one</source>
        <translation>Ещё один</translation>
    </message>
    <message>
        <source>Got that too</source>
        <translation>И этот есть</translation>
    </message>
    <message>
        <source>Still here</source>
        <translation>Всё ещё здесь</translation>
    </message>
    <message>
        <source>I’ve got you</source>
        <translation>Ничего не упустим</translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderAccess</name>
    <message>
        <source>“%1” is not a folder on this computer.</source>
        <translation>«%1» — не папка на этом компьютере.</translation>
    </message>
    <message>
        <source>“%1” is not a folder.</source>
        <translation>«%1» — не папка.</translation>
    </message>
    <message>
        <source>“%1” is in the Trash.</source>
        <translation>«%1» находится в корзине.</translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderMessage</name>
    <message>
        <source>Choose Folder</source>
        <translation>Выбрать папку</translation>
    </message>
    <message>
        <source>Where should screenshots go?</source>
        <translation>Куда сохранять снимки?</translation>
    </message>
    <message>
        <source>Loading screenshots…</source>
        <translation>Загрузка снимков…</translation>
    </message>
    <message>
        <source>Screenshots are saved elsewhere. Choose the new folder.</source>
        <translation>Снимки сохраняются в другое место. Выберите новую папку.</translation>
    </message>
    <message>
        <source>Screenshots go to the clipboard. Choose a folder to save them.</source>
        <translation>Снимки попадают в буфер обмена. Выберите папку, чтобы сохранять их.</translation>
    </message>
    <message>
        <source>Screenshots aren’t saved to a folder. Choose one to use with Tembra.</source>
        <translation>Снимки не сохраняются в папку. Выберите папку для работы с Tembra.</translation>
    </message>
    <message>
        <source>Where did the folder go?</source>
        <translation>Куда делась папка?</translation>
    </message>
    <message>
        <source>I lost track of your screenshots folder. Pick a new one to keep going</source>
        <translation>Папка снимков потерялась. Выберите новую, чтобы продолжить</translation>
    </message>
    <message>
        <source>No screenshots yet</source>
        <translation>Снимков пока нет</translation>
    </message>
    <message>
        <source>Take one and it appears here.</source>
        <translation>Сделайте снимок — он появится здесь.</translation>
    </message>
</context>
<context>
    <name>ScreenshotMenu</name>
    <message>
        <source>No Compatible Applications</source>
        <translation>Нет подходящих приложений</translation>
    </message>
    <message>
        <source> (Default)</source>
        <translation> (по умолчанию)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Открыть в редакторе</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Открыть с помощью</translation>
    </message>
    <message>
        <source>Image to Text</source>
        <translation>Распознать текст</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Показать в Finder</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Открепить</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Закрепить</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Переместить в корзину</translation>
    </message>
    <message>
        <source>Pinned screenshots stay. Unpin them to move them to Trash.</source>
        <translation>Закреплённые снимки останутся. Сначала открепите их.</translation>
    </message>
    <message>
        <source>Open Folder in Finder</source>
        <translation>Открыть папку в Finder</translation>
    </message>
    <message>
        <source>Screenshot Settings</source>
        <translation>Настройки снимков</translation>
    </message>
    <message>
        <source>Clear Screenshots</source>
        <translation>Убрать снимки в корзину</translation>
    </message>
</context>
<context>
    <name>ScreenshotRemoval</name>
    <message>
        <source>Some pinned files are unavailable. Reconnect their disk and try again.</source>
        <translation>Некоторые закреплённые файлы недоступны. Подключите их диск и повторите попытку.</translation>
    </message>
    <message>
        <source>This screenshot is pinned. Unpin it before moving it to Trash.</source>
        <translation>Этот снимок закреплён. Открепите его, прежде чем перемещать в корзину.</translation>
    </message>
    <message>
        <source>The original file has changed.</source>
        <translation>Исходный файл изменился.</translation>
    </message>
    <message>
        <source>The original folder has changed.</source>
        <translation>Исходная папка изменилась.</translation>
    </message>
    <message>
        <source>The original folder is unavailable.</source>
        <translation>Исходная папка недоступна.</translation>
    </message>
    <message>
        <source>The file could not be located in Trash.</source>
        <translation>Не удалось найти файл в корзине.</translation>
    </message>
    <message>
        <source>The original file is no longer at this location.</source>
        <translation>Исходного файла больше нет на этом месте.</translation>
    </message>
    <message>
        <source>Couldn’t Move to Trash</source>
        <translation>Не удалось переместить в корзину</translation>
    </message>
    <message>
        <source>Auto-clean</source>
        <translation>автоочистку</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>перемещение в корзину</translation>
    </message>
    <message>
        <source>Couldn’t Restore Screenshots</source>
        <translation>Не удалось восстановить снимки</translation>
    </message>
</context>
<context>
    <name>ScreenshotSaveLocation</name>
    <message>
        <source>Couldn’t change the macOS screenshot folder.</source>
        <translation>Не удалось изменить папку снимков экрана macOS.</translation>
    </message>
    <message>
        <source>Your previous folder is still selected. Try again, or change Save to in ⇧⌘5 → Options.</source>
        <translation>Папка осталась прежней. Попробуйте ещё раз или измените «Сохранить в» в ⇧⌘5 → «Параметры».</translation>
    </message>
    <message>
        <source>“%1” cannot be written to.</source>
        <translation>Запись в «%1» невозможна.</translation>
    </message>
</context>
<context>
    <name>ScreenshotSection</name>
    <message>
        <source>Pinned</source>
        <translation>Закреплённые</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Последние 7 дней</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>Ранее</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Снимки экрана</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Редактор</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Лоток</translation>
    </message>
    <message>
        <source>Image to Text</source>
        <translation>Текст с картинки</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Комбинация клавиш</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Doctor</source>
        <translation>Диагностика</translation>
    </message>
</context>
<context>
    <name>ShelfSession</name>
    <message>
        <source>Couldn’t Copy Screenshots</source>
        <translation>Не удалось скопировать снимки</translation>
    </message>
    <message>
        <source>Clear File Tray</source>
        <translation>очистку лотка</translation>
    </message>
    <message>
        <source>Remove from File Tray</source>
        <translation>удаление из лотка</translation>
    </message>
    <message>
        <source>Couldn’t update pinned screenshot</source>
        <translation>Не удалось обновить закреплённый снимок</translation>
    </message>
</context>
<context>
    <name>SingleInstance</name>
    <message>
        <source>There is no D-Bus session to reach Tembra through.</source>
        <translation>Нет сеанса D-Bus, через который можно обратиться к Tembra.</translation>
    </message>
    <message>
        <source>Tembra is already running.</source>
        <translation>Tembra уже запущена.</translation>
    </message>
    <message>
        <source>Tembra is not running.</source>
        <translation>Tembra не запущена.</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Open Tembra</source>
        <translation>Открыть Tembra</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Check for updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation>Открыть папку снимков</translation>
    </message>
    <message>
        <source>Open Latest Capture</source>
        <translation>Открыть последний снимок</translation>
    </message>
    <message>
        <source>Quit Tembra</source>
        <translation>Завершить Tembra</translation>
    </message>
</context>
<context>
    <name>StatusReport</name>
    <message>
        <source>No folder selected</source>
        <translation>не выбрана</translation>
    </message>
    <message>
        <source>Shelf: %1
Folder: %2 (%3)
Screenshots: %4
</source>
        <translation>Полка: %1
Папка: %2 (%3)
Снимков: %4
</translation>
    </message>
    <message>
        <source>open</source>
        <translation>открыта</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>закрыта</translation>
    </message>
</context>
<context>
    <name>TextRecognition</name>
    <message>
        <source>Text can’t be recognized because a part of Tembra is missing. Reinstall it.</source>
        <translation>Распознать текст нельзя: не хватает части Tembra. Переустановите программу.</translation>
    </message>
    <message>
        <source>Text can’t be recognized because no language is installed for it. Install the package tesseract-ocr-eng.</source>
        <translation>Распознать текст нельзя: для этого не установлен ни один язык. Установите пакеты tesseract-ocr-eng и tesseract-ocr-rus.</translation>
    </message>
    <message>
        <source>The text of this image couldn’t be read.</source>
        <translation>Не удалось распознать текст этого изображения.</translation>
    </message>
    <message>
        <source>Text recognition was cancelled.</source>
        <translation>Распознавание текста отменено.</translation>
    </message>
</context>
<context>
    <name>Thumbnails</name>
    <message>
        <source>The picture is too large for a preview.</source>
        <translation>Изображение слишком велико для миниатюры.</translation>
    </message>
    <message>
        <source>The picture couldn’t be read.</source>
        <translation>Не удалось прочитать изображение.</translation>
    </message>
</context>
<context>
    <name>Trash</name>
    <message>
        <source>“%1” has changed or is no longer there.</source>
        <translation>Файл «%1» изменён или больше не существует.</translation>
    </message>
    <message>
        <source>The way to “%1” leads out of its folder.</source>
        <translation>Путь к «%1» ведёт за пределы папки.</translation>
    </message>
    <message>
        <source>The disk that holds “%1” has no Trash.</source>
        <translation>На диске, где находится «%1», нет корзины.</translation>
    </message>
    <message>
        <source>“%1” is no longer in the Trash.</source>
        <translation>«%1» больше нет в корзине.</translation>
    </message>
    <message>
        <source>Another file is now where “%1” was.</source>
        <translation>На месте «%1» теперь другой файл.</translation>
    </message>
    <message>
        <source>The folder that “%1” was in cannot be reached.</source>
        <translation>Папка, в которой находился файл «%1», недоступна.</translation>
    </message>
    <message>
        <source>There is no room to move “%1” to the Trash.</source>
        <translation>Недостаточно места, чтобы переместить «%1» в корзину.</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the Trash: %2.</source>
        <translation>Не удалось переместить «%1» в корзину: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be moved back: %2.</source>
        <translation>Не удалось вернуть «%1» на место: %2.</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>Не удалось прочитать список обновлений.</translation>
    </message>
    <message>
        <source>No address of a list of updates is set.</source>
        <translation>Адрес списка обновлений не задан.</translation>
    </message>
    <message>
        <source>The address of the list of updates is not a secure one.</source>
        <translation>Адрес списка обновлений не защищён.</translation>
    </message>
    <message>
        <source>The version of this copy is not known.</source>
        <translation>Версия этой копии неизвестна.</translation>
    </message>
    <message>
        <source>The list of updates is older than one seen before.</source>
        <translation>Список обновлений старше уже полученного.</translation>
    </message>
    <message>
        <source>The update server offered a connection that is not secure.</source>
        <translation>Сервер обновлений предложил незащищённое соединение.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced.</source>
        <translation>Сервер обновлений прислал больше данных, чем объявил.</translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Сервер обновлений не ответил вовремя.</translation>
    </message>
    <message>
        <source>The update server does not have the file (answer %1).</source>
        <translation>На сервере обновлений нет файла (ответ %1).</translation>
    </message>
    <message>
        <source>The update server sends from one place to another.</source>
        <translation>Сервер обновлений перенаправляет запрос с места на место.</translation>
    </message>
    <message>
        <source>The update server cannot be trusted: %1</source>
        <translation>Серверу обновлений нельзя доверять: %1</translation>
    </message>
    <message>
        <source>The connection to the update server was lost.</source>
        <translation>Соединение с сервером обновлений прервано.</translation>
    </message>
    <message>
        <source>The update server cannot be reached: %1</source>
        <translation>Сервер обновлений недоступен: %1</translation>
    </message>
    <message>
        <source>This copy of Tembra does not look for updates.</source>
        <translation>Эта копия Tembra не проверяет обновления.</translation>
    </message>
    <message>
        <source>Updates come with your system’s software updates.</source>
        <translation>Обновления приходят вместе с обновлениями системы.</translation>
    </message>
    <message>
        <source>Tembra has not looked for updates since it was started.</source>
        <translation>После запуска Tembra обновления ещё не проверялись.</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Проверка обновлений…</translation>
    </message>
    <message>
        <source>Tembra is up to date.</source>
        <translation>У вас последняя версия Tembra.</translation>
    </message>
    <message>
        <source>Tembra %1 is available.</source>
        <translation>Доступна Tembra %1.</translation>
    </message>
    <message>
        <source>Downloading Tembra %1…</source>
        <translation>Скачивание Tembra %1…</translation>
    </message>
    <message>
        <source>Tembra %1 is ready to be installed.</source>
        <translation>Tembra %1 готова к установке.</translation>
    </message>
    <message>
        <source>The update cannot be saved on this disk.</source>
        <translation>Обновление нельзя сохранить на этот диск.</translation>
    </message>
    <message>
        <source>The list of updates is not signed by the publisher of Tembra and was not used.</source>
        <translation>Список обновлений не подписан издателем Tembra и потому не использован.</translation>
    </message>
    <message>
        <source>The key that updates are checked with is not valid.</source>
        <translation>Ключ для проверки обновлений недействителен.</translation>
    </message>
    <message>
        <source>The update cannot be read.</source>
        <translation>Не удалось прочитать обновление.</translation>
    </message>
    <message>
        <source>The update is not complete.</source>
        <translation>Обновление неполное.</translation>
    </message>
    <message>
        <source>The update is not signed by the publisher of Tembra and was not kept.</source>
        <translation>Обновление не подписано издателем Tembra и потому не сохранено.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>No application opens “%1”.</source>
        <translation>Нет приложения, чтобы открыть «%1».</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>Не удалось запустить %1: %2</translation>
    </message>
    <message>
        <source>“%1” could not be opened: %2</source>
        <translation>Не удалось открыть «%1»: %2</translation>
    </message>
</context>
<context>
    <name>tembra::AboutSettingsPage</name>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Quit Tembra</source>
        <translation>Завершить Tembra</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Проверять обновления автоматически</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Скачать</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Установить…</translation>
    </message>
    <message>
        <source>Made with</source>
        <translation>Создано с помощью</translation>
    </message>
</context>
<context>
    <name>tembra::ActivationShortcutControl</name>
    <message>
        <source>A shortcut needs Ctrl, Alt or Super, and another key.</source>
        <translation>Нужны Ctrl, Alt или Super и ещё одна клавиша.</translation>
    </message>
</context>
<context>
    <name>tembra::CanvasTextEditor</name>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
</context>
<context>
    <name>tembra::CaptureNotificationView</name>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardCell</name>
    <message>
        <source>Original unavailable</source>
        <translation>Исходный файл недоступен</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardCollectionView</name>
    <message>
        <source>File Tray</source>
        <translation>Лоток</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardDropArea</name>
    <message>
        <source>Drop files here or ⌘V to paste</source>
        <translation>Перетащите файлы сюда или вставьте их: ⌘V</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardShelf</name>
    <message>
        <source>Drag or ⌘C to copy</source>
        <translation>Перетащите или скопируйте: ⌘C</translation>
    </message>
    <message>
        <source>Some originals are currently unavailable</source>
        <translation>Некоторые исходные файлы сейчас недоступны</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Показать в Finder</translation>
    </message>
    <message>
        <source>Remove from File Tray</source>
        <translation>Убрать из лотка</translation>
    </message>
    <message>
        <source>Clear File Tray</source>
        <translation>Очистить лоток</translation>
    </message>
    <message>
        <source>Only files and images can be kept here</source>
        <translation>Здесь можно хранить только файлы и изображения</translation>
    </message>
</context>
<context>
    <name>tembra::DoctorSettingsPage</name>
    <message>
        <source>Works</source>
        <translation>Работает</translation>
    </message>
    <message>
        <source>In part</source>
        <translation>Частично</translation>
    </message>
    <message>
        <source>Does not work</source>
        <translation>Не работает</translation>
    </message>
    <message>
        <source>Doctor</source>
        <translation>Диагностика</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Проверить снова</translation>
    </message>
    <message>
        <source>What works on this desktop</source>
        <translation>Что работает в этой рабочей среде</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Проверки</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Проверка…</translation>
    </message>
    <message numerus="yes">
        <source>%n things do not work.</source>
        <translation>
            <numerusform>Не работает: %n.</numerusform>
            <numerusform>Не работают: %n.</numerusform>
            <numerusform>Не работают: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Everything works, %n things in part.</source>
        <translation>
            <numerusform>Всё работает; частично: %n.</numerusform>
            <numerusform>Всё работает; частично: %n.</numerusform>
            <numerusform>Всё работает; частично: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything works.</source>
        <translation>Всё работает.</translation>
    </message>
</context>
<context>
    <name>tembra::EditorBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>tembra::EditorCropOverlay</name>
    <message>
        <source>Crop</source>
        <translation>Обрезка</translation>
    </message>
    <message>
        <source>%1 by %2 pixels, from %3, %4</source>
        <translation>В пикселях: %1 на %2, от точки %3, %4</translation>
    </message>
</context>
<context>
    <name>tembra::EditorCropRow</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
</context>
<context>
    <name>tembra::EditorCropSize</name>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Crop: %1, %2</source>
        <translation>Обрезка: %1, %2</translation>
    </message>
</context>
<context>
    <name>tembra::EditorDock</name>
    <message>
        <source>Tools and style</source>
        <translation>Инструменты и стиль</translation>
    </message>
</context>
<context>
    <name>tembra::EditorDragHandle</name>
    <message>
        <source>Drag image</source>
        <translation>Перетащить изображение</translation>
    </message>
    <message>
        <source>Copies the image when pressed by a key</source>
        <translation>При нажатии с клавиатуры копирует изображение</translation>
    </message>
    <message>
        <source>Drag the image into another window</source>
        <translation>Перетащите изображение в другое окно</translation>
    </message>
</context>
<context>
    <name>tembra::EditorHeader</name>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Отменить %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Повторить %1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Сохранение…</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Показать в Finder</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Переместить в корзину</translation>
    </message>
    <message>
        <source>Screenshot file</source>
        <translation>Файл снимка</translation>
    </message>
</context>
<context>
    <name>tembra::EditorNameField</name>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Изменён</translation>
    </message>
</context>
<context>
    <name>tembra::EditorNumberControl</name>
    <message>
        <source>Previous number</source>
        <translation>Предыдущий номер</translation>
    </message>
    <message>
        <source>Next number</source>
        <translation>Следующий номер</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSettingsPage</name>
    <message>
        <source>Editor</source>
        <translation>Редактор</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Рисование</translation>
    </message>
    <message>
        <source>Drawing color</source>
        <translation>Цвет рисования</translation>
    </message>
    <message>
        <source>The editor remembers the last color that you drew with.</source>
        <translation>Редактор запоминает последний использованный цвет.</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSidebar</name>
    <message>
        <source>Screenshots</source>
        <translation>Снимки экрана</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSidebarModel</name>
    <message>
        <source>Edited, not saved</source>
        <translation>Изменён, не сохранён</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Изменён</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSizeControl</name>
    <message>
        <source>%1 px</source>
        <translation>%1 пикс.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
</context>
<context>
    <name>tembra::EditorStyleRow</name>
    <message>
        <source>Filled</source>
        <translation>Заливка</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Background behind the text</source>
        <translation>Фон под текстом</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Область</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Слова</translation>
    </message>
    <message>
        <source>What to blur</source>
        <translation>Что размывать</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Слабо</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Средне</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Сильно</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Сила размытия</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Выпрямить</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Стиль</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSwatches</name>
    <message>
        <source>Custom color…</source>
        <translation>Другой цвет…</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom color… (%1)</source>
        <translation>Другой цвет… (%1)</translation>
    </message>
</context>
<context>
    <name>tembra::EditorToolRow</name>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>tembra::EditorZoomControl</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Вписать</translation>
    </message>
    <message>
        <source>Fit in window</source>
        <translation>Вписать в окно</translation>
    </message>
</context>
<context>
    <name>tembra::FileCollectionView</name>
    <message>
        <source>Pinned</source>
        <translation>Закреплено</translation>
    </message>
    <message>
        <source>Unpinned</source>
        <translation>Откреплено</translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>Выделен %n</numerusform>
            <numerusform>Выделено %n</numerusform>
            <numerusform>Выделено %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::FileTraySettingsPage</name>
    <message>
        <source>File Tray</source>
        <translation>Лоток</translation>
    </message>
    <message>
        <source>Show the file tray</source>
        <translation>Показывать лоток</translation>
    </message>
    <message>
        <source>Drop or paste files on the shelf now, and drag them out later.</source>
        <translation>Положите или вставьте файлы на полку, а потом перетащите их куда нужно.</translation>
    </message>
</context>
<context>
    <name>tembra::GeneralSettingsPage</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Полка</translation>
    </message>
    <message>
        <source>Open the shelf</source>
        <translation>Открывать полку</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>По щелчку</translation>
    </message>
    <message>
        <source>On hover</source>
        <translation>При наведении</translation>
    </message>
    <message>
        <source>Switch tabs on hover</source>
        <translation>Переключать вкладки наведением</translation>
    </message>
    <message>
        <source>Show the shelf on</source>
        <translation>Где показывать полку</translation>
    </message>
    <message>
        <source>Main display</source>
        <translation>Основной экран</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>Все экраны</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Запуск</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Запускать при входе в систему</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Allow Tembra in System Settings to launch at login</source>
        <translation>Разрешите автозапуск в Системных настройках</translation>
    </message>
    <message>
        <source>Couldn’t change launch at login</source>
        <translation>Не удалось изменить запуск при входе в систему</translation>
    </message>
    <message>
        <source>Disabled in macOS. Allow Tembra in System Settings to launch at login.</source>
        <translation>Отключено в macOS. Разрешите автозапуск Tembra в Системных настройках.</translation>
    </message>
    <message>
        <source>Launch at login is unavailable for this copy of Tembra</source>
        <translation>Для этой копии Tembra запуск при входе в систему недоступен</translation>
    </message>
</context>
<context>
    <name>tembra::ImageToTextSettingsPage</name>
    <message>
        <source>Image to Text</source>
        <translation>Текст с картинки</translation>
    </message>
    <message>
        <source>Show Image to Text</source>
        <translation>Показывать «Текст с картинки»</translation>
    </message>
    <message>
        <source>Reads the text in a screenshot or image. Nothing leaves this computer.</source>
        <translation>Распознаёт текст на снимке или изображении. Данные не покидают этот компьютер.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Языки</translation>
    </message>
    <message>
        <source>Follow the desktop’s languages</source>
        <translation>Использовать языки системы</translation>
    </message>
</context>
<context>
    <name>tembra::LoadingIndicator</name>
    <message>
        <source>Loading</source>
        <translation>Загрузка</translation>
    </message>
</context>
<context>
    <name>tembra::OCRDropView</name>
    <message>
        <source>or paste one with Ctrl+V</source>
        <translation>или вставьте его: Ctrl+V</translation>
    </message>
    <message>
        <source>Choose Image</source>
        <translation>Выбрать файл</translation>
    </message>
    <message>
        <source>Drop an image to extract its text</source>
        <translation>Перетащите сюда изображение, чтобы извлечь текст</translation>
    </message>
</context>
<context>
    <name>tembra::OCRLoadingView</name>
    <message>
        <source>Analyzing…</source>
        <translation>Распознавание…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>tembra::OCRPanel</name>
    <message>
        <source>Image to Text</source>
        <translation>Текст с картинки</translation>
    </message>
</context>
<context>
    <name>tembra::OCRPictureView</name>
    <message>
        <source>The image with this text</source>
        <translation>Изображение с этим текстом</translation>
    </message>
</context>
<context>
    <name>tembra::OCRResultCard</name>
    <message>
        <source>Lines</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Абзацы</translation>
    </message>
    <message>
        <source>One line</source>
        <translation>Одна строка</translation>
    </message>
    <message>
        <source>Text layout</source>
        <translation>Разбивка текста</translation>
    </message>
    <message>
        <source>New Image</source>
        <translation>Другой файл</translation>
    </message>
    <message>
        <source>Expand panel</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message numerus="yes">
        <source>%n words</source>
        <translation>
            <numerusform>%n слово</numerusform>
            <numerusform>%n слова</numerusform>
            <numerusform>%n слов</numerusform>
        </translation>
    </message>
    <message>
        <source>Reduce panel</source>
        <translation>Свернуть</translation>
    </message>
</context>
<context>
    <name>tembra::OCRResultTextView</name>
    <message>
        <source>Recognized text</source>
        <translation>Распознанный текст</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Открыть ссылку</translation>
    </message>
    <message>
        <source>Copy Link</source>
        <translation>Копировать ссылку</translation>
    </message>
</context>
<context>
    <name>tembra::OnboardingDots</name>
    <message>
        <source>Steps</source>
        <translation>Шаги</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Шаг %1 из %2</translation>
    </message>
</context>
<context>
    <name>tembra::OnboardingFlow</name>
    <message numerus="yes">
        <source>%n screenshots were moved from the Desktop.</source>
        <translation>
            <numerusform>С рабочего стола перемещён %n снимок.</numerusform>
            <numerusform>С рабочего стола перемещены %n снимка.</numerusform>
            <numerusform>С рабочего стола перемещено %n снимков.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots could not be moved and stay on the Desktop.</source>
        <translation>
            <numerusform>На рабочем столе остался %n снимок: переместить не удалось.</numerusform>
            <numerusform>На рабочем столе остались %n снимка: переместить не удалось.</numerusform>
            <numerusform>На рабочем столе осталось %n снимков: переместить не удалось.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::PreviewView</name>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Открыть с помощью</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n файл</numerusform>
            <numerusform>%n файла</numerusform>
            <numerusform>%n файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be shown</source>
        <translation>Не удаётся показать %1</translation>
    </message>
    <message>
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotCanvasView</name>
    <message>
        <source>Arrow</source>
        <translation>Стрелка</translation>
    </message>
    <message>
        <source>Pencil stroke</source>
        <translation>Штрих карандашом</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Прямоугольник</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Эллипс</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Текст: %1</translation>
    </message>
    <message>
        <source>Number %1</source>
        <translation>Номер %1</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Размытие</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Дублировать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Bring to front</source>
        <translation>На передний план</translation>
    </message>
    <message>
        <source>Bring forward</source>
        <translation>Переместить вперёд</translation>
    </message>
    <message>
        <source>Send backward</source>
        <translation>Переместить назад</translation>
    </message>
    <message>
        <source>Send to back</source>
        <translation>На задний план</translation>
    </message>
    <message>
        <source>Numbers end at 9,999.</source>
        <translation>Номера заканчиваются на 9999.</translation>
    </message>
    <message>
        <source>Add text</source>
        <translation>добавление текста</translation>
    </message>
    <message>
        <source>Change text</source>
        <translation>изменение текста</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Снимок экрана</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 на %2 пикселей</translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotCollectionView</name>
    <message>
        <source>Screenshots</source>
        <translation>Снимки экрана</translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotEditorWindowController</name>
    <message>
        <source>%1 copy</source>
        <translation>%1 (копия)</translation>
    </message>
    <message>
        <source>A copy was saved as “%1”.</source>
        <translation>Копия сохранена под именем «%1».</translation>
    </message>
    <message>
        <source>The words of this screenshot couldn’t be found. Draw the areas to blur instead.</source>
        <translation>Не удалось найти слова на этом снимке. Отметьте области, которые нужно размыть.</translation>
    </message>
    <message>
        <source>Looking for words…</source>
        <translation>Поиск слов…</translation>
    </message>
    <message>
        <source>There are no words in this screenshot.</source>
        <translation>На этом снимке нет слов.</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>Make a copy</source>
        <translation>Создать копию</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Сохранить копию</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Оставить оба</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Another program changed this screenshot.</source>
        <translation>Этот снимок изменён другой программой.</translation>
    </message>
    <message>
        <source>Another program changed this screenshot. Your edits are still here. Save a copy to keep them.</source>
        <translation>Этот снимок изменён другой программой. Ваши правки на месте. Сохраните копию, чтобы не потерять их.</translation>
    </message>
    <message>
        <source>This screenshot is no longer in its folder. Save a copy to keep your edits.</source>
        <translation>Этого снимка больше нет в его папке. Сохраните копию, чтобы не потерять правки.</translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotsSettingsPage</name>
    <message>
        <source>Screenshots</source>
        <translation>Снимки экрана</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Расположение</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Выбрать…</translation>
    </message>
    <message>
        <source>Screenshots folder</source>
        <translation>Папка снимков</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation>Открыть папку снимков</translation>
    </message>
    <message>
        <source>No folder is chosen yet.</source>
        <translation>Папка ещё не выбрана.</translation>
    </message>
    <message>
        <source>When a screenshot is taken</source>
        <translation>При создании снимка</translation>
    </message>
    <message>
        <source>Show a notification</source>
        <translation>Показывать уведомление</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Копировать в буфер обмена</translation>
    </message>
    <message>
        <source>Open in editor</source>
        <translation>Открывать в редакторе</translation>
    </message>
    <message>
        <source>Hide the screenshot tool’s preview</source>
        <translation>Скрывать всплывающую миниатюру</translation>
    </message>
    <message>
        <source>Couldn’t change the screenshot preview</source>
        <translation>Не удалось изменить показ миниатюры</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Сетка</translation>
    </message>
    <message>
        <source>Show file names</source>
        <translation>Показывать имена файлов</translation>
    </message>
    <message>
        <source>Group by date</source>
        <translation>Группировать по дате</translation>
    </message>
    <message>
        <source>Auto-clean</source>
        <translation>Автоочистка</translation>
    </message>
    <message>
        <source>Move old screenshots to Trash</source>
        <translation>Перемещать старые снимки в корзину</translation>
    </message>
    <message>
        <source>Moves old screenshots and recordings to Trash, including existing ones. Pinned items stay.</source>
        <translation>Старые снимки и записи, в том числе уже имеющиеся, перемещаются в корзину. Закреплённые остаются.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Run a command</source>
        <translation>Запускать команду</translation>
    </message>
    <message>
        <source>A program with its arguments. {} stands for the file, which else comes last.</source>
        <translation>Программа с аргументами. Вместо {} подставляется файл; без {} он добавляется в конец.</translation>
    </message>
</context>
<context>
    <name>tembra::SettingsSidebar</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
</context>
<context>
    <name>tembra::SettingsWindow</name>
    <message>
        <source>No setting has these words.</source>
        <translation>Настроек с такими словами нет.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search in the settings</source>
        <translation>Поиск по настройкам</translation>
    </message>
</context>
<context>
    <name>tembra::ShelfController</name>
    <message>
        <source>Couldn’t Copy Text</source>
        <translation>Не удалось скопировать текст</translation>
    </message>
    <message>
        <source>Couldn’t Open Video</source>
        <translation>Не удалось открыть видео</translation>
    </message>
    <message>
        <source>Couldn’t Open Image</source>
        <translation>Не удалось открыть изображение</translation>
    </message>
    <message>
        <source>The file tray is switched off.</source>
        <translation>Лоток выключен.</translation>
    </message>
    <message>
        <source>Screenshots moved to Trash</source>
        <translation>Снимки в корзине</translation>
    </message>
    <message>
        <source>Couldn’t Open Link</source>
        <translation>Не удалось открыть ссылку</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Вы отменили %1</translation>
    </message>
</context>
<context>
    <name>tembra::ShelfHeader</name>
    <message>
        <source>Screenshots</source>
        <translation>Снимки экрана</translation>
    </message>
    <message>
        <source>Image to Text</source>
        <translation>Текст с картинки</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Лоток</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Отменить %1</translation>
    </message>
    <message>
        <source>%1. Undo takes it back.</source>
        <translation>Можно отменить %1.</translation>
    </message>
</context>
<context>
    <name>tembra::ShelfPanel</name>
    <message>
        <source>Shelf</source>
        <translation>Полка</translation>
    </message>
</context>
<context>
    <name>tembra::ShortcutRecorder</name>
    <message>
        <source>Press a combination…</source>
        <translation>Нажмите клавиши…</translation>
    </message>
</context>
<context>
    <name>tembra::ShortcutSettingsPage</name>
    <message>
        <source>Shortcut</source>
        <translation>Комбинация клавиш</translation>
    </message>
    <message>
        <source>Open the shelf with a shortcut</source>
        <translation>Открывать полку клавишами</translation>
    </message>
    <message>
        <source>It works in every program, and closes the shelf again.</source>
        <translation>Работает в любой программе; повторное нажатие закрывает полку.</translation>
    </message>
    <message>
        <source>Click, then press the combination you want.</source>
        <translation>Щёлкните и нажмите нужную комбинацию.</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Копировать команду</translation>
    </message>
    <message>
        <source>This desktop keeps global shortcuts to itself. In its keyboard settings, add a shortcut for the command “%1”.</source>
        <translation>Эта рабочая среда не отдаёт программам глобальные комбинации. Добавьте в её настройках клавиатуры комбинацию для команды «%1».</translation>
    </message>
</context>
<context>
    <name>tembra::UpdateAlerts</name>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Не удалось проверить обновления</translation>
    </message>
    <message>
        <source>The update failed</source>
        <translation>Не удалось обновить программу</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Что нового</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Скачать</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
</context>
</TS>
