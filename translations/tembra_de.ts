<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>ActivationShortcut</name>
    <message>
        <source>Enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Super</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Tembra is still starting.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AutoClean</name>
    <message>
        <source>Some pinned files couldn’t be located. Auto-clean remains unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AutoCleanChange</name>
    <message>
        <source>Couldn’t check screenshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n files will move to Trash when you click %1. Pinned files stay.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Change auto-clean?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves old screenshots and recordings to Trash, including existing ones. Pinned items stay.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable auto-clean?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Bookmarks</name>
    <message>
        <source>The bookmark cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk that holds “%1” is not connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CaptureNotification</name>
    <message>
        <source>Got it! First one caught</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Got the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n captures</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies when you open the shelf</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClearScreenshots</name>
    <message numerus="yes">
        <source>Move %n screenshots to Trash?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pinned screenshots stay.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClipboardStore</name>
    <message>
        <source>Could not receive this file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not add this image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pipes, sockets and devices cannot be kept in the file tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some files could not be received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiving files…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--tab takes tray, screenshots or text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings takes general, screenshots, editor, tray, text, shortcut or about.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected word on the command line: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scan takes the folder to look at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add takes the files to put into the file tray.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edit takes the image to open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ocr takes the image to read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>render takes an image, --edits and -o with a file each.</source>
        <translation type="unfinished"></translation>
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
                               tray, text, shortcut or about)
  tembra status [--json]       tell the state of the running one
  tembra scan FOLDER [--json]  tell what is recognised as a capture, and why
  tembra render FILE --edits EDITS.json -o OUT
                               draw annotations and crop onto an image
  tembra ocr FILE [--paragraphs | --one-line] [--words] [--json]
                               read the text of an image
  tembra quit                  end the running one
  tembra --version, --help
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandService</name>
    <message>
        <source>Tembra does not know the command “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This tab is not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings have no page of this name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DesktopScreenshotOrganizer</name>
    <message>
        <source>“%1” is there already and is no folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditorDocuments</name>
    <message>
        <source>This is the screenshot that you are editing. Save it, or choose another name for the copy.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditorPalette</name>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditorQuestions</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Save the edits of “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Save the edits of %n screenshots?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Your edits are lost if you don’t save them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your unsaved edits of it are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditorTool</name>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditorToolTip</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileCoordinator</name>
    <message>
        <source>Another program changed the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file with this name already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>“%1” is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file manager could open the folder “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Couldn’t Show in Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t Open Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilePromises</name>
    <message>
        <source>The program that was to write the file did not do so.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileWatcherService</name>
    <message>
        <source>Folder access needs to be restored</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderChooser</name>
    <message>
        <source>Choose where screenshots should save. Auto-clean will be set to Never for this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New macOS screenshots will be saved here and appear in Tembra.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Your Screenshots Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderNotification</name>
    <message>
        <source>Screenshot location changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots aren’t saving to a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots folder unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots folder recovered</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GlobalActivationShortcut</name>
    <message>
        <source>This shortcut is unavailable. Choose another combination.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>Another program has this shortcut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop has ended this shortcut. Switch it off and on again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts of their own. Bind “tembra toggle” to one in its settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open or close the shelf</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageChooser</name>
    <message>
        <source>Choose an Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoginItem</name>
    <message>
        <source>Launch at login is unavailable for this copy of Tembra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” can’t be removed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop has no settings for the programs that start at login.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” can’t be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Check for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Tembra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Tembra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring all to front</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OCR</name>
    <message>
        <source>Could not read this image. Try another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No text found. Try another image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 isn’t an image file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image is damaged, too large or of an unknown kind.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations can’t be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Onboarding</name>
    <message>
        <source>Your screenshots, always at hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tembra keeps them at the top of your screen. Move the pointer to the edge, and they come down to meet it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where should screenshots go?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New screenshots will be saved here and appear in Tembra, at the top of your screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring along what you have?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots lie on your Desktop. Tembra can move them to the folder you chose.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave Them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Got it! First one caught</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is on your shelf now. Move the pointer to the top of your screen whenever you need it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take your first screenshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take a screenshot the way you always do, with Print for਎xample. Tembra waits for it here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Pasteboard</name>
    <message>
        <source>The clipboard is in use by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop did not let Tembra use the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RcFile</name>
    <message>
        <source>“%1” is not a settings file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RenderCommand</name>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is read is not written over: name another file for the output.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SafetyReview</name>
    <message>
        <source>Keep auto-clean enabled?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-clean is set to %1, with %2 to move to Trash.

