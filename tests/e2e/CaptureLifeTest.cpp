#include "TembraProcess.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// A capture is taken, and what follows is seen by other programs.
class CaptureLife : public testing::Test {
protected:
    CaptureLife() {
        pointer(640, 600);
        tembra.start();
        const bool isReady = tembra.waitFor(
            [](const QJsonObject &status) { return status[u"folder"][u"state"].toString() == u"ready"; });
        EXPECT_TRUE(isReady) << tembra.log().toStdString();
    }

    void pointer(int x, int y) {
        tembra.tool(QStringLiteral("xdotool"),
                    {QStringLiteral("mousemove"), QString::number(x), QString::number(y)});
    }
    void press(const char *keys) {
        tembra.tool(QStringLiteral("xdotool"), {QStringLiteral("key"), QString::fromLatin1(keys)});
    }
    // A real capture under a name of its own; its path.
    QString capture(const QString &name) {
        const QString path = tembra.screenshots() + QStringLiteral("/Screenshot from ") + name;
        EXPECT_EQ(tembra.tool(QStringLiteral("scrot"), {path}).exitStatus, 0);
        return path;
    }
    // Whether the clipboard comes to hold exactly these files.
    bool isOnClipboard(const QStringList &paths) {
        QString expected;
        for (const QString &path : paths)
            expected += QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded()) + QStringLiteral("\r\n");
        return tembra.waitFor(
            [&](const QJsonObject &) { return pasted("text/uri-list").output == expected; });
    }
    TembraProcess::Answer pasted(const char *type) {
        return tembra.tool(QStringLiteral("xclip"),
                           {QStringLiteral("-selection"), QStringLiteral("clipboard"), QStringLiteral("-o"),
                            QStringLiteral("-t"), QString::fromLatin1(type)});
    }
    [[nodiscard]] QStringList folder() const {
        return QDir(tembra.screenshots()).entryList(QDir::Files, QDir::Name);
    }
    [[nodiscard]] QStringList trash() const {
        return QDir(tembra.home() + QStringLiteral("/.local/share/Trash/files"))
            .entryList(QDir::Files, QDir::Name);
    }
    void change(const QJsonObject &settings) {
        QFile file(tembra.settingsFile());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        QJsonObject values = QJsonDocument::fromJson(file.readAll()).object();
        for (auto setting = settings.begin(); setting != settings.end(); ++setting)
            values.insert(setting.key(), setting.value());
        file.resize(0);
        file.write(QJsonDocument(values).toJson());
    }
    [[nodiscard]] QStringList names(const QString &list) const {
        QStringList names;
        const QJsonArray array = tembra.status()[list].toArray();
        for (const QJsonValue name : array)
            names += name.toString();
        return names;
    }

    TembraProcess tembra;
};

} // namespace

TEST_F(CaptureLife, aSeriesIsOnTheClipboardAsFilesAndItsLastAsAnImage) {
    const QString first = capture(QStringLiteral("2026-11-21 10-15-22.png"));
    ASSERT_TRUE(isOnClipboard({first})) << tembra.log().toStdString();
    const QString second = capture(QStringLiteral("2026-11-21 10-15-23.png"));
    ASSERT_TRUE(isOnClipboard({first, second}));
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return status[u"notification"][u"detail"].toString() == u"2 screenshots · copied";
    }));
    const auto compared = tembra.tool(
        QStringLiteral("sh"),
        {QStringLiteral("-c"), QStringLiteral("xclip -selection clipboard -o -t image/png | cmp - \"$1\""),
         QStringLiteral("sh"), second});
    EXPECT_EQ(compared.exitStatus, 0) << compared.error.toStdString();
}

TEST_F(CaptureLife, whatIsRemovedLiesInTheTrashAndComesBack) {
    const QString path = capture(QStringLiteral("2026-11-21 10-15-22.png"));
    capture(QStringLiteral("2026-11-21 10-15-23.png"));
    ASSERT_TRUE(tembra.waitFor(
        [](const QJsonObject &status) { return status[u"screenshots"][u"count"].toInt() == 2; }));
    const QStringList both = folder();
    tembra.command({QStringLiteral("open")});
    press("ctrl+a");
    press("Delete");
    EXPECT_TRUE(tembra.waitFor(
        [](const QJsonObject &status) { return status[u"screenshots"][u"count"].toInt() == 0; }));
    EXPECT_EQ(folder(), QStringList());
    EXPECT_EQ(trash(), both);
    EXPECT_EQ(names(QStringLiteral("undo")), QStringList{QStringLiteral("Move to Trash")});

    press("ctrl+z");
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return status[u"screenshots"][u"selected"].toArray().size() == 2;
    })) << "they are back and selected as they were";
    EXPECT_EQ(folder(), both);
    EXPECT_EQ(trash(), QStringList());

    QFile::remove(path);
    press("ctrl+shift+z");
    EXPECT_TRUE(tembra.waitFor([&](const QJsonObject &) { return trash().size() == 1; }))
        << "the one that is left goes, whatever became of the other";
}

TEST_F(CaptureLife, oldCapturesGoByThemselvesOnceTheUserAgreedAndMayBeBroughtBack) {
    capture(QStringLiteral("2026-11-21 10-15-22.png"));
    capture(QStringLiteral("2026-11-21 10-15-23.png"));
    const QStringList both = folder();
    tembra.command({QStringLiteral("quit")});
    ASSERT_TRUE(tembra.waitForEnd());
    change({{QStringLiteral("screenshotAutoCleanDays"), 7}, {QStringLiteral("autoCleanSafetyReviewV1"), 0}});

    tembra.startInDays(8);
    ASSERT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return status[u"autoClean"][u"review"].toInt() == 1;
    })) << tembra.log().toStdString();
    EXPECT_EQ(folder(), both) << "nothing goes before the answer";
    const auto dialog =
        tembra.tool(QStringLiteral("xdotool"),
                    {QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                     QStringLiteral("--name"), QStringLiteral("^Tembra$"), QStringLiteral("windowfocus"),
                     QStringLiteral("--sync")});
    EXPECT_EQ(dialog.exitStatus, 0) << dialog.error.toStdString();
    press("Return");
    ASSERT_TRUE(tembra.waitFor([&](const QJsonObject &) { return trash() == both; }))
        << tembra.log().toStdString();
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return status[u"undo"].toArray() == QJsonArray{QStringLiteral("Auto-clean")};
    }));

    tembra.command({QStringLiteral("open")});
    press("ctrl+z");
    EXPECT_TRUE(tembra.waitFor([&](const QJsonObject &) { return folder() == both; }));
    tembra.command({QStringLiteral("quit")});
    ASSERT_TRUE(tembra.waitForEnd());
    tembra.startInDays(9);
    EXPECT_TRUE(tembra.waitFor([](const QJsonObject &status) {
        return status[u"autoClean"][u"nextCheckSeconds"].toInt() > 3000;
    })) << "a run is over: "
        << tembra.log().toStdString();
    EXPECT_EQ(folder(), both) << "what was brought back is spared";
}
