#pragma once

#include "EditorHands.h"
#include "TembraProcess.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace tembra {

inline QString text(const char *latin) {
    return QString::fromLatin1(latin);
}

// Screenshots as large as the editor's window shows them pixel by pixel, and a user of the editor.
class EditorStories : public testing::Test {
protected:
    EditorStories() { tembra.tool(text("xdotool"), {text("mousemove"), text("640"), text("790")}); }

    // A plain screenshot of that second; its path.
    QString shoot(int second, Qt::GlobalColor color = Qt::white) const {
        QImage image(800, 480, QImage::Format_RGB32);
        image.fill(color);
        return writeFile(QStringLiteral("%1/Screenshot from 2026-11-21 10-15-0%2.png")
                             .arg(tembra.screenshots())
                             .arg(second),
                         encoded(image, "png"));
    }
    // The same with words on it.
    QString shootWords(int second) const {
        const QString plain = shoot(second);
        const QString edits = writeFile(tembra.home() + text("/words.json"), R"({"annotations": [
            {"id": "11111111-2222-3333-4444-555555555555", "kind": "text", "points": [{"x": 40, "y": 20}],
             "color": {"r": 0, "g": 0, "b": 0, "a": 1}, "width": 0, "text": {"string": "Account number 4242",
             "fontSize": 30, "maximumWidth": 700, "background": {"r": 1, "g": 1, "b": 1, "a": 1}}}]})");
        const QString drawn = tembra.home() + text("/words.png");
        const auto rendered =
            tembra.command({text("render"), plain, text("--edits"), edits, text("-o"), drawn});
        EXPECT_EQ(rendered.exitStatus, 0) << rendered.error.toStdString();
        QFile::remove(plain);
        EXPECT_TRUE(QFile::rename(drawn, plain));
        return plain;
    }
    void start(int shots) {
        tembra.start();
        EXPECT_TRUE(tembra.waitFor([shots](const QJsonObject &status) {
            return status[u"screenshots"][u"count"].toInt() == shots &&
                   status[u"folder"][u"state"].toString() == u"ready";
        })) << tembra.log().toStdString();
    }
    void restart(int shots) {
        EXPECT_EQ(tembra.command({text("quit")}).exitStatus, 0);
        EXPECT_TRUE(tembra.waitForEnd());
        start(shots);
    }

    // By a double click in the shelf.
    void openFirstTile() const {
        tembra.command({text("open")});
        ASSERT_TRUE(tembra.waitFor([](const QJsonObject &status) {
            return status[u"shelf"][u"expanded"].toBool() && status[u"shelf"][u"frame"][3].toInt() == 256;
        }));
        tembra.tool(text("xdotool"), {text("mousemove"), text("340"), text("100"), text("click"),
                                      text("--repeat"), text("2"), text("--delay"), text("20"), text("1")});
    }

    // Where the edits of the only edited screenshot are kept.
    [[nodiscard]] QString kept(const char *file) const {
        const QDir store(tembra.home() + text("/tembra/data/ScreenshotEdits"));
        return store.filePath(store.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0)) + u'/' +
               text(file);
    }
    [[nodiscard]] QJsonObject record() const {
        QFile file(kept("record.json"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QJsonDocument::fromJson(file.readAll()).object();
    }
    // Whether a file shows, pixel by pixel, what the command line makes of the original and the record.
    [[nodiscard]] bool showsTheRecord(const QString &file) const {
        const QString expected = tembra.home() + text("/expected.png");
        const auto rendered = tembra.command(
            {text("render"), kept("original"), text("--edits"), kept("record.json"), text("-o"), expected});
        EXPECT_EQ(rendered.exitStatus, 0) << rendered.error.toStdString();
        return !QImage(file).isNull() && QImage(file) == QImage(expected);
    }

    // What is on the clipboard in that form.
    [[nodiscard]] QByteArray pasted(const char *type) const {
        const QString file = tembra.home() + text("/pasted");
        tembra.tool(text("sh"), {text("-c"), text("xclip -selection clipboard -o -t \"$1\" >\"$2\""),
                                 text("sh"), text(type), file});
        QFile pasted(file);
        return pasted.open(QIODevice::ReadOnly) ? pasted.readAll() : QByteArray();
    }

    TembraProcess tembra;
    const EditorHands hands{tembra};
};

} // namespace tembra
