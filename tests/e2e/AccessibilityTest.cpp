#include "AccessibleHands.h"

#include <QFile>
#include <QJsonArray>

#include <gtest/gtest.h>

using namespace tembra;

// The program by roles and names alone: no place on the screen is told, looked up or clicked.

namespace {

QString text(const char *words) {
    return QString::fromUtf8(words);
}

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QString listItem = text("list item");
const QString menuItem = text("menu item");
const QString button = text("push button");
const QString tab = text("page tab");
const QString checkBox = text("check box");
const QString radioButton = text("radio button");
const QString notification = text("notification");

class Accessibility : public testing::Test {
protected:
    using Node = AccessibleTree::Node;

    static QString capture(int second) {
        return QStringLiteral("Screenshot from 2026-11-21 10-15-0%1.png").arg(second);
    }
    [[nodiscard]] QString path(int second) const { return tembra.screenshots() + u'/' + capture(second); }

    void startWith(int captures) {
        for (int second = 1; second <= captures; ++second)
            EXPECT_EQ(tembra.tool(text("scrot"), {path(second)}).exitStatus, 0);
        tembra.start();
        EXPECT_TRUE(tembra.waitFor([captures](const QJsonObject &status) {
            return status[u"screenshots"][u"count"].toInt() == captures;
        }));
    }
    void open(const QStringList &words) {
        EXPECT_EQ(tembra.command(words).exitStatus, 0) << words.join(u' ').toStdString();
    }
    // By the menu of a file.
    [[nodiscard]] bool chooses(const QString &file, const QString &item) const {
        return hands.does(listItem, file, text("ShowMenu")) && hands.does(menuItem, item);
    }
    [[nodiscard]] bool isSelected(const QString &role, const QString &name) const {
        return hands.finds(
            role, name, [](const Node &node) { return node.isSelected; }, text("selected"));
    }
    [[nodiscard]] bool isChecked(const QString &role, const QString &name, bool expected) const {
        return hands.finds(
            role, name, [expected](const Node &node) { return node.isChecked == expected; },
            expected ? text("checked") : text("unchecked"));
    }
    [[nodiscard]] bool isDescribed(const QString &role, const QString &name, const QString &words) const {
        return hands.finds(
            role, name, [&words](const Node &node) { return node.description.contains(words); },
            QStringLiteral("described as “%1”").arg(words));
    }

    TembraProcess tembra;
    AccessibleHands hands{tembra};
};

} // namespace

TEST_F(Accessibility, theShelfIsWalkedAndScreenshotsArePinnedRemovedAndBroughtBack) {
    startWith(3);
    open({text("open")});
    ASSERT_TRUE(hands.does(tab, text("File Tray")));
    ASSERT_TRUE(isSelected(tab, text("File Tray")));
    ASSERT_TRUE(hands.does(tab, text("Image to Text")));
    ASSERT_TRUE(hands.finds(button, text("Choose Image")));
    ASSERT_TRUE(hands.does(tab, text("Screenshots")));
    ASSERT_TRUE(hands.finds(text("list"), text("Screenshots")));
    ASSERT_TRUE(hands.finds(listItem, capture(3)));
    EXPECT_EQ(hands.count(listItem), 3);

    ASSERT_TRUE(hands.does(listItem, capture(2), text("Press")));
    ASSERT_TRUE(isSelected(listItem, capture(2)));
    EXPECT_TRUE(hands.finds(
        listItem, capture(2), [](const Node &node) { return node.isFocused; }, text("focused")));
    ASSERT_TRUE(chooses(capture(2), text("Pin")));
    EXPECT_TRUE(isDescribed(listItem, capture(2), text("Pinned")));
    EXPECT_TRUE(hands.finds(notification, text("Pinned")));

    ASSERT_TRUE(hands.does(listItem, capture(1), text("Press")));
    ASSERT_TRUE(chooses(capture(1), text("Move to Trash")));
    ASSERT_TRUE(hands.losesSight(listItem, capture(1)));
    EXPECT_TRUE(hands.finds(notification, text("Move to Trash. Undo takes it back.")));
    ASSERT_TRUE(hands.does(button, text("Undo Move to Trash")));
    EXPECT_TRUE(hands.finds(listItem, capture(1)));
    EXPECT_TRUE(hands.finds(notification, text("Undone: Move to Trash")));
}

TEST_F(Accessibility, filesAreKeptInTheTrayAndTakenOut) {
    startWith(2);
    open({text("add"), path(1), path(2)});
    open({text("open"), text("--tab"), text("tray")});
    ASSERT_TRUE(hands.finds(text("list"), text("File Tray")));
    ASSERT_TRUE(hands.does(listItem, capture(1), text("Press")));
    ASSERT_TRUE(isSelected(listItem, capture(1)));
    ASSERT_TRUE(chooses(capture(1), text("Remove from File Tray")));
    ASSERT_TRUE(hands.losesSight(listItem, capture(1)));
    EXPECT_TRUE(hands.finds(listItem, capture(2)));
}

