#include "RecognitionHands.h"

#include "FileManagerWindow.h"
#include "TembraProcess.h"
#include "support/Files.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

QString text(const char *latin) {
    return QString::fromLatin1(latin);
}

// The shelf with a screenshot of a text, and a user who wants the text of images.
class RecognitionStories : public testing::Test {
protected:
    static constexpr QPoint firstTile{340, 100};
    static constexpr QPoint notch{640, 4};
    static constexpr QPoint textTab{392, 22};
    static constexpr QPoint insidePanel{640, 150};
    static constexpr int lineHeight = 22;
    static constexpr int usualHeight = 256;
    static constexpr int tallHeight = 584;

    RecognitionStories() {
        tembra.tool(text("xdotool"), {text("mousemove"), text("640"), text("790")});
        EXPECT_EQ(hands.draw(shot, lines), shot);
    }

    void start() {
        tembra.start();
        EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
            return status[u"screenshots"][u"count"].toInt() == 1 &&
                   status[u"folder"][u"state"].toString() == u"ready";
        })) << tembra.log().toStdString();
    }
    void selectTile(const char *button) {
        ASSERT_TRUE(hands.open("screenshots"));
        hands.clickAt(firstTile, text(button));
        ASSERT_TRUE(tembra.waitFor([](const QJsonObject &status) {
            return status[u"screenshots"][u"selected"].toArray().size() == 1;
        }));
    }
    [[nodiscard]] bool hasTab(const char *tab) const {
        return tembra.waitFor([tab](const QJsonObject &status) {
            return status[u"shelf"][u"expanded"].toBool() && status[u"shelf"][u"tab"].toString() == text(tab);
        });
    }
    [[nodiscard]] bool isClosed() const {
        return tembra.waitFor(
            [](const QJsonObject &status) { return !status[u"shelf"][u"expanded"].toBool(); });
    }
    // Where the text of a line begins.
    [[nodiscard]] QPoint lineStart(int line) const {
        const QRect place = hands.place(text("Recognized text"));
        constexpr int margin = 8;
        return place.topLeft() + QPoint(margin, margin + lineHeight / 2 + line * lineHeight);
    }
    [[nodiscard]] QString scratch(const char *name) const { return tembra.home() + u'/' + text(name); }

    TembraProcess tembra;
    const RecognitionHands hands{tembra};
    FileManagerWindow files{tembra};
    const QString lines =
        text("Quarterly report\nCosts stayed flat at 4.1 million\nhttps://example.org/notes");
    const QString shot = tembra.screenshots() + text("/Screenshot from 2026-11-21 10-15-01.png");
    const QString other = hands.draw(scratch("other.png"), text("Another image"));
    const QString page = hands.drawPage(scratch("page.png"));
};

} // namespace

TEST_F(RecognitionStories, aScreenshotIsReadFromItsTileItsMenuAndTheCommandLine) {
    start();
    selectTile("1");
    hands.press({text("ctrl+t")});
    EXPECT_TRUE(hasTab("text"));
    EXPECT_TRUE(hands.shows(lines)) << QJsonDocument(tembra.status()).toJson().toStdString();
    EXPECT_TRUE(hands.clickControl(text("New Image")));
    EXPECT_TRUE(hands.isIn("idle"));

    selectTile("3");
    // The fourth item.
    hands.press({text("Down"), text("Down"), text("Down"), text("Down"), text("Return")});
    EXPECT_TRUE(hasTab("text"));
    EXPECT_TRUE(hands.shows(lines));

    EXPECT_EQ(tembra.command({text("ocr"), shot}).output, lines + u'\n');
    const auto words = tembra.command({text("ocr"), shot, text("--words"), text("--json")}).output;
    const QJsonObject report = QJsonDocument::fromJson(words.toUtf8()).object();
    EXPECT_EQ(report[u"text"].toString(), lines);
    QStringList read;
    const QJsonArray found = report[u"words"].toArray();
    for (const QJsonValue word : found) {
        read += word[u"text"].toString();
        const QRect box(word[u"x"].toInt(), word[u"y"].toInt(), word[u"width"].toInt(),
                        word[u"height"].toInt());
        EXPECT_TRUE(!box.isEmpty() && QImage(shot).rect().contains(box)) << read.last().toStdString();
    }
    EXPECT_EQ(read.join(u' '), lines.simplified());
}