Keep auto-clean enabled or turn it off to keep these files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn off</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScanCommand</name>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScanReport</name>
    <message>
        <source>neither an image nor a recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>neither marker, metadata nor name say that it is a capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (not whole)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenCapturePreferences</name>
    <message>
        <source>The screenshot tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no floating thumbnail to turn on or off.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotAutoCleanPeriod</name>
    <message>
        <source>Never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotCommands</name>
    <message>
        <source>Couldn’t Pin Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t Open Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotEdit</name>
    <message>
        <source>Straighten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change text style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change number size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move annotations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” already exists in this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete annotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete annotations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file can’t be edited.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The editor currently supports PNG and JPEG images.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This image changed outside Tembra. Make a copy to edit it as a new image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The original image couldn’t be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This annotation couldn’t be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This crop couldn’t be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This image changed outside Tembra. Your edits are still here. Use Save a copy to keep them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a name for this screenshot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a name without slashes, colons or a leading dot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This image changed outside Tembra. Its name hasn’t been changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This image couldn’t be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There isn’t enough memory to save this image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t prepare the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This image format can’t be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t encode the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t prepare the blur.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The edits are not readable JSON.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotFeedback</name>
    <message>
        <source>Got it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caught it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Got that</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I got you</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeping this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Got that too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I’ve got you</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderAccess</name>
    <message>
        <source>“%1” is not a folder on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is in the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotFolderMessage</name>
    <message>
        <source>Choose Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where should screenshots go?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading screenshots…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots are saved elsewhere. Choose the new folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots go to the clipboard. Choose a folder to save them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots aren’t saved to a folder. Choose one to use with Tembra.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where did the folder go?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I lost track of your screenshots folder. Pick a new one to keep going</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No screenshots yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take one and it appears here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotMenu</name>
    <message>
        <source>No Compatible Applications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (Default)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open With</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image to Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pinned screenshots stay. Unpin them to move them to Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Folder in Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshot Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotRemoval</name>
    <message>
        <source>Some pinned files are unavailable. Reconnect their disk and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This screenshot is pinned. Unpin it before moving it to Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The original file has changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The original folder has changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The original folder is unavailable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be located in Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The original file is no longer at this location.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-clean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t Restore Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotSaveLocation</name>
    <message>
        <source>Couldn’t change the macOS screenshot folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your previous folder is still selected. Try again, or change Save to in ⇧⌘5 → Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written to.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotSection</name>
    <message>
        <source>Pinned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Older</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image to Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShelfSession</name>
    <message>
        <source>Couldn’t Copy Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove from File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t update pinned screenshot</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SingleInstance</name>
    <message>
        <source>There is no D-Bus session to reach Tembra through.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tembra is already running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tembra is not running.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Open Tembra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Latest Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Tembra</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusReport</name>
    <message>
        <source>No folder selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shelf: %1
