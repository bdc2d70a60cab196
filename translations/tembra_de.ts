<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>AccessibleFile</name>
    <message>
        <source>Pinned</source>
        <translation>Angepinnt</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Bearbeitet</translation>
    </message>
    <message>
        <source>Original unavailable</source>
        <translation>Original nicht verfügbar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>ActivationShortcut</name>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
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
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Tembra is still starting.</source>
        <translation>Tembra startet noch.</translation>
    </message>
</context>
<context>
    <name>AutoClean</name>
    <message>
        <source>Some pinned files couldn’t be located. Auto-clean remains unchanged.</source>
        <translation>Einige angepinnte Dateien wurden nicht gefunden. Das automatische Aufräumen bleibt unverändert.</translation>
    </message>
</context>
<context>
    <name>AutoCleanChange</name>
    <message>
        <source>Couldn’t check screenshots</source>
        <translation>Bildschirmfotos konnten nicht geprüft werden</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Einschalten</translation>
    </message>
    <message numerus="yes">
        <source>%n files will move to Trash when you click %1. Pinned files stay.</source>
        <translation>
            <numerusform>%n Datei wird in den Papierkorb verschoben, wenn Sie auf „%1“ klicken. Angepinnte Dateien bleiben.</numerusform>
            <numerusform>%n Dateien werden in den Papierkorb verschoben, wenn Sie auf „%1“ klicken. Angepinnte Dateien bleiben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Change auto-clean?</source>
        <translation>Automatisches Aufräumen ändern?</translation>
    </message>
    <message>
        <source>Moves old screenshots and recordings to Trash, including existing ones. Pinned items stay.</source>
        <translation>Verschiebt alte Bildschirmfotos und Aufzeichnungen in den Papierkorb, auch schon vorhandene. Angepinntes bleibt.</translation>
    </message>
    <message>
        <source>Enable auto-clean?</source>
        <translation>Automatisches Aufräumen einschalten?</translation>
    </message>
</context>
<context>
    <name>Bookmarks</name>
    <message>
        <source>The bookmark cannot be read.</source>
        <translation>Der gespeicherte Verweis kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The disk that holds “%1” is not connected.</source>
        <translation>Der Datenträger mit „%1“ ist nicht angeschlossen.</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
</context>
<context>
    <name>CaptureCommand</name>
    <message>
        <source>Couldn’t Run the Command</source>
        <translation>Der Befehl konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>“%1”, which is to be run for new screenshots, could not be started.</source>
        <translation>Der Befehl „%1“ für neue Bildschirmfotos ließ sich nicht starten.</translation>
    </message>
</context>
<context>
    <name>CaptureNotification</name>
    <message>
        <source>Got it! First one caught</source>
        <translation>Hab’s! Die erste Aufnahme</translation>
    </message>
    <message>
        <source>Got the recording</source>
        <translation>Die Aufzeichnung ist da</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Bildschirmfoto gespeichert</translation>
    </message>
    <message numerus="yes">
        <source>%n captures</source>
        <translation>
            <numerusform>%n Aufnahme</numerusform>
            <numerusform>%n Aufnahmen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>%n Bildschirmfoto</numerusform>
            <numerusform>%n Bildschirmfotos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · copied</source>
        <translation>%1 · kopiert</translation>
    </message>
    <message>
        <source>Copies when you open the shelf</source>
        <translation>Kopie beim Öffnen der Leiste</translation>
    </message>
</context>
<context>
    <name>ClearScreenshots</name>
    <message numerus="yes">
        <source>Move %n screenshots to Trash?</source>
        <translation>
            <numerusform>%n Bildschirmfoto in den Papierkorb verschieben?</numerusform>
            <numerusform>%n Bildschirmfotos in den Papierkorb verschieben?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pinned screenshots stay.</source>
        <translation>
            <numerusform>%n angepinntes Bildschirmfoto bleibt.</numerusform>
            <numerusform>%n angepinnte Bildschirmfotos bleiben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>ClipboardStore</name>
    <message>
        <source>Could not receive this file</source>
        <translation>Diese Datei konnte nicht empfangen werden</translation>
    </message>
    <message>
        <source>Could not add this image</source>
        <translation>Dieses Bild konnte nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>Pipes, sockets and devices cannot be kept in the file tray</source>
        <translation>Pipes, Sockets und Geräte lassen sich nicht in der Dateiablage aufbewahren</translation>
    </message>
    <message>
        <source>Some files could not be received</source>
        <translation>Einige Dateien konnten nicht empfangen werden</translation>
    </message>
    <message>
        <source>Receiving files…</source>
        <translation>Dateien werden empfangen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--tab takes tray, screenshots or text.</source>
        <translation>--tab nimmt tray, screenshots oder text an.</translation>
    </message>
    <message>
        <source>%1 takes a file.</source>
        <translation>%1 braucht eine Datei.</translation>
    </message>
    <message>
        <source>Unexpected word on the command line: %1</source>
        <translation>Unerwartetes Wort in der Befehlszeile: %1</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>Den Befehl „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>scan takes the folder to look at.</source>
        <translation>scan braucht den Ordner, der untersucht werden soll.</translation>
    </message>
    <message>
        <source>add takes the files to put into the file tray.</source>
        <translation>add braucht die Dateien, die in die Dateiablage sollen.</translation>
    </message>
    <message>
        <source>edit takes the image to open.</source>
        <translation>edit braucht das Bild, das geöffnet werden soll.</translation>
    </message>
    <message>
        <source>ocr takes the image to read.</source>
        <translation>ocr braucht das Bild, das gelesen werden soll.</translation>
    </message>
    <message>
        <source>render takes an image, --edits and -o with a file each.</source>
        <translation>render braucht ein Bild sowie --edits und -o mit je einer Datei.</translation>
    </message>
    <message>
        <source>settings takes general, screenshots, editor, tray, text, shortcut, doctor or about.</source>
        <translation>settings nimmt general, screenshots, editor, tray, text, shortcut, doctor oder about.</translation>
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
        <translation>Aufruf: tembra [BEFEHL]

  tembra                       starten; läuft es schon, die Leiste zeigen
  tembra --background          unsichtbar starten, wie bei der Anmeldung
  tembra open [--tab TAB]      Leiste öffnen (TAB: tray, screenshots oder text)
  tembra close                 Leiste schließen
  tembra toggle                Leiste öffnen oder schließen
  tembra add DATEI...          Dateien in die Dateiablage legen
  tembra edit DATEI            ein Bildschirmfoto im Editor öffnen
  tembra settings [SEITE]      Einstellungen öffnen (SEITE: general,
                               screenshots, editor, tray, text, shortcut,
                               doctor, about)
  tembra doctor [--json]       zeigen, was in dieser Arbeitsumgebung geht und was
                               den Rest behebt
  tembra status [--json]       Zustand des laufenden Programms nennen
  tembra scan ORDNER [--json]  nennen, was als Aufnahme erkannt wird und warum
  tembra render DATEI --edits EDITS.json -o AUSGABE
                               Anmerkungen und Zuschnitt auf ein Bild anwenden
  tembra ocr DATEI [--paragraphs | --one-line] [--words] [--json]
                               Text eines Bildes lesen
  tembra quit                  laufendes Programm beenden
  tembra --version, --help
</translation>
    </message>
</context>
<context>
    <name>CommandService</name>
    <message>
        <source>Tembra does not know the command “%1”.</source>
        <translation>Tembra kennt den Befehl „%1“ nicht.</translation>
    </message>
    <message>
        <source>This tab is not shown.</source>
        <translation>Dieser Tab wird nicht angezeigt.</translation>
    </message>
    <message>
        <source>The settings have no page of this name.</source>
        <translation>Die Einstellungen haben keine Seite mit diesem Namen.</translation>
    </message>
