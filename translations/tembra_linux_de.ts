<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<!-- Rewords what names a thing that Linux desktops do not have. -->
<context>
    <name>tembra::GeneralSettingsPage</name>
    <message>
        <source>Disabled in macOS. Allow Tembra in System Settings to launch at login.</source>
        <translation>Von der Arbeitsumgebung abgeschaltet. Erlauben Sie Tembra in ihren Autostart-Einstellungen, bei der Anmeldung zu starten.</translation>
    </message>
    <message>
        <source>Allow Tembra in System Settings to launch at login</source>
        <translation>Erlauben Sie Tembra in den Autostart-Einstellungen, bei der Anmeldung zu starten</translation>
    </message>
</context>
<context>
    <name>FolderChooser</name>
    <message>
        <source>New macOS screenshots will be saved here and appear in Tembra.</source>
        <translation>Neue Bildschirmfotos werden hier gespeichert und erscheinen in Tembra.</translation>
    </message>
</context>
<context>
    <name>ScreenshotSaveLocation</name>
    <message>
        <source>Couldn’t change the macOS screenshot folder.</source>
        <translation>Der Bildschirmfoto-Ordner konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>Your previous folder is still selected. Try again, or change Save to in ⇧⌘5 → Options.</source>
        <translation>Ihr bisheriger Ordner ist weiterhin ausgewählt. Versuchen Sie es erneut, oder ändern Sie den Ordner in den Einstellungen Ihres Bildschirmfoto-Programms.</translation>
    </message>
</context>
<context>
    <name>ScreenshotMenu</name>
    <message>
        <source>Show in Finder</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>Open Folder in Finder</source>
        <translation>Ordner im Dateimanager öffnen</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Couldn’t Show in Finder</source>
        <translation>Anzeige im Dateimanager nicht möglich</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardDropArea</name>
    <message>
        <source>Drop files here or ⌘V to paste</source>
        <translation>Dateien hier ablegen oder mit Strg+V einfügen</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardShelf</name>
    <message>
        <source>Drag or ⌘C to copy</source>
        <translation>Ziehen oder Strg+C zum Kopieren</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
</context>
<context>
    <name>tembra::EditorHeader</name>
    <message>
        <source>Show in Finder</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
</context>
</TS>
