<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<!-- Rewords what names a thing that Linux desktops do not have. -->
<context>
    <name>tembra::GeneralSettingsPage</name>
    <message>
        <source>Disabled in macOS. Allow Tembra in System Settings to launch at login.</source>
        <translation>Отключено рабочей средой. Разрешите автозапуск Tembra в настройках среды.</translation>
    </message>
    <message>
        <source>Allow Tembra in System Settings to launch at login</source>
        <translation>Разрешите автозапуск Tembra в настройках</translation>
    </message>
</context>
<context>
    <name>FolderChooser</name>
    <message>
        <source>New macOS screenshots will be saved here and appear in Tembra.</source>
        <translation>Новые снимки экрана будут сохраняться сюда и появляться в Tembra.</translation>
    </message>
</context>
<context>
    <name>ScreenshotSaveLocation</name>
    <message>
        <source>Couldn’t change the macOS screenshot folder.</source>
        <translation>Не удалось изменить папку снимков.</translation>
    </message>
    <message>
        <source>Your previous folder is still selected. Try again, or change Save to in ⇧⌘5 → Options.</source>
        <translation>Папка осталась прежней. Попробуйте ещё раз или измените её в настройках самой программы для снимков.</translation>
    </message>
</context>
<context>
    <name>ScreenshotMenu</name>
    <message>
        <source>Show in Finder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Open Folder in Finder</source>
        <translation>Открыть папку снимков</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Couldn’t Show in Finder</source>
        <translation>Не удалось показать в папке</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardDropArea</name>
    <message>
        <source>Drop files here or ⌘V to paste</source>
        <translation>Перетащите файлы сюда или вставьте их: Ctrl+V</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardShelf</name>
    <message>
        <source>Drag or ⌘C to copy</source>
        <translation>Перетащите или скопируйте: Ctrl+C</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Показать в папке</translation>
    </message>
</context>
<context>
    <name>tembra::EditorHeader</name>
    <message>
        <source>Show in Finder</source>
        <translation>Показать в папке</translation>
    </message>
</context>
</TS>