</context>
<context>
    <name>DesktopPaths</name>
    <message>
        <source>X11, with a compositor. Nothing is missing.</source>
        <translation>X11, mit Compositor. Nichts fehlt.</translation>
    </message>
    <message>
        <source>X11, without a compositor: the shelf’s corners are not see-through.</source>
        <translation>X11, ohne Compositor: Die Ecken der Leiste sind nicht durchsichtig.</translation>
    </message>
    <message>
        <source>Start a compositor, for example picom.</source>
        <translation>Starten Sie einen Compositor, zum Beispiel picom.</translation>
    </message>
    <message>
        <source>Wayland, through its X server, because this desktop gives programs no place at the edge of the screen. Over windows of other programs the pointer may go unnoticed there.</source>
        <translation>Wayland, über dessen X-Server, weil diese Arbeitsumgebung Programmen keinen Platz am Bildschirmrand gibt. Über Fenstern anderer Programme bleibt der Zeiger dort womöglich unbemerkt.</translation>
    </message>
    <message>
        <source>Bind the command “tembra toggle” to a key in the keyboard settings of the desktop.</source>
        <translation>Legen Sie in den Tastatureinstellungen der Arbeitsumgebung den Befehl „tembra toggle“ auf eine Taste.</translation>
    </message>
    <message>
        <source>Wayland, as a layer of the desktop. Nothing is missing.</source>
        <translation>Wayland, als Ebene der Arbeitsumgebung. Nichts fehlt.</translation>
    </message>
    <message>
        <source>Wayland, on a desktop that gives programs no place at the edge of the screen.</source>
        <translation>Wayland, auf einer Arbeitsumgebung, die Programmen keinen Platz am Bildschirmrand gibt.</translation>
    </message>
    <message>
        <source>Install the desktop’s X server, Xwayland, and log in again.</source>
        <translation>Installieren Sie den X-Server der Arbeitsumgebung, Xwayland, und melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>Through the X server.</source>
        <translation>Über den X-Server.</translation>
    </message>
    <message>
        <source>Through the desktop’s data control, also in the background.</source>
        <translation>Über das Data-Control-Protokoll der Arbeitsumgebung, auch im Hintergrund.</translation>
    </message>
    <message>
        <source>This desktop lets only the program with the keyboard use the clipboard. New screenshots may not be copied by themselves.</source>
        <translation>Diese Arbeitsumgebung lässt nur das Programm, das gerade die Tastatureingaben erhält, an die Zwischenablage. Neue Bildschirmfotos werden womöglich nicht von selbst kopiert.</translation>
    </message>
    <message>
        <source>Select the screenshot in the shelf and press Ctrl+C.</source>
        <translation>Wählen Sie das Bildschirmfoto in der Leiste aus und drücken Sie Strg+C.</translation>
    </message>
    <message>
        <source>Keys are taken from the X server.</source>
        <translation>Tasten kommen vom X-Server.</translation>
    </message>
    <message>
        <source>Keys are asked of the desktop’s portal.</source>
        <translation>Tasten kommen vom Portal der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>This desktop lets programs have no keys of their own.</source>
        <translation>Diese Arbeitsumgebung gibt Programmen keine eigenen Tasten.</translation>
    </message>
    <message>
        <source>This desktop shows no status items.</source>
        <translation>Diese Arbeitsumgebung zeigt keine Programmsymbole im Infobereich.</translation>
    </message>
    <message>
        <source>Start Tembra once more to open the shelf, or use “tembra toggle”. Under GNOME the extension AppIndicator shows status items.</source>
        <translation>Starten Sie Tembra noch einmal, um die Leiste zu öffnen, oder verwenden Sie „tembra toggle“. Unter GNOME zeigt die Erweiterung AppIndicator solche Symbole.</translation>
    </message>
    <message>
        <source>A new file in the folder was not noticed.</source>
        <translation>Eine neue Datei im Ordner blieb unbemerkt.</translation>
    </message>
    <message>
        <source>Let programs watch more folders: sudo sysctl fs.inotify.max_user_watches=524288</source>
        <translation>Lassen Sie Programme mehr Ordner beobachten: sudo sysctl fs.inotify.max_user_watches=524288</translation>
    </message>
    <message>
        <source>Text is read in: %1. Not installed: %2.</source>
        <translation>Text wird gelesen in: %1. Nicht installiert: %2.</translation>
    </message>
    <message>
        <source>Install the language’s data: sudo apt install tesseract-ocr-%1</source>
        <translation>Installieren Sie die Daten der Sprache: sudo apt install tesseract-ocr-%1</translation>
    </message>
    <message>
        <source>Wayland, through its X server, although this desktop could do without.</source>
        <translation>Wayland, über dessen X-Server, obwohl diese Arbeitsumgebung ihn nicht braucht.</translation>
    </message>
    <message>
        <source>Install Qt’s Wayland platform (sudo apt install qt6-wayland) and start Tembra without QT_QPA_PLATFORM.</source>
        <translation>Installieren Sie Qts Wayland-Plattform (sudo apt install qt6-wayland) und starten Sie Tembra ohne QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>This desktop shows status items.</source>
        <translation>Diese Arbeitsumgebung zeigt Programmsymbole im Infobereich.</translation>
    </message>
</context>
<context>
    <name>DesktopScreenshotOrganizer</name>
    <message>
        <source>“%1” is there already and is no folder.</source>
        <translation>„%1“ gibt es schon und ist kein Ordner.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be read.</source>
        <translation>Der Ordner „%1“ kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A window stands at the top edge of the screen.</source>
        <translation>Ein Fenster lässt sich an den oberen Bildschirmrand setzen.</translation>
    </message>
    <message>
        <source>A window that was put at the top edge of the screen is not there.</source>
        <translation>Ein Fenster, das an den oberen Bildschirmrand gesetzt wurde, ist nicht dort.</translation>
    </message>
    <message>
        <source>Log in to another session of the desktop, for example on X11.</source>
        <translation>Melden Sie sich in einer anderen Sitzung an, zum Beispiel unter X11.</translation>
    </message>
    <message>
        <source>No folder was tried.</source>
        <translation>Kein Ordner wurde geprüft.</translation>
    </message>
    <message>
        <source>The folder is on another machine, which does not tell what changes there: new captures are looked for now and then.</source>
        <translation>Der Ordner liegt auf einem anderen Rechner, der Änderungen nicht meldet: Nach neuen Aufnahmen wird von Zeit zu Zeit gesucht.</translation>
    </message>
    <message>
        <source>A new file in the folder was noticed.</source>
        <translation>Eine neue Datei im Ordner wurde bemerkt.</translation>
    </message>
    <message>
        <source>Screenshots folder</source>
        <translation>Bildschirmfoto-Ordner</translation>
    </message>
    <message>
        <source>Changes in the folder</source>
        <translation>Änderungen im Ordner</translation>
    </message>
    <message>
        <source>Screenshot tool</source>
        <translation>Bildschirmfoto-Programm</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Place of the shelf</source>
        <translation>Platz der Leiste</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Status item</source>
        <translation>Symbol im Infobereich</translation>
    </message>
    <message>
        <source>Languages of Image to Text</source>
        <translation>Sprachen von „Text aus Bild“</translation>
    </message>
    <message>
        <source>Command for new captures</source>
        <translation>Befehl für neue Aufnahmen</translation>
    </message>
    <message>
        <source>Trash for “%1”</source>
        <translation>Papierkorb für „%1“</translation>
    </message>
    <message>
        <source>Choose a folder in the settings: tembra settings screenshots</source>
        <translation>Wählen Sie in den Einstellungen einen Ordner: tembra settings screenshots</translation>
    </message>
    <message>
        <source>No folder is chosen yet.</source>
        <translation>Noch ist kein Ordner gewählt.</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>„%1“ ist nicht da.</translation>
    </message>
    <message>
        <source>Connect its disk, or choose another folder in the settings.</source>
        <translation>Schließen Sie den Datenträger an oder wählen Sie in den Einstellungen einen anderen Ordner.</translation>
    </message>
    <message>
        <source>“%1” may not be read.</source>
        <translation>„%1“ darf nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%1” may be read but not changed: captures cannot be renamed or removed.</source>
        <translation>„%1“ darf gelesen, aber nicht geändert werden: Aufnahmen können nicht umbenannt oder entfernt werden.</translation>
    </message>
    <message>
        <source>Choose the folder once more in the settings: the tool is then told of it.</source>
        <translation>Wählen Sie den Ordner in den Einstellungen noch einmal: Er wird dem Programm dann mitgeteilt.</translation>
    </message>
    <message>
        <source>%1 puts captures on the clipboard and saves none.</source>
        <translation>%1 legt Aufnahmen in die Zwischenablage und speichert keine.</translation>
    </message>
    <message>
        <source>%1 does not save captures to a folder.</source>
        <translation>%1 speichert Aufnahmen in keinem Ordner.</translation>
    </message>
    <message>
        <source>%1 saves into “%2”, but captures are looked for in “%3”.</source>
        <translation>%1 speichert in „%2“, gesucht werden Aufnahmen aber in „%3“.</translation>
    </message>
    <message>
        <source>%1 saves into “%2”.</source>
        <translation>%1 speichert in „%2“.</translation>
    </message>
    <message>
        <source>No shortcut is switched on.</source>
        <translation>Kein Tastenkürzel ist eingeschaltet.</translation>
    </message>
    <message>
        <source>Choose another one: tembra settings shortcut</source>
        <translation>Wählen Sie ein anderes: tembra settings shortcut</translation>
    </message>
    <message>
        <source>Text is read in: %1.</source>
        <translation>Text wird gelesen in: %1.</translation>
    </message>
    <message>
        <source>No command is run for new captures.</source>
        <translation>Für neue Aufnahmen wird kein Befehl gestartet.</translation>
    </message>
    <message>
        <source>There is no program “%1”.</source>
        <translation>Ein Programm „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Name it with its whole path: tembra settings screenshots</source>
        <translation>Nennen Sie es mit ganzem Pfad: tembra settings screenshots</translation>
    </message>
    <message>
        <source>“%1” is run for new captures.</source>
        <translation>„%1“ wird für neue Aufnahmen gestartet.</translation>
    </message>
    <message>
        <source>Nothing may be written there.</source>
        <translation>Dort darf nichts geschrieben werden.</translation>
    </message>
    <message>
        <source>Files move to the Trash and back.</source>
        <translation>Dateien kommen in den Papierkorb und zurück.</translation>
    </message>
    <message>
        <source>Remove files there with the file manager.</source>
        <translation>Entfernen Sie Dateien dort mit dem Dateimanager.</translation>
    </message>
    <message>
        <source>Where this desktop’s screenshot tool saves is not known.</source>
        <translation>Wohin das Bildschirmfoto-Programm dieser Arbeitsumgebung speichert, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Let it save into “%1”.</source>
        <translation>Lassen Sie es in „%1“ speichern.</translation>
    </message>
    <message>
        <source>It was not tried, because Tembra does not run.</source>
        <translation>Es wurde nicht versucht, weil Tembra nicht läuft.</translation>
    </message>
