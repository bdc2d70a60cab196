#include "platform/tools/Session.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

using Text = std::optional<QString>;

// The tools that keep their settings in a file.
struct FileTool {
    QString name;
    QString file;
    // A file that the tool wrote, and the key of the folder in it.
    QString data;
    QByteArray key;
    Text location;
    Text target;
    Text namesBegin;
};

const FileTool fileTools[]{
    {QStringLiteral("spectacle"), QStringLiteral("settings/spectaclerc"), QStringLiteral("spectaclerc-22"),
     "defaultSaveLocation", QStringLiteral("/home/ada/Bilder, neu"), QStringLiteral("file"),
     QStringLiteral("Bild")},
    {QStringLiteral("spectacle"), QStringLiteral("settings/spectaclerc"), QStringLiteral("spectaclerc-24"),
     "imageSaveLocation", QStringLiteral("/home/ada/Bildschirmfotos für später"), QStringLiteral("clipboard"),
     QStringLiteral("Foto")},
    {QStringLiteral("xfce4-screenshooter"), QStringLiteral("settings/xfce4/xfce4-screenshooter"),
     QStringLiteral("xfce4-screenshooter"), "screenshot_dir", QStringLiteral("/home/ada/für später, 50%"),
     QStringLiteral("clipboard"), QStringLiteral("Bild")},
    {QStringLiteral("flameshot"), QStringLiteral("settings/flameshot/flameshot.ini"),
     QStringLiteral("flameshot.ini"), "savePath", QStringLiteral("/home/ada/Bilder, neu"), std::nullopt,
     QStringLiteral("Bild")},
    {QStringLiteral("ksnip"), QStringLiteral("settings/ksnip/ksnip.conf"), QStringLiteral("ksnip.conf"),
     "SaveDirectory", QStringLiteral("/home/ada/Bilder, neu"), QStringLiteral("file"),
     QStringLiteral("Bild")},
};

// Their places in the table.
enum { oldSpectacle, newSpectacle, xfce, flameshot, ksnip };

QByteArrayList linesWithoutKey(const QByteArray &content, const QByteArray &key) {
    QByteArrayList lines = content.split('\n');
    lines.removeIf(
        [&](const QByteArray &line) { return line.startsWith(key + '=') || line.startsWith(key + '['); });
    return lines;
}

} // namespace

TEST(SettingsFiles, areReadAsTheToolsWroteThem) {
    for (const FileTool &tool : fileTools) {
        const Session session;
        session.write(tool.file, Session::data(tool.data));
        const auto preferences = session.preferences(tool.name);
        EXPECT_EQ(preferences->location(), tool.location) << tool.data.toStdString();
        EXPECT_EQ(preferences->target(), tool.target) << tool.data.toStdString();
        EXPECT_EQ(preferences->name(), tool.namesBegin) << tool.data.toStdString();
        EXPECT_EQ(preferences->showThumbnail(), std::nullopt) << tool.data.toStdString();
    }
}

TEST(SettingsFiles, takeAFolderAndKeepEverythingElse) {
    for (const FileTool &tool : fileTools) {
        const Session session;
        const QByteArray before = "# mine\n" + Session::data(tool.data);
        session.write(tool.file, before);
        const auto preferences = session.preferences(tool.name);
        preferences->setLocation(QStringLiteral("~/für später, 6% #1"));
        EXPECT_EQ(session.read(tool.file), before) << tool.data.toStdString();
        preferences->synchronize();
        EXPECT_EQ(session.preferences(tool.name)->location(), QStringLiteral("/home/ada/für später, 6% #1"))
            << tool.data.toStdString();
        EXPECT_EQ(linesWithoutKey(session.read(tool.file), tool.key), linesWithoutKey(before, tool.key))
            << tool.data.toStdString();

        preferences->setLocation(std::nullopt);
        preferences->synchronize();
        EXPECT_EQ(session.read(tool.file).split('\n'), linesWithoutKey(before, tool.key))
            << tool.data.toStdString();
    }
}

