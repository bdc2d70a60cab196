#include "settings/DetectedFolder.h"

#include <gtest/gtest.h>

using namespace tembra;

TEST(DetectedFolder, turnsAToolsLocationIntoAFolder) {
    StandardFolders folders;
    folders.home = QStringLiteral("/home/ada");
    folders.desktop = QStringLiteral("/home/ada/Schreibtisch");

    struct Case {
        const char *name;
        std::optional<QString> location;
        QString folder;
    };
    const Case cases[]{
        {"nothing", std::nullopt, folders.desktop},
        {"empty", QString(), folders.desktop},
        {"blank", QStringLiteral(" \t\n"), folders.desktop},
        {"home", QStringLiteral("~"), folders.home},
        {"home with a slash", QStringLiteral("~/"), folders.home},
        {"below home", QStringLiteral("~/Pictures/Shots"), QStringLiteral("/home/ada/Pictures/Shots")},
        {"absolute", QStringLiteral("/srv/shots"), QStringLiteral("/srv/shots")},
        {"final slash", QStringLiteral("/srv/shots/"), QStringLiteral("/srv/shots")},
        {"dots", QStringLiteral("/srv/./a//../shots"), QStringLiteral("/srv/shots")},
        {"dots out of home", QStringLiteral("~/../bob"), QStringLiteral("/home/bob")},
        {"dots above the root", QStringLiteral("/../../srv"), QStringLiteral("/srv")},
        {"above the root", QStringLiteral("/.."), QStringLiteral("/")},
        {"root", QStringLiteral("/"), QStringLiteral("/")},
        {"relative", QStringLiteral("Pictures/Shots"), folders.desktop},
        {"another user's home", QStringLiteral("~bob/Shots"), folders.desktop},
        {"URL", QStringLiteral("file:///srv/shots"), folders.desktop},
        {"blanks are part of a name", QStringLiteral("/srv/shots "), QStringLiteral("/srv/shots ")},
        {"blank before", QStringLiteral(" ~"), folders.desktop},
        {"umlauts", QStringLiteral("~/Bildschirmfotos für später"),
         QStringLiteral("/home/ada/Bildschirmfotos für später")},
    };
    for (const Case &c : cases)
        EXPECT_EQ(detectedFolder(c.location, folders), c.folder) << c.name;
}