</context>
<context>
    <name>DoctorReport</name>
    <message>
        <source>works</source>
        <translation>geht</translation>
    </message>
    <message>
        <source>in part</source>
        <translation>zum Teil</translation>
    </message>
    <message>
        <source>BROKEN</source>
        <translation>GEHT NICHT</translation>
    </message>
</context>
<context>
    <name>EditorDocuments</name>
    <message>
        <source>This is the screenshot that you are editing. Save it, or choose another name for the copy.</source>
        <translation>Dieses Bildschirmfoto bearbeiten Sie gerade. Speichern Sie es, oder wählen Sie einen anderen Namen für die Kopie.</translation>
    </message>
</context>
<context>
    <name>EditorPalette</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
</context>
<context>
    <name>EditorQuestions</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiteres</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Save the edits of “%1”?</source>
        <translation>Änderungen an „%1“ speichern?</translation>
    </message>
    <message numerus="yes">
        <source>Save the edits of %n screenshots?</source>
        <translation>
            <numerusform>Änderungen an %n Bildschirmfoto speichern?</numerusform>
            <numerusform>Änderungen an %n Bildschirmfotos speichern?</numerusform>
        </translation>
    </message>
    <message>
        <source>Your edits are lost if you don’t save them.</source>
        <translation>Wenn Sie nicht speichern, gehen Ihre Änderungen verloren.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Discard all</source>
        <translation>Alle verwerfen</translation>
    </message>
    <message>
        <source>Reload “%1”?</source>
        <translation>„%1“ neu laden?</translation>
    </message>
    <message>
        <source>Your unsaved edits of it are lost.</source>
        <translation>Ihre nicht gespeicherten Änderungen daran gehen verloren.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Kopie speichern</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg)</source>
        <translation>Bilder (*.png *.jpg *.jpeg)</translation>
    </message>
</context>
<context>
    <name>EditorTool</name>
    <message>
        <source>Select</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichner</translation>
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
        <translation>Ein anderes Programm hat die Datei geändert.</translation>
    </message>
    <message>
        <source>A file with this name already exists.</source>
        <translation>Eine Datei mit diesem Namen gibt es schon.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>“%1” is no longer there.</source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>Der Ordner „%1“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>No file manager could open the folder “%1”.</source>
        <translation>Kein Dateimanager konnte den Ordner „%1“ öffnen.</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Couldn’t Show in Finder</source>
        <translation>Anzeige im Finder nicht möglich</translation>
    </message>
    <message>
        <source>Couldn’t Open Files</source>
        <translation>Dateien konnten nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>FilePromises</name>
    <message>
        <source>The program that was to write the file did not do so.</source>
        <translation>Das Programm, das die Datei schreiben sollte, hat es nicht getan.</translation>
    </message>
</context>
<context>
    <name>FileWatcherService</name>
    <message>
        <source>Folder access needs to be restored</source>
        <translation>Der Zugriff auf den Ordner muss wiederhergestellt werden</translation>
    </message>
</context>
<context>
    <name>FolderChooser</name>
    <message>
        <source>Choose where screenshots should save. Auto-clean will be set to Never for this folder.</source>
        <translation>Wählen Sie, wo Bildschirmfotos gespeichert werden. Das automatische Aufräumen wird für diesen Ordner auf „Nie“ gestellt.</translation>
    </message>
    <message>
        <source>New macOS screenshots will be saved here and appear in Tembra.</source>
        <translation>Neue macOS-Bildschirmfotos werden hier gespeichert und erscheinen in Tembra.</translation>
    </message>
    <message>
        <source>Choose Your Screenshots Folder</source>
        <translation>Bildschirmfoto-Ordner wählen</translation>
    </message>
</context>
<context>
    <name>FolderNotification</name>
    <message>
        <source>Screenshot location changed</source>
        <translation>Speicherort der Bildschirmfotos geändert</translation>
    </message>
    <message>
        <source>Screenshots aren’t saving to a folder</source>
        <translation>Bildschirmfotos kommen in keinen Ordner</translation>
    </message>
    <message>
        <source>Screenshots folder unavailable</source>
        <translation>Bildschirmfoto-Ordner nicht verfügbar</translation>
    </message>
    <message>
        <source>Screenshots folder recovered</source>
        <translation>Bildschirmfoto-Ordner wieder da</translation>
    </message>
</context>
<context>
    <name>GlobalActivationShortcut</name>
    <message>
        <source>This shortcut is unavailable. Choose another combination.</source>
        <translation>Dieses Tastenkürzel ist nicht verfügbar. Wählen Sie eine andere Kombination.</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>Another program has this shortcut.</source>
        <translation>Dieses Tastenkürzel gehört einem anderen Programm.</translation>
    </message>
    <message>
        <source>The desktop has ended this shortcut. Switch it off and on again.</source>
        <translation>Die Arbeitsumgebung hat dieses Tastenkürzel beendet. Schalten Sie es aus und wieder ein.</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts of their own. Bind “tembra toggle” to one in its settings.</source>
        <translation>Diese Arbeitsumgebung gibt Programmen keine eigenen Tastenkürzel. Weisen Sie „tembra toggle“ in ihren Einstellungen eines zu.</translation>
    </message>
    <message>
        <source>Open or close the shelf</source>
        <translation>Leiste öffnen oder schließen</translation>
    </message>
</context>
<context>
    <name>ImageChooser</name>
    <message>
        <source>Choose an Image</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
</context>
<context>
    <name>LoginItem</name>
    <message>
        <source>Launch at login is unavailable for this copy of Tembra</source>
        <translation>Der Start bei der Anmeldung ist für diese Kopie von Tembra nicht verfügbar</translation>
    </message>
    <message>
        <source>“%1” can’t be removed: %2</source>
        <translation>„%1“ kann nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>This desktop has no settings for the programs that start at login.</source>
        <translation>Diese Arbeitsumgebung hat keine Einstellungen für Programme, die bei der Anmeldung starten.</translation>
    </message>
    <message>
        <source>“%1” can’t be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Check for updates…</source>
        <translation>Nach Updates suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Hide Tembra</source>
        <translation>Tembra ausblenden</translation>
    </message>
    <message>
        <source>Hide others</source>
        <translation>Andere ausblenden</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle einblenden</translation>
    </message>
    <message>
        <source>Quit Tembra</source>
        <translation>Tembra beenden</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Als Kopie speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>In Fenster einpassen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Bring all to front</source>
        <translation>Alle nach vorne</translation>
    </message>