TEST(SettingsFiles, areReadAfreshEachTime) {
    for (const FileTool &tool : fileTools) {
        const Session session;
        const auto preferences = session.preferences(tool.name);
        EXPECT_NE(preferences->location(), tool.location) << tool.data.toStdString();
        session.write(tool.file, Session::data(tool.data));
        EXPECT_EQ(preferences->location(), tool.location) << tool.data.toStdString();
    }
}

TEST(SettingsFiles, ofNoUseMeanTheToolsDefaults) {
    const QByteArray contents[]{
        QByteArray(),
        "[Gene",
        "[General]\nsavePath=@Variant(\\0)\n[Application]\nSaveDirectory=a, "
        "b\n[ImageSave]\nimageSaveLocation",
        "screenshot_dir=ftp://host/"
        "x\naction=often\n[General]\nsavePath=shots\n[ImageSave]\nimageSaveLocation=\n",
        QByteArray("[General]\0\xff\xfe", 12),
    };
    for (const FileTool &tool : fileTools) {
        for (const QByteArray &content : contents) {
            const Session session;
            session.write(tool.file, content);
            const auto preferences = session.preferences(tool.name);
            const QHash<QString, QString> others{
                {QStringLiteral("spectacle"), session.folders.pictures + QStringLiteral("/Screenshots")},
                {QStringLiteral("ksnip"), session.folders.home}};
            EXPECT_EQ(preferences->location(), others.value(tool.name, session.folders.pictures))
                << tool.name.toStdString() << content.constData();
            EXPECT_EQ(preferences->target(), std::nullopt) << tool.name.toStdString() << content.constData();
            EXPECT_EQ(preferences->name(), std::nullopt) << tool.name.toStdString() << content.constData();
        }
    }
}

TEST(SettingsFiles, thatCannotBeWrittenKeepWhatTheySay) {
    for (const FileTool &tool : fileTools) {
        const Session session;
        const QByteArray binary("[General]\0\xff\xfe", 12);
        session.write(tool.file, binary);
        const auto preferences = session.preferences(tool.name);
        const auto before = preferences->location();
        preferences->setLocation(QStringLiteral("/srv/shots"));
        preferences->synchronize();
        EXPECT_EQ(preferences->location(), before) << tool.name.toStdString();
        EXPECT_EQ(session.read(tool.file), binary) << tool.name.toStdString();
    }
}

TEST(SettingsFiles, takeNoFolderThatIsNoPath) {
    for (const FileTool &tool : fileTools) {
        const Session session;
        session.write(tool.file, Session::data(tool.data));
        const auto preferences = session.preferences(tool.name);
        preferences->setLocation(QStringLiteral("shots"));
        preferences->synchronize();
        EXPECT_EQ(session.read(tool.file), Session::data(tool.data)) << tool.name.toStdString();
    }
}

TEST(SettingsFiles, takeADestination) {
    struct Case {
        int tool;
        Text target;
        QByteArray before;
        QByteArray after;
        Text read;
    };
    const Text file = QStringLiteral("file");
    const Text clipboard = QStringLiteral("clipboard");
    const Case cases[]{
        {oldSpectacle, clipboard, "[General]\nautoSaveImage=true\n",
         "[General]\nautoSaveImage=false\nclipboardGroup=PostScreenshotCopyImage\n", clipboard},
        {oldSpectacle, file, "[General]\nclipboardGroup=PostScreenshotCopyImage\n",
         "[General]\nclipboardGroup=PostScreenshotCopyImage\nautoSaveImage=true\n", file},
        {oldSpectacle, std::nullopt,
         "[General]\nautoSaveImage=false\nclipboardGroup=PostScreenshotCopyImage\n", "[General]\n",
         std::nullopt},
        {xfce, clipboard, "action=1\n", "action=2\n", clipboard},
        {xfce, file, "action=6\n", "action=5\n", file},
        {xfce, std::nullopt, "action=2\n", "", std::nullopt},
        {xfce, QStringLiteral("printer"), "action=4\n", "action=4\n", QStringLiteral("application")},
        {flameshot, clipboard, "[General]\n", "[General]\n", std::nullopt},
        {ksnip, clipboard, "[Application]\n",
         "[Application]\nAutoSaveNewCaptures=false\nAutoCopyToClipboardNewCaptures=true\n", clipboard},
        {ksnip, file, "[Application]\nAutoSaveNewCaptures=false\n",
         "[Application]\nAutoSaveNewCaptures=true\n", file},
        {ksnip, std::nullopt, "[Application]\nAutoSaveNewCaptures=true\n", "[Application]\n", std::nullopt},
    };
    for (const Case &c : cases) {
        const Session session;
        const FileTool &tool = fileTools[c.tool];
        session.write(tool.file, c.before);
        const auto preferences = session.preferences(tool.name);
        preferences->setTarget(c.target);
        preferences->synchronize();
        EXPECT_EQ(session.read(tool.file), c.after) << tool.name.toStdString() << ' ' << c.before.constData();
        EXPECT_EQ(preferences->target(), c.read) << tool.name.toStdString() << ' ' << c.before.constData();
    }
}

