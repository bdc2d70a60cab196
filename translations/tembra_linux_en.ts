<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<!-- Rewords what names a thing that Linux desktops do not have, and gives English its plurals. -->
<context>
    <name>AutoCleanChange</name>
    <message numerus="yes">
        <source>%n files will move to Trash when you click %1. Pinned files stay.</source>
        <translation>
            <numerusform>%n file will move to Trash when you click %1. Pinned files stay.</numerusform>
            <numerusform>%n files will move to Trash when you click %1. Pinned files stay.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::GeneralSettingsPage</name>
    <message>
        <source>Disabled in macOS. Allow Tembra in System Settings to launch at login.</source>
        <translation>Disabled by your desktop. Allow Tembra in its startup settings to launch at login.</translation>
    </message>
    <message>
        <source>Allow Tembra in System Settings to launch at login</source>
        <translation>Allow Tembra in the startup settings to launch at login</translation>
    </message>
</context>
<context>
    <name>ScreenshotAutoCleanPeriod</name>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::DoctorSettingsPage</name>
    <message numerus="yes">
        <source>%n things do not work.</source>
        <translation>
            <numerusform>%n thing does not work.</numerusform>
            <numerusform>%n things do not work.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Everything works, %n things in part.</source>
        <translation>
            <numerusform>Everything works, %n thing in part.</numerusform>
            <numerusform>Everything works, %n things in part.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CaptureNotification</name>
    <message numerus="yes">
        <source>%n captures</source>
        <translation>
            <numerusform>%n capture</numerusform>
            <numerusform>%n captures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>%n screenshot</numerusform>
            <numerusform>%n screenshots</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Onboarding</name>
    <message numerus="yes">
        <source>%n screenshots lie on your Desktop. Tembra can move them to the folder you chose.</source>
        <translation>
            <numerusform>%n screenshot lies on your Desktop. Tembra can move it to the folder you chose.</numerusform>
            <numerusform>%n screenshots lie on your Desktop. Tembra can move them to the folder you chose.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::OnboardingFlow</name>
    <message numerus="yes">
        <source>%n screenshots were moved from the Desktop.</source>
        <translation>
            <numerusform>%n screenshot was moved from the Desktop.</numerusform>
            <numerusform>%n screenshots were moved from the Desktop.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots could not be moved and stay on the Desktop.</source>
        <translation>
            <numerusform>%n screenshot could not be moved and stays on the Desktop.</numerusform>
            <numerusform>%n screenshots could not be moved and stay on the Desktop.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SafetyReview</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::OCRResultCard</name>
    <message numerus="yes">
        <source>%n words</source>
        <translation>
            <numerusform>%n word</numerusform>
            <numerusform>%n words</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FolderChooser</name>
    <message>
        <source>New macOS screenshots will be saved here and appear in Tembra.</source>
        <translation>New screenshots will be saved here and appear in Tembra.</translation>
    </message>
</context>
<context>
    <name>ScreenshotSaveLocation</name>
    <message>
        <source>Couldn’t change the macOS screenshot folder.</source>
        <translation>Couldn’t change the screenshot folder.</translation>
    </message>
    <message>
        <source>Your previous folder is still selected. Try again, or change Save to in ⇧⌘5 → Options.</source>
        <translation>Your previous folder is still selected. Try again, or change the folder in your screenshot tool’s own settings.</translation>
    </message>
</context>
<context>
    <name>ScreenshotMenu</name>
    <message>
        <source>Show in Finder</source>
        <translation>Show in Files</translation>
    </message>
    <message>
        <source>Open Folder in Finder</source>
        <translation>Open Folder in Files</translation>
    </message>
</context>
<context>
    <name>ClearScreenshots</name>
    <message numerus="yes">
        <source>Move %n screenshots to Trash?</source>
        <translation>
            <numerusform>Move %n screenshot to Trash?</numerusform>
            <numerusform>Move %n screenshots to Trash?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pinned screenshots stay.</source>
        <translation>
            <numerusform>%n pinned screenshot stays.</numerusform>
            <numerusform>%n pinned screenshots stay.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Couldn’t Show in Finder</source>
        <translation>Couldn’t Show in Files</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardDropArea</name>
    <message>
        <source>Drop files here or ⌘V to paste</source>
        <translation>Drop files here or Ctrl+V to paste</translation>
    </message>
</context>
<context>
    <name>tembra::ClipboardShelf</name>
    <message>
        <source>Drag or ⌘C to copy</source>
        <translation>Drag or Ctrl+C to copy</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Show in Files</translation>
    </message>
</context>
<context>
    <name>tembra::EditorHeader</name>
    <message>
        <source>Show in Finder</source>
        <translation>Show in Files</translation>
    </message>
</context>
</TS>