</context>
<context>
    <name>OCR</name>
    <message>
        <source>Could not read this image. Try another one.</source>
        <translation>Dieses Bild konnte nicht gelesen werden. Versuchen Sie es mit einem anderen.</translation>
    </message>
    <message>
        <source>No text found. Try another image.</source>
        <translation>Kein Text gefunden. Versuchen Sie es mit einem anderen Bild.</translation>
    </message>
    <message>
        <source>%1 isn’t an image file.</source>
        <translation>%1 ist keine Bilddatei.</translation>
    </message>
    <message>
        <source>The image is damaged, too large or of an unknown kind.</source>
        <translation>Das Bild ist beschädigt, zu groß oder von unbekannter Art.</translation>
    </message>
    <message>
        <source>Animations can’t be read.</source>
        <translation>Animationen können nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Onboarding</name>
    <message>
        <source>Your screenshots, always at hand</source>
        <translation>Ihre Bildschirmfotos, immer zur Hand</translation>
    </message>
    <message>
        <source>Tembra keeps them at the top of your screen. Move the pointer to the edge, and they come down to meet it.</source>
        <translation>Tembra hält sie am oberen Bildschirmrand bereit. Bewegen Sie den Zeiger an den Rand, und sie kommen ihm entgegen.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Where should screenshots go?</source>
        <translation>Wohin mit den Bildschirmfotos?</translation>
    </message>
    <message>
        <source>New screenshots will be saved here and appear in Tembra, at the top of your screen.</source>
        <translation>Neue Bildschirmfotos werden hier gespeichert und erscheinen in Tembra, oben am Bildschirm.</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation>Ordner verwenden</translation>
    </message>
    <message>
        <source>Bring along what you have?</source>
        <translation>Vorhandene gleich mitnehmen?</translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots lie on your Desktop. Tembra can move them to the folder you chose.</source>
        <translation>
            <numerusform>%n Bildschirmfoto liegt auf Ihrem Schreibtisch. Tembra kann es in den gewählten Ordner verschieben.</numerusform>
            <numerusform>%n Bildschirmfotos liegen auf Ihrem Schreibtisch. Tembra kann sie in den gewählten Ordner verschieben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>Wird verschoben&#xa0;…</translation>
    </message>
    <message>
        <source>Move Screenshots</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Leave Them</source>
        <translation>Dort lassen</translation>
    </message>
    <message>
        <source>Got it! First one caught</source>
        <translation>Hab’s! Die erste Aufnahme</translation>
    </message>
    <message>
        <source>It is on your shelf now. Move the pointer to the top of your screen whenever you need it.</source>
        <translation>Sie liegt jetzt in Ihrer Leiste. Bewegen Sie den Zeiger an den oberen Bildschirmrand, wann immer Sie sie brauchen.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Take your first screenshot</source>
        <translation>Machen Sie Ihr erstes Bildschirmfoto</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Take a screenshot the way you always do, with Print for&#xa0;example. Tembra waits for it here.</source>
        <translation>Machen Sie ein Bildschirmfoto wie gewohnt, zum&#xa0;Beispiel mit Druck. Tembra wartet hier darauf.</translation>
    </message>
</context>
<context>
    <name>Pasteboard</name>
    <message>
        <source>The clipboard is in use by another program.</source>
        <translation>Die Zwischenablage wird gerade von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>The desktop did not let Tembra use the clipboard.</source>
        <translation>Die Arbeitsumgebung hat Tembra den Zugriff auf die Zwischenablage verweigert.</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>Tembra needs a desktop: neither DISPLAY nor WAYLAND_DISPLAY leads to one.</source>
        <translation>Tembra braucht einen Desktop: Weder DISPLAY noch WAYLAND_DISPLAY führt zu einem.</translation>
    </message>
</context>
<context>
    <name>RcFile</name>
    <message>
        <source>“%1” is not a settings file.</source>
        <translation>„%1“ ist keine Einstellungsdatei.</translation>
    </message>
</context>
<context>
    <name>RenderCommand</name>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>What is read is not written over: name another file for the output.</source>
        <translation>Eingaben werden nicht überschrieben: Nennen Sie eine andere Datei für die Ausgabe.</translation>
    </message>
</context>
<context>
    <name>SafetyReview</name>
    <message>
        <source>Keep auto-clean enabled?</source>
        <translation>Automatisches Aufräumen beibehalten?</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-clean is set to %1, with %2 to move to Trash.

Keep auto-clean enabled or turn it off to keep these files.</source>
        <translation>Das automatische Aufräumen steht auf „%1“. In den Papierkorb kämen: %2.

Behalten Sie es bei, oder schalten Sie es aus, damit diese Dateien bleiben.</translation>
    </message>
    <message>
        <source>Keep enabled</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>Turn off</source>
        <translation>Ausschalten</translation>
    </message>
</context>
<context>
    <name>ScanCommand</name>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>ScanReport</name>
    <message>
        <source>neither an image nor a recording</source>
        <translation>weder ein Bild noch eine Aufzeichnung</translation>
    </message>
    <message>
        <source>neither marker, metadata nor name say that it is a capture</source>
        <translation>weder Kennzeichnung noch Metadaten noch Name weisen auf eine Aufnahme hin</translation>
    </message>
    <message>
        <source> (not whole)</source>
        <translation> (unvollständig)</translation>
    </message>
</context>
<context>
    <name>ScreenCapturePreferences</name>
    <message>
        <source>The screenshot tool</source>
        <translation>Das Bildschirmfoto-Programm</translation>
    </message>
    <message>
        <source>%1 has no floating thumbnail to turn on or off.</source>
        <translation>%1 hat keine schwebende Vorschau, die sich ein- oder ausschalten ließe.</translation>
    </message>
</context>
<context>
    <name>ScreenshotAutoCleanPeriod</name>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n Tag</numerusform>
            <numerusform>%n Tage</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScreenshotCommands</name>
    <message>
        <source>Couldn’t Pin Screenshots</source>
        <translation>Bildschirmfotos konnten nicht angepinnt werden</translation>
    </message>
    <message>
        <source>Couldn’t Open Folder</source>
        <translation>Ordner konnte nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>ScreenshotEdit</name>
    <message>
        <source>Straighten</source>
        <translation>Begradigen</translation>
    </message>
    <message>
        <source>Change number</source>
        <translation>Nummer ändern</translation>
    </message>
    <message>
        <source>Change text style</source>
        <translation>Textstil ändern</translation>
    </message>
    <message>
        <source>Change number size</source>
        <translation>Nummerngröße ändern</translation>
    </message>
    <message>
        <source>Change style</source>
        <translation>Stil ändern</translation>
    </message>
    <message>
        <source>Move annotations</source>
        <translation>Anmerkungen verschieben</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Change order</source>
        <translation>Reihenfolge ändern</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Draw arrow</source>
        <translation>Pfeil zeichnen</translation>
    </message>
    <message>
        <source>Draw stroke</source>
        <translation>Strich zeichnen</translation>
    </message>
    <message>
        <source>Draw line</source>
        <translation>Linie zeichnen</translation>
    </message>
    <message>
        <source>Draw rectangle</source>
        <translation>Rechteck zeichnen</translation>
    </message>
    <message>
        <source>Draw ellipse</source>
        <translation>Ellipse zeichnen</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <source>Add number</source>
        <translation>Nummer hinzufügen</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Biegen</translation>
    </message>
    <message>
        <source>Move end</source>
        <translation>Ende verschieben</translation>
    </message>
    <message>
        <source>Blur words</source>
        <translation>Wörter weichzeichnen</translation>
    </message>
    <message>
        <source>“%1” already exists in this folder.</source>
        <translation>„%1“ gibt es in diesem Ordner schon.</translation>
    </message>
    <message>
        <source>Delete annotation</source>
        <translation>Anmerkung löschen</translation>
    </message>
    <message>
        <source>Delete annotations</source>
        <translation>Anmerkungen löschen</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>This file can’t be edited.</source>
        <translation>Diese Datei kann nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>The editor currently supports PNG and JPEG images.</source>
        <translation>Der Editor kann zurzeit PNG- und JPEG-Bilder bearbeiten.</translation>
    </message>
    <message>
        <source>This image changed outside Tembra. Make a copy to edit it as a new image.</source>
        <translation>Dieses Bild wurde außerhalb von Tembra geändert. Legen Sie eine Kopie an, um es als neues Bild zu bearbeiten.</translation>
    </message>
    <message>
        <source>The original image couldn’t be opened.</source>
        <translation>Das Originalbild konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>This annotation couldn’t be opened.</source>
        <translation>Diese Anmerkung konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>This crop couldn’t be opened.</source>
        <translation>Dieser Zuschnitt konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>This image changed outside Tembra. Your edits are still here. Use Save a copy to keep them.</source>
        <translation>Dieses Bild wurde außerhalb von Tembra geändert. Ihre Änderungen sind noch da. Mit „Kopie speichern“ bleiben sie erhalten.</translation>
    </message>
    <message>
        <source>Enter a name for this screenshot.</source>
        <translation>Geben Sie einen Namen für dieses Bildschirmfoto ein.</translation>
    </message>
    <message>
        <source>Choose a name without slashes, colons or a leading dot.</source>
        <translation>Wählen Sie einen Namen ohne Schrägstriche, Doppelpunkte oder Punkt am Anfang.</translation>
    </message>
    <message>
        <source>This image changed outside Tembra. Its name hasn’t been changed.</source>
        <translation>Dieses Bild wurde außerhalb von Tembra geändert. Sein Name bleibt, wie er war.</translation>
    </message>
    <message>
        <source>This image couldn’t be opened.</source>
        <translation>Dieses Bild konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>There isn’t enough memory to save this image.</source>
        <translation>Der Speicher reicht nicht aus, um dieses Bild zu speichern.</translation>
    </message>
    <message>
        <source>Couldn’t prepare the image.</source>
        <translation>Das Bild konnte nicht vorbereitet werden.</translation>
    </message>
    <message>
        <source>This image format can’t be saved.</source>
        <translation>Dieses Bildformat kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Couldn’t encode the image.</source>
        <translation>Das Bild konnte nicht kodiert werden.</translation>
    </message>
    <message>
        <source>Couldn’t prepare the blur.</source>
        <translation>Das Weichzeichnen konnte nicht vorbereitet werden.</translation>
    </message>
    <message>
        <source>The edits are not readable JSON.</source>
        <translation>Die Änderungen sind kein lesbares JSON.</translation>
    </message>