TEST(SettingsFiles, tellTheBeginningOfNamesOnlyWhenItWasChanged) {
    struct Case {
        int tool;
        QByteArray content;
        Text name;
    };
    const Case cases[]{
        {oldSpectacle, "[Save]\nsaveFilenameFormat=Screenshot_%Y%M%D_%H%m%S\n", std::nullopt},
        {oldSpectacle, "[ImageSave]\nimageFilenameTemplate=Screenshot_<yyyy><MM><dd>_<HH><mm><ss>\n",
         std::nullopt},
        {oldSpectacle, "[ImageSave]\nimageFilenameTemplate=<yyyy>-<MM>\n", std::nullopt},
        {oldSpectacle, "[ImageSave]\nimageFilenameTemplate=<yyyy>/Mein\\sBild - <dd>\n",
         QStringLiteral("Mein Bild")},
        {xfce, "title=Screenshot\n", std::nullopt},
        {xfce, "title=Bildschirmfoto\n", QStringLiteral("Bildschirmfoto")},
        {xfce, "title=Mein\\sBild\n", QStringLiteral("Mein Bild")},
        {flameshot, "[General]\nfilenamePattern=%F_%H-%M\n", std::nullopt},
        {ksnip, "[Application]\nSaveFilename=ksnip_$Y$M$D-$T\n", std::nullopt},
        {ksnip, "[Application]\nSaveFilename=\"Bild, ####_$T\"\n", QStringLiteral("Bild,")},
    };
    for (const Case &c : cases) {
        const Session session;
        session.write(fileTools[c.tool].file, c.content);
        EXPECT_EQ(session.preferences(fileTools[c.tool].name)->name(), c.name) << c.content.constData();
    }
}

TEST(Spectacle, keepsItsFolderWhereItsVersionHasIt) {
    const QByteArray oldGroup = "[Save]\ndefaultSaveLocation=file:///old/\n";
    const QByteArray newGroup = "[ImageSave]\nimageSaveLocation=file:///new/\n";
    struct Case {
        QByteArray version;
        QByteArray content;
        QString location;
        QByteArray written;
    };
    const Session session;
    const QString pictures = session.folders.pictures;
    const Case cases[]{
        {"", "", pictures + QStringLiteral("/Screenshots"), "[ImageSave]\nimageSaveLocation=file:///x/"},
        {"22.12.3", "", pictures, "[Save]\ndefaultSaveLocation=file:///x/"},
        {"24.02.0", "", pictures + QStringLiteral("/Screenshots"),
         "[ImageSave]\nimageSaveLocation=file:///x/"},
        {"24.02.0", "[ImageSave]\ntranslatedScreenshotsFolder=Fotos\n", pictures + QStringLiteral("/Fotos"),
         "imageSaveLocation=file:///x/"},
        {"24.02.0", oldGroup, QStringLiteral("/old"), "defaultSaveLocation=file:///x/"},
        {"22.12.3", newGroup, QStringLiteral("/new"), "imageSaveLocation=file:///x/"},
        {"22.12.3", newGroup + oldGroup, QStringLiteral("/old"), "defaultSaveLocation=file:///x/"},
        {"24.02.0", newGroup + oldGroup, QStringLiteral("/new"), "imageSaveLocation=file:///x/"},
    };
    for (const Case &c : cases) {
        session.write(QStringLiteral("share/metainfo/org.kde.spectacle.appdata.xml"),
                      c.version.isEmpty() ? QByteArray()
                                          : "<releases>\n <release date=\"x\" version=\"" + c.version +
                                                "\"/>\n <release version=\"1.0\"/>\n</releases>");
        session.write(fileTools[oldSpectacle].file, c.content);
        const auto preferences = session.preferences(QStringLiteral("spectacle"));
        EXPECT_EQ(preferences->location(), c.location) << c.version.constData() << c.content.constData();
        preferences->setLocation(QStringLiteral("/x"));
        preferences->synchronize();
        EXPECT_TRUE(session.read(fileTools[oldSpectacle].file).contains(c.written))
            << c.version.constData() << c.content.constData();
    }
}

