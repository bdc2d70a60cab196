#include "AccessibleTree.h"
#include "TembraProcess.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPoint>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// The shelf with three captures, and a hand on the pointer and the keys. Screen points of a display 1280
// wide.
class ShelfHands : public testing::Test {
protected:
    static constexpr QPoint firstTile{340, 100};
    static constexpr QPoint background{900, 215};
    static constexpr QPoint undoButton{925, 22};

    ShelfHands() {
        move({640, 600});
        for (int second = 1; second <= 3; ++second)
            tembra.tool(QStringLiteral("scrot"),
                        {QStringLiteral("%1/Screenshot from 2026-11-21 10-15-0%2.png")
                             .arg(tembra.screenshots())
                             .arg(second)});
        tembra.start();
        const bool isReady = tembra.waitFor([](const QJsonObject &status) { return count(status) == 3; });
        EXPECT_TRUE(isReady) << tembra.log().toStdString();
        openByHover();
    }

    // And waits until it has come to rest.
    void openByHover() {
        move({640, 0});
        EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
            const QJsonArray frame = status[u"shelf"][u"frame"].toArray();
            return status[u"shelf"][u"expanded"].toBool() && frame[2].toInt() == 744 &&
                   frame[3].toInt() == 256;
        }));
    }

    static int count(const QJsonObject &status) { return status[u"screenshots"][u"count"].toInt(); }
    static qsizetype selectedCount(const QJsonObject &status) {
        return status[u"screenshots"][u"selected"].toArray().size();
    }

    void xdotool(const QStringList &words) { tembra.tool(QStringLiteral("xdotool"), words); }
    void move(QPoint point) {
        xdotool({QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())});
    }
    void click(QPoint point, int button = 1) {
        move(point);
        xdotool({QStringLiteral("click"), QString::number(button)});
    }
    void press(const QStringList &keys) { xdotool(QStringList{QStringLiteral("key")} + keys); }
    // Whether a window of that title is to be seen.
    bool isShown(const QString &title) {
        return tembra
                   .tool(QStringLiteral("xdotool"),
                         {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                          title})
                   .exitStatus == 0;
    }

    TembraProcess tembra;
};

} // namespace

TEST_F(ShelfHands, theMenuOfAScreenshotRemovesItAndTheButtonBringsItBack) {
    click(firstTile, 3);
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return selectedCount(status) == 1; }));
    move({640, 600});
    EXPECT_TRUE(tembra.status()[u"shelf"][u"expanded"].toBool()) << "a menu keeps the shelf open";
    // The last item, coming from below.
    press({QStringLiteral("Up"), QStringLiteral("Return")});
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return count(status) == 2; }))
        << QJsonDocument(tembra.status()).toJson().toStdString();

    openByHover();
    click(undoButton);
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return count(status) == 3; }));
}

TEST_F(ShelfHands, assistiveProgramsFindTheTabsAndTheSelectedTiles) {
    const AccessibleTree tree;
    const QString program = QStringLiteral("Tembra");
    click(background);
    press({QStringLiteral("Home")});
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return selectedCount(status) == 1; }));
    const auto tiles = [&tree, &program](bool isSelected) {
        QStringList names;
        for (const AccessibleTree::Node &node : tree.shown(program)) {
            if (node.role == QStringLiteral("list item") && node.isSelected == isSelected)
                names += node.name;
        }
        return names;
    };
    // The program joins the tree after somebody has asked for it.
    EXPECT_TRUE(tembra.waitFor([&tiles](const QJsonObject &) { return tiles(false).size() == 2; }));
    const QString selected = tembra.status()[u"screenshots"][u"selected"][0].toString();
    EXPECT_EQ(tiles(true), QStringList{QFileInfo(selected).fileName()});

    const auto tray = tree.find(program, QStringLiteral("File Tray"), QStringLiteral("page tab"));
    ASSERT_TRUE(tray);
    EXPECT_TRUE(tree.act(*tray));
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return status[u"shelf"][u"tab"].toString() == QStringLiteral("tray");
    }));
    EXPECT_TRUE(
        tree.find(program, QStringLiteral("Drop files here or Ctrl+V to paste"), QStringLiteral("filler")));
}

TEST_F(ShelfHands, aBandSelectsAndSpaceShowsTheSelectionLarge) {
    move(background);
    xdotool({QStringLiteral("mousedown"), QStringLiteral("1")});
    move({600, 150});
    move({420, 100});
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) { return selectedCount(status) == 2; }));
    xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});

    press({QStringLiteral("space")});
    EXPECT_TRUE(tembra.waitFor([this](const QJsonObject &) { return isShown(QStringLiteral("^Preview$")); }));
    move({640, 700});
    EXPECT_TRUE(tembra.status()[u"shelf"][u"expanded"].toBool()) << "a preview keeps the shelf open";
    press({QStringLiteral("Escape")});
    EXPECT_TRUE(tembra.waitFor([this](const QJsonObject &status) {
        return !isShown(QStringLiteral("^Preview$")) && !status[u"shelf"][u"expanded"].toBool();
    })) << "it was all that held the shelf";
}