</context>
<context>
    <name>ScreenshotFeedback</name>
    <message>
        <source>Got it</source>
        <translation>Hab’s</translation>
    </message>
    <message>
        <source>Caught it</source>
        <translation>Eingefangen</translation>
    </message>
    <message>
        <source>Got that</source>
        <translation>Ist im Kasten</translation>
    </message>
    <message>
        <source>I got you</source>
        <translation>Auf mich ist Verlass</translation>
    </message>
    <message>
        <source>Saved it</source>
        <translation>Gesichert</translation>
    </message>
    <message>
        <source>Right here</source>
        <translation>Liegt bereit</translation>
    </message>
    <message>
        <source>Keeping this one</source>
        <translation>Das bleibt hier</translation>
    </message>
    <message>
        <source>Another one</source>
        <translation>Noch eins</translation>
    </message>
    <message>
        <source>Got that too</source>
        <translation>Auch im Kasten</translation>
    </message>
    <message>
        <source>Still here</source>
        <translation>Bin noch da</translation>
    </message>
    <message>
        <source>I’ve got you</source>
        <translation>Ich pass drauf auf</translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderAccess</name>
    <message>
        <source>“%1” is not a folder on this computer.</source>
        <translation>„%1“ ist kein Ordner auf diesem Computer.</translation>
    </message>
    <message>
        <source>“%1” is not a folder.</source>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>“%1” is in the Trash.</source>
        <translation>„%1“ liegt im Papierkorb.</translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderMessage</name>
    <message>
        <source>Choose Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Where should screenshots go?</source>
        <translation>Wohin mit den Bildschirmfotos?</translation>
    </message>
    <message>
        <source>Loading screenshots…</source>
        <translation>Bildschirmfotos werden geladen&#xa0;…</translation>
    </message>
    <message>
        <source>Screenshots are saved elsewhere. Choose the new folder.</source>
        <translation>Bildschirmfotos werden woanders gespeichert. Wählen Sie den neuen Ordner.</translation>
    </message>
    <message>
        <source>Screenshots go to the clipboard. Choose a folder to save them.</source>
        <translation>Bildschirmfotos kommen in die Zwischenablage. Wählen Sie einen Ordner, um sie zu speichern.</translation>
    </message>
    <message>
        <source>Screenshots aren’t saved to a folder. Choose one to use with Tembra.</source>
        <translation>Bildschirmfotos kommen in keinen Ordner. Wählen Sie einen für Tembra.</translation>
    </message>
    <message>
        <source>Where did the folder go?</source>
        <translation>Wo ist der Ordner geblieben?</translation>
    </message>
    <message>
        <source>I lost track of your screenshots folder. Pick a new one to keep going</source>
        <translation>Der Bildschirmfoto-Ordner ist nicht mehr zu finden. Wählen Sie einen neuen, dann geht es weiter.</translation>
    </message>
    <message>
        <source>No screenshots yet</source>
        <translation>Noch keine Bildschirmfotos</translation>
    </message>
    <message>
        <source>Take one and it appears here.</source>
        <translation>Das nächste erscheint hier.</translation>
    </message>
</context>
<context>
    <name>ScreenshotMenu</name>
    <message>
        <source>No Compatible Applications</source>
        <translation>Keine passenden Programme</translation>
    </message>
    <message>
        <source> (Default)</source>
        <translation> (Standard)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Im Editor öffnen</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Öffnen mit</translation>
    </message>
    <message>
        <source>Image to Text</source>
        <translation>Text aus Bild</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder anzeigen</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anpinnen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Pinned screenshots stay. Unpin them to move them to Trash.</source>
        <translation>Angepinnte Bildschirmfotos bleiben. Zum Entfernen erst lösen.</translation>
    </message>
    <message>
        <source>Open Folder in Finder</source>
        <translation>Ordner im Finder öffnen</translation>
    </message>
    <message>
        <source>Screenshot Settings</source>
        <translation>Bildschirmfoto-Einstellungen</translation>
    </message>
    <message>
        <source>Clear Screenshots</source>
        <translation>Bildschirmfotos entfernen</translation>
    </message>
</context>
<context>
    <name>ScreenshotRemoval</name>
    <message>
        <source>Some pinned files are unavailable. Reconnect their disk and try again.</source>
        <translation>Einige angepinnte Dateien sind nicht verfügbar. Schließen Sie deren Datenträger wieder an, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This screenshot is pinned. Unpin it before moving it to Trash.</source>
        <translation>Dieses Bildschirmfoto ist angepinnt. Lösen Sie es, bevor Sie es in den Papierkorb verschieben.</translation>
    </message>
    <message>
        <source>The original file has changed.</source>
        <translation>Die Originaldatei hat sich geändert.</translation>
    </message>
    <message>
        <source>The original folder has changed.</source>
        <translation>Der ursprüngliche Ordner hat sich geändert.</translation>
    </message>
    <message>
        <source>The original folder is unavailable.</source>
        <translation>Der ursprüngliche Ordner ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>The file could not be located in Trash.</source>
        <translation>Die Datei wurde im Papierkorb nicht gefunden.</translation>
    </message>
    <message>
        <source>The original file is no longer at this location.</source>
        <translation>Die Originaldatei ist nicht mehr an diesem Ort.</translation>
    </message>
    <message>
        <source>Couldn’t Move to Trash</source>
        <translation>Verschieben in den Papierkorb nicht möglich</translation>
    </message>
    <message>
        <source>Auto-clean</source>
        <translation>Automatisches Aufräumen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Couldn’t Restore Screenshots</source>
        <translation>Bildschirmfotos konnten nicht wiederhergestellt werden</translation>
    </message>
</context>
<context>
    <name>ScreenshotSaveLocation</name>
    <message>
        <source>Couldn’t change the macOS screenshot folder.</source>
        <translation>Der macOS-Ordner für Bildschirmfotos konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>Your previous folder is still selected. Try again, or change Save to in ⇧⌘5 → Options.</source>
        <translation>Ihr bisheriger Ordner ist weiterhin ausgewählt. Versuchen Sie es erneut, oder ändern Sie „Sichern in“ unter ⇧⌘5 → Optionen.</translation>
    </message>
    <message>
        <source>“%1” cannot be written to.</source>
        <translation>In „%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>ScreenshotSection</name>
    <message>
        <source>Pinned</source>
        <translation>Angepinnt</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>Älter</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Bildschirmfotos</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Image to Text</source>
        <translation>Text aus Bild</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Doctor</source>
        <translation>Diagnose</translation>
    </message>