Folder: %2 (%3)
Screenshots: %4
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextRecognition</name>
    <message>
        <source>Text can’t be recognized because a part of Tembra is missing. Reinstall it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text can’t be recognized because no language is installed for it. Install the package tesseract-ocr-eng.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text of this image couldn’t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text recognition was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Thumbnails</name>
    <message>
        <source>The picture is too large for a preview.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture couldn’t be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Trash</name>
    <message>
        <source>“%1” has changed or is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The way to “%1” leads out of its folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk that holds “%1” has no Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no longer in the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another file is now where “%1” was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder that “%1” was in cannot be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no room to move “%1” to the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be moved to the Trash: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be moved back: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No address of a list of updates is set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address of the list of updates is not a secure one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The version of this copy is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of updates is older than one seen before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server offered a connection that is not secure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server sent more than it announced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server does not have the file (answer %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server sends from one place to another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server cannot be trusted: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the update server was lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server cannot be reached: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This copy of Tembra does not look for updates.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates come with your system’s software updates.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tembra has not looked for updates since it was started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tembra is up to date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tembra %1 is available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading Tembra %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tembra %1 is ready to be installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update cannot be saved on this disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of updates is not signed by the publisher of Tembra and was not used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key that updates are checked with is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update is not complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update is not signed by the publisher of Tembra and was not kept.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>No application opens “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be opened: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::AboutSettingsPage</name>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Tembra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made with</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ActivationShortcutControl</name>
    <message>
        <source>A shortcut needs Ctrl, Alt or Super, and another key.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::CanvasTextEditor</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::CaptureNotificationView</name>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardCell</name>
    <message>
        <source>Original unavailable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardCollectionView</name>
    <message>
        <source>File Tray</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardDropArea</name>
    <message>
        <source>Drop files here or ⌘V to paste</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardShelf</name>
    <message>
        <source>Drag or ⌘C to copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some originals are currently unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove from File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only files and images can be kept here</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorBanner</name>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorCropOverlay</name>
    <message>
        <source>Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 by %2 pixels, from %3, %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorCropRow</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorCropSize</name>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop: %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorDock</name>
    <message>
        <source>Tools and style</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorDragHandle</name>
    <message>
        <source>Drag image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the image when pressed by a key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the image into another window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorHeader</name>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorNameField</name>
    <message>
        <source>File name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edited</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorNumberControl</name>
    <message>
        <source>Previous number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorSettingsPage</name>
    <message>
        <source>Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The editor remembers the last color that you drew with.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorSidebar</name>
    <message>
        <source>Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorSidebarModel</name>
    <message>
        <source>Edited, not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edited</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorSizeControl</name>
    <message>
        <source>%1 px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorStyleRow</name>
    <message>
        <source>Filled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background behind the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to blur</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorSwatches</name>
    <message>
        <source>Custom color…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom color… (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorToolRow</name>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::EditorZoomControl</name>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit in window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::FileTraySettingsPage</name>
    <message>
        <source>File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the file tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop or paste files on the shelf now, and drag them out later.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::GeneralSettingsPage</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the shelf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On hover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch tabs on hover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the shelf on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All displays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow Tembra in System Settings to launch at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t change launch at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled in macOS. Allow Tembra in System Settings to launch at login.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch at login is unavailable for this copy of Tembra</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ImageToTextSettingsPage</name>
    <message>
        <source>Image to Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Image to Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads the text in a screenshot or image. Nothing leaves this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Languages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow the desktop’s languages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::LoadingIndicator</name>
    <message>
        <source>Loading</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::NativeScreenshotCell</name>
    <message>
        <source>Pinned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edited</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::OCRDropView</name>
    <message>
        <source>or paste one with Ctrl+V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop an image to extract its text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::OCRLoadingView</name>
    <message>
        <source>Analyzing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::OCRPanel</name>
    <message>
        <source>Image to Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::OCRPictureView</name>
    <message>
        <source>The image with this text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::OCRResultCard</name>
    <message>
        <source>Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expand panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n words</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Reduce panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::OCRResultTextView</name>
    <message>
        <source>Recognized text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Link</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::OnboardingDots</name>
    <message>
        <source>Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::OnboardingFlow</name>
    <message numerus="yes">
        <source>%n screenshots were moved from the Desktop.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots could not be moved and stay on the Desktop.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::PreviewView</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open With</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2 × %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotCanvasView</name>
    <message>
        <source>Arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pencil stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring to front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send backward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send to back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers end at 9,999.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotCollectionView</name>
    <message>
        <source>Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotEditorWindowController</name>
    <message>
        <source>%1 copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A copy was saved as “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The words of this screenshot couldn’t be found. Draw the areas to blur instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for words…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no words in this screenshot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program changed this screenshot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program changed this screenshot. Your edits are still here. Save a copy to keep them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This screenshot is no longer in its folder. Save a copy to keep your edits.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ScreenshotsSettingsPage</name>
    <message>
        <source>Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Screenshots Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder is chosen yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When a screenshot is taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a notification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the screenshot tool’s preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t change the screenshot preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show file names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group by date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-clean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move old screenshots to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves old screenshots and recordings to Trash, including existing ones. Pinned items stay.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::SettingsSidebar</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::SettingsWindow</name>
    <message>
        <source>No setting has these words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search in the settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ShelfController</name>
    <message>
        <source>Couldn’t Copy Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t Open Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t Open Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file tray is switched off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshots moved to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t Open Link</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ShelfHeader</name>
    <message>
        <source>Screenshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image to Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ShelfPanel</name>
    <message>
        <source>Shelf</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ShortcutRecorder</name>
    <message>
        <source>Press a combination…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::ShortcutSettingsPage</name>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the shelf with a shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It works in every program, and closes the shelf again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click, then press the combination you want.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop keeps global shortcuts to itself. In its keyboard settings, add a shortcut for the command “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tembra::UpdateAlerts</name>
    <message>
        <source>Couldn’t check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