TEST_F(RecognitionStories, theTextIsCopiedWholeInPartAndInAnotherLayout) {
    start();
    ASSERT_TRUE(hands.open());
    hands.paste(shot);
    ASSERT_TRUE(hands.shows(lines));
    EXPECT_TRUE(hands.clickControl(text("Copy")));
    EXPECT_TRUE(hands.sees(text("Copied")));
    EXPECT_TRUE(hands.hasCopied(lines));
    EXPECT_EQ(hands.copied("text/plain"), lines.toUtf8());

    hands.dragAlong(lineStart(1), lineStart(1) + QPoint(500, 0));
    hands.press({text("ctrl+c")});
    EXPECT_TRUE(hands.hasCopied(text("Costs stayed flat at 4.1 million")));

    // Takes the selection away.
    hands.clickAt(lineStart(0));
    hands.press({text("ctrl+c")});
    EXPECT_TRUE(hands.clickControl(text("Expand panel")));
    EXPECT_TRUE(hands.isHigh(tallHeight));
    EXPECT_TRUE(hands.clickControl(text("Reduce panel")));
    EXPECT_TRUE(hands.isHigh(usualHeight));
    EXPECT_TRUE(hands.hasCopied(text("Costs stayed flat at 4.1 million")));

    EXPECT_TRUE(hands.clickControl(text("Text layout")));
    hands.press({text("End"), text("Return")});
    EXPECT_TRUE(hands.shows(lines.simplified()));
    EXPECT_TRUE(hands.clickControl(text("Copy")));
    EXPECT_TRUE(hands.hasCopied(lines.simplified()));
}

TEST_F(RecognitionStories, imagesAreDroppedAndChosen) {
    ASSERT_TRUE(QFile::rename(other, files.folder() + text("/other.png")));
    start();
    ASSERT_TRUE(files.open({}));
    files.pressFirst();
    files.dragTo(notch);
    EXPECT_TRUE(hasTab("tray"));
    files.dragTo(textTab);
    EXPECT_TRUE(hasTab("text"));
    files.dragTo(insidePanel);
    files.release();
    EXPECT_TRUE(hands.shows(text("Another image"))) << QJsonDocument(tembra.status()).toJson().toStdString();
    EXPECT_EQ(tembra.status()[u"tray"][u"count"].toInt(), 0);

    EXPECT_TRUE(hands.clickControl(text("New Image")));
    const QString name = text("File name:");
    for (const bool isTaken : {false, true}) {
        ASSERT_TRUE(hands.clickControl(text("Choose Image")));
        ASSERT_TRUE(hands.clickControl(name, text("text"))) << isTaken;
        if (isTaken)
            hands.type(shot);
        hands.press({text(isTaken ? "Return" : "Escape")});
        EXPECT_TRUE(hasTab("text"));
        EXPECT_TRUE(isTaken ? hands.shows(lines) : hands.isIn("idle"));
    }
}

TEST_F(RecognitionStories, onlyTheNewestImageCountsAndAWorkerThatIsLostHarmsNothing) {
    start();
    ASSERT_TRUE(hands.open());
    const auto beginPage = [this] {
        hands.paste(page);
        const auto worker = hands.holdWorker();
        EXPECT_TRUE(worker && hands.isIn("loading"));
        return worker.value_or(0);
    };
    const int overtaken = beginPage();
    hands.paste(other);
    EXPECT_TRUE(hands.shows(text("Another image")));
    EXPECT_TRUE(hands.isGone(overtaken));

    const int killed = beginPage();
    hands.killWorker(killed);
    EXPECT_TRUE(hands.says("Could not read this image. Try another one."));
    hands.paste(shot);
    EXPECT_TRUE(hands.shows(lines));

    const int cancelled = beginPage();
    EXPECT_TRUE(hands.clickControl(text("Cancel")));
    EXPECT_TRUE(hands.isIn("idle"));
    hands.paste(other);
    EXPECT_TRUE(hands.shows(text("Another image")));
    EXPECT_TRUE(hands.isGone(cancelled));

    const int last = beginPage();
    EXPECT_EQ(tembra.command({text("quit")}).exitStatus, 0);
    EXPECT_TRUE(tembra.waitForEnd());
    EXPECT_TRUE(hands.isGone(last));
}