</context>
<context>
    <name>ShelfSession</name>
    <message>
        <source>Couldn’t Copy Screenshots</source>
        <translation>Bildschirmfotos konnten nicht kopiert werden</translation>
    </message>
    <message>
        <source>Clear File Tray</source>
        <translation>Dateiablage leeren</translation>
    </message>
    <message>
        <source>Remove from File Tray</source>
        <translation>Aus Dateiablage entfernen</translation>
    </message>
    <message>
        <source>Couldn’t update pinned screenshot</source>
        <translation>Angepinntes Bildschirmfoto konnte nicht aktualisiert werden</translation>
    </message>
</context>
<context>
    <name>SingleInstance</name>
    <message>
        <source>There is no D-Bus session to reach Tembra through.</source>
        <translation>Es gibt keine D-Bus-Sitzung, über die Tembra erreichbar wäre.</translation>
    </message>
    <message>
        <source>Tembra is already running.</source>
        <translation>Tembra läuft bereits.</translation>
    </message>
    <message>
        <source>Tembra is not running.</source>
        <translation>Tembra läuft nicht.</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Open Tembra</source>
        <translation>Tembra öffnen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Check for updates…</source>
        <translation>Nach Updates suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation>Bildschirmfoto-Ordner öffnen</translation>
    </message>
    <message>
        <source>Open Latest Capture</source>
        <translation>Letzte Aufnahme öffnen</translation>
    </message>
    <message>
        <source>Quit Tembra</source>
        <translation>Tembra beenden</translation>
    </message>
</context>
<context>
    <name>StatusReport</name>
    <message>
        <source>No folder selected</source>
        <translation>Kein Ordner gewählt</translation>
    </message>
    <message>
        <source>Shelf: %1
Folder: %2 (%3)
Screenshots: %4
</source>
        <translation>Leiste: %1
Ordner: %2 (%3)
Bildschirmfotos: %4
</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
</context>
<context>
    <name>TextRecognition</name>
    <message>
        <source>Text can’t be recognized because a part of Tembra is missing. Reinstall it.</source>
        <translation>Text kann nicht erkannt werden, weil ein Teil von Tembra fehlt. Installieren Sie Tembra neu.</translation>
    </message>
    <message>
        <source>Text can’t be recognized because no language is installed for it. Install the package tesseract-ocr-eng.</source>
        <translation>Text kann nicht erkannt werden, weil keine Sprache dafür installiert ist. Installieren Sie das Paket tesseract-ocr-deu.</translation>
    </message>
    <message>
        <source>The text of this image couldn’t be read.</source>
        <translation>Der Text dieses Bildes konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Text recognition was cancelled.</source>
        <translation>Die Texterkennung wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>Thumbnails</name>
    <message>
        <source>The picture is too large for a preview.</source>
        <translation>Das Bild ist zu groß für eine Vorschau.</translation>
    </message>
    <message>
        <source>The picture couldn’t be read.</source>
        <translation>Das Bild konnte nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Trash</name>
    <message>
        <source>“%1” has changed or is no longer there.</source>
        <translation>„%1“ hat sich geändert oder ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The way to “%1” leads out of its folder.</source>
        <translation>Der Weg zu „%1“ führt aus seinem Ordner hinaus.</translation>
    </message>
    <message>
        <source>The disk that holds “%1” has no Trash.</source>
        <translation>Der Datenträger mit „%1“ hat keinen Papierkorb.</translation>
    </message>
    <message>
        <source>“%1” is no longer in the Trash.</source>
        <translation>„%1“ ist nicht mehr im Papierkorb.</translation>
    </message>
    <message>
        <source>Another file is now where “%1” was.</source>
        <translation>Wo „%1“ war, liegt jetzt eine andere Datei.</translation>
    </message>
    <message>
        <source>The folder that “%1” was in cannot be reached.</source>
        <translation>Der Ordner, in dem „%1“ war, ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>There is no room to move “%1” to the Trash.</source>
        <translation>Der Platz reicht nicht, um „%1“ in den Papierkorb zu verschieben.</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the Trash: %2.</source>
        <translation>„%1“ konnte nicht in den Papierkorb verschoben werden: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be moved back: %2.</source>
        <translation>„%1“ konnte nicht zurückgelegt werden: %2.</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>Die Update-Liste kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>No address of a list of updates is set.</source>
        <translation>Es ist keine Adresse für die Update-Liste eingestellt.</translation>
    </message>
    <message>
        <source>The address of the list of updates is not a secure one.</source>
        <translation>Die Adresse der Update-Liste ist nicht sicher.</translation>
    </message>
    <message>
        <source>The version of this copy is not known.</source>
        <translation>Die Version dieser Kopie ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The list of updates is older than one seen before.</source>
        <translation>Die Update-Liste ist älter als eine schon bekannte.</translation>
    </message>
    <message>
        <source>The update server offered a connection that is not secure.</source>
        <translation>Der Update-Server hat eine unsichere Verbindung angeboten.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced.</source>
        <translation>Der Update-Server hat mehr gesendet als angekündigt.</translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Der Update-Server hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The update server does not have the file (answer %1).</source>
        <translation>Der Update-Server hat die Datei nicht (Antwort %1).</translation>
    </message>
    <message>
        <source>The update server sends from one place to another.</source>
        <translation>Der Update-Server leitet immer wieder weiter.</translation>
    </message>
    <message>
        <source>The update server cannot be trusted: %1</source>
        <translation>Dem Update-Server kann nicht vertraut werden: %1</translation>
    </message>
    <message>
        <source>The connection to the update server was lost.</source>
        <translation>Die Verbindung zum Update-Server ist abgebrochen.</translation>
    </message>
    <message>
        <source>The update server cannot be reached: %1</source>
        <translation>Der Update-Server ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>This copy of Tembra does not look for updates.</source>
        <translation>Diese Kopie von Tembra sucht nicht nach Updates.</translation>
    </message>
    <message>
        <source>Updates come with your system’s software updates.</source>
        <translation>Updates kommen mit den Softwareaktualisierungen Ihres Systems.</translation>
    </message>
    <message>
        <source>Tembra has not looked for updates since it was started.</source>
        <translation>Tembra hat seit dem Start nicht nach Updates gesucht.</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Updates werden gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Tembra is up to date.</source>
        <translation>Tembra ist aktuell.</translation>
    </message>
    <message>
        <source>Tembra %1 is available.</source>
        <translation>Tembra %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>Downloading Tembra %1…</source>
        <translation>Tembra %1 wird heruntergeladen&#xa0;…</translation>
    </message>
    <message>
        <source>Tembra %1 is ready to be installed.</source>
        <translation>Tembra %1 kann installiert werden.</translation>
    </message>
    <message>
        <source>The update cannot be saved on this disk.</source>
        <translation>Das Update kann auf diesem Datenträger nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The list of updates is not signed by the publisher of Tembra and was not used.</source>
        <translation>Die Update-Liste ist nicht vom Herausgeber von Tembra signiert und wurde nicht verwendet.</translation>
    </message>
    <message>
        <source>The key that updates are checked with is not valid.</source>
        <translation>Der Schlüssel, mit dem Updates geprüft werden, ist nicht gültig.</translation>
    </message>
    <message>
        <source>The update cannot be read.</source>
        <translation>Das Update kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The update is not complete.</source>
        <translation>Das Update ist unvollständig.</translation>
    </message>
    <message>
        <source>The update is not signed by the publisher of Tembra and was not kept.</source>
        <translation>Das Update ist nicht vom Herausgeber von Tembra signiert und wurde nicht behalten.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>No application opens “%1”.</source>
        <translation>Kein Programm öffnet „%1“.</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>“%1” could not be opened: %2</source>
        <translation>„%1“ konnte nicht geöffnet werden: %2</translation>
    </message>
</context>
<context>
    <name>tembra::AboutSettingsPage</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Quit Tembra</source>
        <translation>Tembra beenden</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Installieren&#xa0;…</translation>
    </message>
    <message>
        <source>Made with</source>
        <translation>Erstellt mit</translation>
    </message>
</context>
<context>
    <name>tembra::ActivationShortcutControl</name>
    <message>
        <source>A shortcut needs Ctrl, Alt or Super, and another key.</source>
        <translation>Ein Tastenkürzel braucht Strg, Alt oder Super und eine weitere Taste.</translation>
    </message>