TEST(Spectacle, keepsWhatTheAdministratorLocked) {
    for (const QByteArray content : {"[ImageSave]\nimageSaveLocation[$i]=file:///srv/\n",
                                     "[ImageSave][$i]\nimageSaveLocation=file:///srv/\n"}) {
        const Session session;
        session.write(fileTools[oldSpectacle].file, content);
        const auto preferences = session.preferences(QStringLiteral("spectacle"));
        preferences->setLocation(QStringLiteral("/x"));
        preferences->synchronize();
        EXPECT_EQ(preferences->location(), QStringLiteral("/srv"));
        EXPECT_EQ(session.read(fileTools[oldSpectacle].file), content);
    }
}

TEST(Flameshot, savesWithoutAskingUnlessTheUserWantsToBeAsked) {
    struct Case {
        QByteArray before;
        QByteArray after;
    };
    const Case cases[]{
        {"", "[General]\nsavePath=/x\nsavePathFixed=true\n"},
        {"[General]\nsavePathFixed=false\n", "[General]\nsavePathFixed=false\nsavePath=/x\n"},
    };
    for (const Case &c : cases) {
        const Session session;
        session.write(fileTools[flameshot].file, c.before);
        const auto preferences = session.preferences(QStringLiteral("flameshot"));
        preferences->setLocation(QStringLiteral("/x"));
        preferences->synchronize();
        EXPECT_EQ(session.read(fileTools[flameshot].file), c.after);
    }
}

TEST(OtherTools, haveTheFolderThatWasChosenHereOrTheUsualOne) {
    Session session;
    const QString tool = QStringLiteral("generic");
    EXPECT_EQ(session.preferences(tool)->location(), session.folders.pictures);
    QDir().mkpath(session.folders.pictures + QStringLiteral("/Screenshots"));
    EXPECT_EQ(session.preferences(tool)->location(),
              session.folders.pictures + QStringLiteral("/Screenshots"));
    session.environment.insert(QStringLiteral("HYPRSHOT_DIR"), QStringLiteral("/srv/hypr"));
    EXPECT_EQ(session.preferences(tool)->location(), QStringLiteral("/srv/hypr"));
    session.environment.insert(QStringLiteral("GRIM_DEFAULT_DIR"), QStringLiteral("grim"));
    EXPECT_EQ(session.preferences(tool)->location(), QStringLiteral("/srv/hypr"));
    session.environment.insert(QStringLiteral("GRIM_DEFAULT_DIR"), QStringLiteral("/srv/grim"));
    EXPECT_EQ(session.preferences(tool)->location(), QStringLiteral("/srv/grim"));

    const auto preferences = session.preferences(tool);
    preferences->setLocation(QStringLiteral("~/ Neue Bilder "));
    preferences->synchronize();
    EXPECT_EQ(session.preferences(tool)->location(), QStringLiteral("/home/ada/ Neue Bilder "));
    preferences->setLocation(std::nullopt);
    preferences->synchronize();
    EXPECT_EQ(session.preferences(tool)->location(), QStringLiteral("/srv/grim"));
}