TEST_F(RecognitionStories, whatHasNoTextSaysSoAndTheLogSaysWhy) {
    const QByteArray png = [this] {
        QFile file(shot);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }();
    const QString animation = scratch("animation.gif");
    tembra.tool(text("convert"), {text("-size"), text("64x48"), text("xc:red"), text("xc:blue"), animation});
    const QString plain = scratch("plain.png");
    tembra.tool(text("convert"), {text("-size"), text("400x300"), text("gradient:white-gray"), plain});
    start();
    ASSERT_TRUE(hands.open());

    struct Refused {
        QString path;
        const char *why;
    };
    const char *const damaged = "The image is damaged, too large or of an unknown kind.";
    const std::array images{Refused{writeFile(scratch("broken.png"), png.first(png.size() / 2)), damaged},
                            Refused{animation, "Animations can’t be read."},
                            Refused{writeFile(scratch("empty.png"), {}), damaged},
                            Refused{tembra.home(), "isn’t an image file."},
                            Refused{writeFile(scratch("document.pdf"), "%PDF-1.4\n%%EOF\n"), damaged}};
    for (const auto &[path, why] : images) {
        const auto told = tembra.log().size();
        hands.pasteFile(path);
        EXPECT_TRUE(tembra.waitFor([&](const QJsonObject &) {
            return tembra.log().mid(told).contains(QString::fromUtf8(why));
        })) << path.toStdString()
            << tembra.log().toStdString();
        EXPECT_TRUE(hands.says("Could not read this image. Try another one."));
        EXPECT_TRUE(hands.sees(text("Could not read this image. Try another one.")));
    }
    hands.pasteFile(plain);
    EXPECT_TRUE(hands.says("No text found. Try another image."));
    hands.pasteFile(shot);
    EXPECT_TRUE(hands.shows(lines));
}

TEST_F(RecognitionStories, aLinkOpensWithTheBrowserAndTheShelfCloses) {
    const QString opened = scratch("opened");
    const QString browser = writeFile(scratch("browser"), "#!/bin/sh\nprintf %s \"$1\" >\"$HOME/opened\"\n");
    QFile::setPermissions(browser, QFile::permissions(browser) | QFile::ExeOwner);
    const QString applications = scratch(".local/share/applications");
    QDir().mkpath(applications);
    QDir().mkpath(scratch(".config"));
    writeFile(applications + text("/browser.desktop"),
              "[Desktop Entry]\nType=Application\nName=Browser\nExec=" + QFile::encodeName(browser) +
                  " %u\nMimeType=x-scheme-handler/https;\n");
    writeFile(scratch(".config/mimeapps.list"),
              "[Default Applications]\nx-scheme-handler/https=browser.desktop\n");
    start();
    ASSERT_TRUE(hands.open());
    hands.paste(shot);
    ASSERT_TRUE(hands.shows(lines));
    ASSERT_TRUE(hands.sees(text("Recognized text")));
    hands.clickAt(lineStart(2) + QPoint(40, 0));
    EXPECT_TRUE(isClosed());
    EXPECT_TRUE(tembra.waitFor([&opened](const QJsonObject &) {
        QFile file(opened);
        return file.open(QIODevice::ReadOnly) && file.readAll() == "https://example.org/notes";
    })) << tembra.log().toStdString();
}

TEST_F(RecognitionStories, whereItIsSwitchedOffNothingOffersIt) {
    tembra.setSettings({{text("imageToTextEnabled"), false}});
    start();
    const auto refused = tembra.command({text("open"), text("--tab"), text("text")});
    EXPECT_NE(refused.exitStatus, 0);
    EXPECT_TRUE(refused.error.contains(text("This tab is not shown."))) << refused.error.toStdString();
    selectTile("1");
    hands.press({text("ctrl+t")});
    EXPECT_TRUE(hands.sees(text("File Tray")));
    EXPECT_EQ(hands.control(text("Image to Text")), std::nullopt);
    EXPECT_TRUE(hasTab("screenshots"));
    EXPECT_TRUE(hands.isIn("idle"));
}