</context>
<context>
    <name>tembra::CanvasTextEditor</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>tembra::CaptureNotificationView</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardCell</name>
    <message>
        <source>Original unavailable</source>
        <translation>Original nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardCollectionView</name>
    <message>
        <source>File Tray</source>
        <translation>Dateiablage</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardDropArea</name>
    <message>
        <source>Drop files here or ⌘V to paste</source>
        <translation>Dateien hier ablegen oder mit ⌘V einfügen</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardShelf</name>
    <message>
        <source>Drag or ⌘C to copy</source>
        <translation>Ziehen oder ⌘C zum Kopieren</translation>
    </message>
    <message>
        <source>Some originals are currently unavailable</source>
        <translation>Einige Originale sind gerade nicht verfügbar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder anzeigen</translation>
    </message>
    <message>
        <source>Remove from File Tray</source>
        <translation>Aus Dateiablage entfernen</translation>
    </message>
    <message>
        <source>Clear File Tray</source>
        <translation>Dateiablage leeren</translation>
    </message>
    <message>
        <source>Only files and images can be kept here</source>
        <translation>Hier lassen sich nur Dateien und Bilder ablegen</translation>
    </message>
</context>
<context>
    <name>tembra::DoctorSettingsPage</name>
    <message>
        <source>Works</source>
        <translation>Geht</translation>
    </message>
    <message>
        <source>In part</source>
        <translation>Zum Teil</translation>
    </message>
    <message>
        <source>Does not work</source>
        <translation>Geht nicht</translation>
    </message>
    <message>
        <source>Doctor</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>What works on this desktop</source>
        <translation>Was in dieser Arbeitsumgebung geht</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Prüfungen</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird geprüft&#xa0;…</translation>
    </message>
    <message numerus="yes">
        <source>%n things do not work.</source>
        <translation>
            <numerusform>%n Sache geht nicht.</numerusform>
            <numerusform>%n Sachen gehen nicht.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Everything works, %n things in part.</source>
        <translation>
            <numerusform>Alles geht, %n Sache zum Teil.</numerusform>
            <numerusform>Alles geht, %n Sachen zum Teil.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything works.</source>
        <translation>Alles geht.</translation>
    </message>
</context>
<context>
    <name>tembra::EditorBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>tembra::EditorCropOverlay</name>
    <message>
        <source>Crop</source>
        <translation>Zuschnitt</translation>
    </message>
    <message>
        <source>%1 by %2 pixels, from %3, %4</source>
        <translation>%1 mal %2 Pixel, ab %3, %4</translation>
    </message>
</context>
<context>
    <name>tembra::EditorCropRow</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
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
        <translation>Zuschnitt: %1, %2</translation>
    </message>
</context>
<context>
    <name>tembra::EditorDock</name>
    <message>
        <source>Tools and style</source>
        <translation>Werkzeuge und Stil</translation>
    </message>
</context>
<context>
    <name>tembra::EditorDragHandle</name>
    <message>
        <source>Drag image</source>
        <translation>Bild ziehen</translation>
    </message>
    <message>
        <source>Copies the image when pressed by a key</source>
        <translation>Kopiert das Bild, wenn eine Taste es auslöst</translation>
    </message>
    <message>
        <source>Drag the image into another window</source>
        <translation>Bild in ein anderes Fenster ziehen</translation>
    </message>
</context>
<context>
    <name>tembra::EditorHeader</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Als Kopie&#xa0;…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Als Kopie speichern</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Wird gespeichert&#xa0;…</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder anzeigen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Screenshot file</source>
        <translation>Bildschirmfoto-Datei</translation>
    </message>
</context>
<context>
    <name>tembra::EditorNameField</name>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Bearbeitet</translation>
    </message>
</context>
<context>
    <name>tembra::EditorNumberControl</name>
    <message>
        <source>Previous number</source>
        <translation>Vorherige Nummer</translation>
    </message>
    <message>
        <source>Next number</source>
        <translation>Nächste Nummer</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSettingsPage</name>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Drawing color</source>
        <translation>Zeichenfarbe</translation>
    </message>
    <message>
        <source>The editor remembers the last color that you drew with.</source>
        <translation>Der Editor merkt sich die Farbe, mit der Sie zuletzt gezeichnet haben.</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSidebar</name>
    <message>
        <source>Screenshots</source>
        <translation>Bildschirmfotos</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSidebarModel</name>
    <message>
        <source>Edited, not saved</source>
        <translation>Bearbeitet, nicht gespeichert</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Bearbeitet</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSizeControl</name>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
</context>
<context>
    <name>tembra::EditorStyleRow</name>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Background behind the text</source>
        <translation>Hintergrund hinter dem Text</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>What to blur</source>
        <translation>Was weichgezeichnet wird</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Stark</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Begradigen</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
</context>
<context>
    <name>tembra::EditorSwatches</name>
    <message>
        <source>Custom color…</source>
        <translation>Eigene Farbe&#xa0;…</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom color… (%1)</source>
        <translation>Eigene Farbe&#xa0;… (%1)</translation>
    </message>
</context>
<context>
    <name>tembra::EditorToolRow</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
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
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Fit in window</source>
        <translation>In Fenster einpassen</translation>
    </message>
</context>
<context>
    <name>tembra::FileCollectionView</name>
    <message>
        <source>Pinned</source>
        <translation>Angepinnt</translation>
    </message>
    <message>
        <source>Unpinned</source>
        <translation>Nicht mehr angepinnt</translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::FileTraySettingsPage</name>
    <message>
        <source>File Tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Show the file tray</source>
        <translation>Dateiablage anzeigen</translation>
    </message>
    <message>
        <source>Drop or paste files on the shelf now, and drag them out later.</source>
        <translation>Dateien jetzt in der Leiste ablegen oder einfügen und später wieder herausziehen.</translation>
    </message>
</context>
<context>
    <name>tembra::GeneralSettingsPage</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Leiste</translation>
    </message>
    <message>
        <source>Open the shelf</source>
        <translation>Leiste öffnen</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>Bei Klick</translation>
    </message>
    <message>
        <source>On hover</source>
        <translation>Beim Zeigen</translation>
    </message>
    <message>
        <source>Switch tabs on hover</source>
        <translation>Tabs beim Zeigen wechseln</translation>
    </message>
    <message>
        <source>Show the shelf on</source>
        <translation>Bildschirm für die Leiste</translation>
    </message>
    <message>
        <source>Main display</source>
        <translation>Hauptbildschirm</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>Alle Bildschirme</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Autostart</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Allow Tembra in System Settings to launch at login</source>
        <translation>Erlauben Sie Tembra in den Systemeinstellungen, bei der Anmeldung zu starten</translation>
    </message>
    <message>
        <source>Couldn’t change launch at login</source>
        <translation>Start bei der Anmeldung konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Disabled in macOS. Allow Tembra in System Settings to launch at login.</source>
        <translation>In macOS deaktiviert. Erlauben Sie Tembra in den Systemeinstellungen, bei der Anmeldung zu starten.</translation>
    </message>
    <message>
        <source>Launch at login is unavailable for this copy of Tembra</source>
        <translation>Der Start bei der Anmeldung ist für diese Kopie von Tembra nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>tembra::ImageToTextSettingsPage</name>
    <message>
        <source>Image to Text</source>
        <translation>Text aus Bild</translation>
    </message>
    <message>
        <source>Show Image to Text</source>
        <translation>„Text aus Bild“ anzeigen</translation>
    </message>
    <message>
        <source>Reads the text in a screenshot or image. Nothing leaves this computer.</source>
        <translation>Liest den Text in einem Bildschirmfoto oder Bild. Nichts verlässt diesen Computer.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>Follow the desktop’s languages</source>
        <translation>Sprachen des Systems verwenden</translation>
    </message>
</context>
<context>
    <name>tembra::LoadingIndicator</name>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
</context>
<context>
    <name>tembra::OCRDropView</name>
    <message>
        <source>or paste one with Ctrl+V</source>
        <translation>oder eines mit Strg+V einfügen</translation>
    </message>
    <message>
        <source>Choose Image</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Drop an image to extract its text</source>
        <translation>Bild hier ablegen, um seinen Text zu lesen</translation>
    </message>
</context>
<context>
    <name>tembra::OCRLoadingView</name>
    <message>
        <source>Analyzing…</source>
        <translation>Wird analysiert&#xa0;…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tembra::OCRPanel</name>
    <message>
        <source>Image to Text</source>
        <translation>Text aus Bild</translation>
    </message>
</context>
<context>
    <name>tembra::OCRPictureView</name>
    <message>
        <source>The image with this text</source>
        <translation>Das Bild mit diesem Text</translation>
    </message>