TEST_F(Accessibility, aCaptureAndTheTextInItAreRead) {
    tembra.start();
    ASSERT_TRUE(tembra.waitFor(
        [](const QJsonObject &status) { return status[u"folder"][u"state"].toString() == u"ready"; }));
    ASSERT_EQ(tembra
                  .tool(text("convert"),
                        {text("-size"), text("900x200"), text("xc:white"), text("-pointsize"), text("40"),
                         text("-annotate"), text("+40+110"), text("The quick brown fox"), path(1)})
                  .exitStatus,
              0);
    EXPECT_TRUE(isDescribed(notification, text("Got it! First one caught"), text("Screenshot saved")));
    open({text("open")});
    ASSERT_TRUE(hands.does(listItem, capture(1), text("Press")));
    ASSERT_TRUE(chooses(capture(1), text("Image to Text")));
    const QString words = text("The quick brown fox");
    EXPECT_TRUE(hands.finds(
        text("label"), text("Recognized text"),
        [&](const Node &node) { return hands.tree().content(node).contains(words); },
        text("read as it was written")));
    EXPECT_TRUE(hands.finds(notification, text("4 words")));
}

TEST_F(Accessibility, aScreenshotIsAnnotatedAndSaved) {
    startWith(1);
    open({text("open")});
    ASSERT_TRUE(hands.does(listItem, capture(1), text("Press")));
    ASSERT_TRUE(chooses(capture(1), text("Open in Editor")));
    ASSERT_TRUE(hands.does(radioButton, text("Rectangle")));
    ASSERT_TRUE(isChecked(radioButton, text("Rectangle"), true));
    ASSERT_TRUE(hands.does(text("list"), text("Screenshot"), text("Press")));
    const QString rectangle = text("Rectangle");
    ASSERT_TRUE(isSelected(listItem, rectangle));
    // Nothing, and it again.
    ASSERT_TRUE(hands.types(text("list"), text("Screenshot"), {text("Escape"), text("Escape")}));
    ASSERT_TRUE(hands.finds(
        listItem, rectangle, [](const Node &node) { return !node.isSelected; }, text("given up")));
    ASSERT_TRUE(hands.does(listItem, rectangle, text("Press")));
    ASSERT_TRUE(isSelected(listItem, rectangle));

    const QRect before = hands.tree().extents(*hands.node(listItem, rectangle));
    ASSERT_TRUE(hands.types(listItem, rectangle,
                            {text("shift+Right"), text("alt+Down"), text("alt+Down"), text("alt+Down")}));
    EXPECT_TRUE(hands.finds(
        listItem, rectangle,
        [&](const Node &node) {
            const QRect now = hands.tree().extents(node);
            return now.left() > before.left() && now.height() > before.height();
        },
        text("moved and grown by the keys")));
    ASSERT_TRUE(hands.types(listItem, rectangle, {text("Delete")}));
    ASSERT_TRUE(hands.losesSight(listItem, rectangle));
    ASSERT_TRUE(hands.does(button, text("Undo")));
    ASSERT_TRUE(hands.finds(listItem, rectangle));
    ASSERT_TRUE(isDescribed(text("text"), text("File name"), text("Edited")));
    const QByteArray original = contentOf(path(1));
    ASSERT_TRUE(hands.does(button, text("Save")));
    EXPECT_TRUE(hands.finds(
        text("text"), text("File name"), [](const Node &node) { return node.description.isEmpty(); },
        text("saved")));
    EXPECT_NE(contentOf(path(1)), original);
}

TEST_F(Accessibility, theSettingsAreReadAndChanged) {
    startWith(1);
    open({text("open")});
    ASSERT_TRUE(hands.does(button, text("Settings")));
    for (const char *page :
         {"Screenshots", "Editor", "File Tray", "Image to Text", "Shortcut", "About", "General"}) {
        ASSERT_TRUE(hands.does(listItem, text(page)));
        ASSERT_TRUE(hands.finds(text("heading"), text(page)));
    }
    const QString choice = text("Open the shelf");
    EXPECT_TRUE(isDescribed(text("combo box"), choice, text("On hover")));
    ASSERT_TRUE(hands.does(text("combo box"), choice, text("ShowMenu")));
    ASSERT_TRUE(hands.does(listItem, text("On click")));
    EXPECT_TRUE(isDescribed(text("combo box"), choice, text("On click")));

    ASSERT_TRUE(hands.does(listItem, text("Screenshots")));
    ASSERT_TRUE(isChecked(checkBox, text("Show file names"), true));
    ASSERT_TRUE(hands.does(checkBox, text("Show file names")));
    EXPECT_TRUE(isChecked(checkBox, text("Show file names"), false));
    EXPECT_TRUE(tembra.waitFor([this](const QJsonObject &) {
        return contentOf(tembra.settingsFile()).contains("\"showFileNames\": false");
    }));
}

TEST_F(Accessibility, theOnboardingIsFollowed) {
    tembra.forgetSettings();
    tembra.start();
    ASSERT_TRUE(hands.finds(text("heading"), text("Your screenshots, always at hand")));
    ASSERT_TRUE(isChecked(checkBox, text("Step 1 of 3"), true));
    ASSERT_TRUE(hands.does(button, text("Continue")));
    ASSERT_TRUE(hands.finds(text("heading"), text("Where should screenshots go?")));
    ASSERT_TRUE(hands.does(button, text("Use This Folder")));
    ASSERT_TRUE(isChecked(checkBox, text("Step 3 of 3"), true));
    ASSERT_TRUE(hands.does(checkBox, text("Step 1 of 3")));
    EXPECT_TRUE(hands.finds(text("heading"), text("Your screenshots, always at hand")));
}