</context>
<context>
    <name>tembra::OCRResultCard</name>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Absätze</translation>
    </message>
    <message>
        <source>One line</source>
        <translation>Eine Zeile</translation>
    </message>
    <message>
        <source>Text layout</source>
        <translation>Textanordnung</translation>
    </message>
    <message>
        <source>New Image</source>
        <translation>Neues Bild</translation>
    </message>
    <message>
        <source>Expand panel</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message numerus="yes">
        <source>%n words</source>
        <translation>
            <numerusform>%n Wort</numerusform>
            <numerusform>%n Wörter</numerusform>
        </translation>
    </message>
    <message>
        <source>Reduce panel</source>
        <translation>Verkleinern</translation>
    </message>
</context>
<context>
    <name>tembra::OCRResultTextView</name>
    <message>
        <source>Recognized text</source>
        <translation>Erkannter Text</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Link öffnen</translation>
    </message>
    <message>
        <source>Copy Link</source>
        <translation>Link kopieren</translation>
    </message>
</context>
<context>
    <name>tembra::OnboardingDots</name>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>tembra::OnboardingFlow</name>
    <message numerus="yes">
        <source>%n screenshots were moved from the Desktop.</source>
        <translation>
            <numerusform>%n Bildschirmfoto wurde vom Schreibtisch verschoben.</numerusform>
            <numerusform>%n Bildschirmfotos wurden vom Schreibtisch verschoben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots could not be moved and stay on the Desktop.</source>
        <translation>
            <numerusform>%n Bildschirmfoto konnte nicht verschoben werden und bleibt auf dem Schreibtisch.</numerusform>
            <numerusform>%n Bildschirmfotos konnten nicht verschoben werden und bleiben auf dem Schreibtisch.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::PreviewView</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Öffnen mit</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be shown</source>
        <translation>%1 kann nicht angezeigt werden</translation>
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
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Pencil stroke</source>
        <translation>Stiftstrich</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Text: %1</translation>
    </message>
    <message>
        <source>Number %1</source>
        <translation>Nummer %1</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnung</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Bring to front</source>
        <translation>Ganz nach vorne</translation>
    </message>
    <message>
        <source>Bring forward</source>
        <translation>Nach vorne</translation>
    </message>
    <message>
        <source>Send backward</source>
        <translation>Nach hinten</translation>
    </message>
    <message>
        <source>Send to back</source>
        <translation>Ganz nach hinten</translation>
    </message>
    <message>
        <source>Numbers end at 9,999.</source>
        <translation>Nummern gehen nur bis 9.999.</translation>
    </message>
    <message>
        <source>Add text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message>
        <source>Change text</source>
        <translation>Text ändern</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 mal %2 Pixel</translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotCollectionView</name>
    <message>
        <source>Screenshots</source>
        <translation>Bildschirmfotos</translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotEditorWindowController</name>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>A copy was saved as “%1”.</source>
        <translation>Eine Kopie wurde als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>The words of this screenshot couldn’t be found. Draw the areas to blur instead.</source>
        <translation>Die Wörter dieses Bildschirmfotos konnten nicht gefunden werden. Ziehen Sie stattdessen Bereiche zum Weichzeichnen auf.</translation>
    </message>
    <message>
        <source>Looking for words…</source>
        <translation>Wörter werden gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>There are no words in this screenshot.</source>
        <translation>In diesem Bildschirmfoto sind keine Wörter.</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>Make a copy</source>
        <translation>Kopie anlegen</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Kopie speichern</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Another program changed this screenshot.</source>
        <translation>Ein anderes Programm hat dieses Bildschirmfoto geändert.</translation>
    </message>
    <message>
        <source>Another program changed this screenshot. Your edits are still here. Save a copy to keep them.</source>
        <translation>Ein anderes Programm hat dieses Bildschirmfoto geändert. Ihre Änderungen sind noch da. Speichern Sie eine Kopie, um sie zu behalten.</translation>
    </message>
    <message>
        <source>This screenshot is no longer in its folder. Save a copy to keep your edits.</source>
        <translation>Dieses Bildschirmfoto ist nicht mehr in seinem Ordner. Speichern Sie eine Kopie, um Ihre Änderungen zu behalten.</translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotsSettingsPage</name>
    <message>
        <source>Screenshots</source>
        <translation>Bildschirmfotos</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Speicherort</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Screenshots folder</source>
        <translation>Bildschirmfoto-Ordner</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation>Bildschirmfoto-Ordner öffnen</translation>
    </message>
    <message>
        <source>No folder is chosen yet.</source>
        <translation>Noch ist kein Ordner gewählt.</translation>
    </message>
    <message>
        <source>When a screenshot is taken</source>
        <translation>Bei neuen Bildschirmfotos</translation>
    </message>
    <message>
        <source>Show a notification</source>
        <translation>Benachrichtigung anzeigen</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Open in editor</source>
        <translation>Im Editor öffnen</translation>
    </message>
    <message>
        <source>Hide the screenshot tool’s preview</source>
        <translation>Vorschau des Bildschirmfoto-Programms ausblenden</translation>
    </message>
    <message>
        <source>Couldn’t change the screenshot preview</source>
        <translation>Die Bildschirmfoto-Vorschau konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Show file names</source>
        <translation>Dateinamen anzeigen</translation>
    </message>
    <message>
        <source>Group by date</source>
        <translation>Nach Datum gruppieren</translation>
    </message>
    <message>
        <source>Auto-clean</source>
        <translation>Automatisches Aufräumen</translation>
    </message>
    <message>
        <source>Move old screenshots to Trash</source>
        <translation>Alte Bildschirmfotos in den Papierkorb</translation>
    </message>
    <message>
        <source>Moves old screenshots and recordings to Trash, including existing ones. Pinned items stay.</source>
        <translation>Verschiebt alte Bildschirmfotos und Aufzeichnungen in den Papierkorb, auch schon vorhandene. Angepinntes bleibt.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Run a command</source>
        <translation>Befehl starten</translation>
    </message>
    <message>
        <source>A program with its arguments. {} stands for the file, which else comes last.</source>
        <translation>Ein Programm mit seinen Argumenten. {} steht für die Datei, die sonst am Ende kommt.</translation>
    </message>
</context>
<context>
    <name>tembra::SettingsSidebar</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>tembra::SettingsWindow</name>
    <message>
        <source>No setting has these words.</source>
        <translation>Keine Einstellung enthält diese Wörter.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search in the settings</source>
        <translation>In den Einstellungen suchen</translation>
    </message>
</context>
<context>
    <name>tembra::ShelfController</name>
    <message>
        <source>Couldn’t Copy Text</source>
        <translation>Text konnte nicht kopiert werden</translation>
    </message>
    <message>
        <source>Couldn’t Open Video</source>
        <translation>Video konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Couldn’t Open Image</source>
        <translation>Bild konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>The file tray is switched off.</source>
        <translation>Die Dateiablage ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>Screenshots moved to Trash</source>
        <translation>In den Papierkorb gelegt</translation>
    </message>
    <message>
        <source>Couldn’t Open Link</source>
        <translation>Link konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
</context>
<context>
    <name>tembra::ShelfHeader</name>
    <message>
        <source>Screenshots</source>
        <translation>Bildschirmfotos</translation>
    </message>
    <message>
        <source>Image to Text</source>
        <translation>Text aus Bild</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>%1. Undo takes it back.</source>
        <translation>%1. „Rückgängig“ nimmt es zurück.</translation>
    </message>
</context>
<context>
    <name>tembra::ShelfPanel</name>
    <message>
        <source>Shelf</source>
        <translation>Leiste</translation>
    </message>
</context>
<context>
    <name>tembra::ShortcutRecorder</name>
    <message>
        <source>Press a combination…</source>
        <translation>Kombination drücken&#xa0;…</translation>
    </message>
</context>
<context>
    <name>tembra::ShortcutSettingsPage</name>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Open the shelf with a shortcut</source>
        <translation>Leiste per Tastenkürzel öffnen</translation>
    </message>
    <message>
        <source>It works in every program, and closes the shelf again.</source>
        <translation>Funktioniert in jedem Programm und schließt die Leiste auch wieder.</translation>
    </message>
    <message>
        <source>Click, then press the combination you want.</source>
        <translation>Anklicken, dann die gewünschte Kombination drücken.</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>This desktop keeps global shortcuts to itself. In its keyboard settings, add a shortcut for the command “%1”.</source>
        <translation>Diese Arbeitsumgebung behält globale Tastenkürzel für sich. Legen Sie in ihren Tastatureinstellungen eines für den Befehl „%1“ an.</translation>
    </message>
</context>
<context>
    <name>tembra::UpdateAlerts</name>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Suche nach Updates nicht möglich</translation>
    </message>
    <message>
        <source>The update failed</source>
        <translation>Das Update ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Neuerungen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
</TS>
