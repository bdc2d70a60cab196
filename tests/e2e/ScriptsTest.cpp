#include "TembraProcess.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;
using namespace tembra;

namespace {

class Scripts : public testing::Test {
protected:
    // As a script calls it, with a tool of the desktop.
    TembraProcess::Answer call(const QString &method, const QStringList &arguments = {}) const {
        return tembra.tool(u"gdbus"_s,
                           QStringList{u"call"_s, u"--session"_s, u"--dest"_s, u"app.tembra.Tembra"_s,
                                       u"--object-path"_s, u"/app/tembra/Tembra"_s, u"--method"_s,
                                       u"app.tembra.Tembra."_s + method} +
                               arguments);
    }
    [[nodiscard]] bool isOpen(bool expanded) const {
        return tembra.waitFor([expanded](const QJsonObject &status) {
            return status[u"shelf"][u"expanded"].toBool() == expanded;
        });
    }
    [[nodiscard]] bool isReady() const {
        return tembra.waitFor(
            [](const QJsonObject &status) { return status[u"folder"][u"state"].toString() == u"ready"_s; });
    }

    TembraProcess tembra;
};

} // namespace

TEST_F(Scripts, driveTheShelfOverDBus) {
    tembra.start();
    const auto interface =
        tembra.tool(u"gdbus"_s, {u"introspect"_s, u"--session"_s, u"--dest"_s, u"app.tembra.Tembra"_s,
                                 u"--object-path"_s, u"/app/tembra/Tembra"_s});
    for (const QString &member : {u"OpenShelf(in  s tab);"_s, u"AddFiles(in  as files);"_s,
                                  u"Status(out s "_s, u"CaptureArrived(s path);"_s, u"ActivateAction("_s})
        EXPECT_TRUE(interface.output.contains(member)) << interface.output.toStdString();
    EXPECT_EQ(call(u"OpenShelf"_s, {u"text"_s}).exitStatus, 0);
    EXPECT_TRUE(isOpen(true));
    EXPECT_EQ(tembra.status()[u"shelf"][u"tab"].toString(), u"text"_s);
    EXPECT_EQ(call(u"ToggleShelf"_s).exitStatus, 0);
    EXPECT_TRUE(isOpen(false));
    const auto refused = call(u"OpenShelf"_s, {u"sky"_s});
    EXPECT_NE(refused.exitStatus, 0);
    EXPECT_TRUE(refused.error.contains(u"This tab is not shown."_s)) << refused.error.toStdString();
    EXPECT_TRUE(call(u"Status"_s).output.contains(u"\"folder\""_s));
    EXPECT_EQ(call(u"Quit"_s).exitStatus, 0);
    EXPECT_TRUE(tembra.waitForEnd());
}

TEST_F(Scripts, hearOfEachNewCapture) {
    const QString copy = tembra.home() + u"/caught by a command.png"_s;
    tembra.setSettings({{u"newCaptureCommand"_s, QJsonArray{u"cp"_s, u"{}"_s, copy}}});
    tembra.start();
    ASSERT_TRUE(isReady());
    QProcess monitor;
    monitor.start(u"gdbus"_s, {u"monitor"_s, u"--session"_s, u"--dest"_s, u"app.tembra.Tembra"_s});
    QString heard;
    const auto hears = [&](const QString &words) {
        constexpr int patience = 20'000;
        while (!heard.contains(words) && monitor.waitForReadyRead(patience))
            heard += QString::fromUtf8(monitor.readAllStandardOutput());
        return heard.contains(words);
    };
    ASSERT_TRUE(hears(u"is owned by"_s));
    ASSERT_EQ(tembra.tool(u"scrot"_s, {}).exitStatus, 0);
    EXPECT_TRUE(hears(u"CaptureArrived ('"_s + tembra.screenshots()));
    EXPECT_TRUE(tembra.waitFor([&copy](const QJsonObject &) { return QFile::exists(copy); }));
    monitor.kill();
    monitor.waitForFinished();
}

TEST_F(Scripts, findOutWhatWorksHere) {
    tembra.start();
    ASSERT_TRUE(isReady());
    const auto states = [this] {
        std::map<QString, QString> found;
        const auto report =
            QJsonDocument::fromJson(tembra.command({u"doctor"_s, u"--json"_s}).output.toUtf8()).object();
        for (const QJsonValue check : report[u"checks"].toArray())
            found.try_emplace(check[u"id"].toString(), check[u"state"].toString());
        return found;
    };
    auto found = states();
    for (const QString &id : {u"folder"_s, u"events"_s, u"windows"_s, u"panel"_s, u"shortcut"_s,
                              u"clipboard"_s, u"languages"_s, u"trash"_s})
        EXPECT_EQ(found[id], u"ok"_s) << id.toStdString();
    EXPECT_EQ(found[u"status-item"_s], u"limited"_s) << "this desktop has no place for one";
    EXPECT_EQ(found[u"tool"_s], u"limited"_s) << "this desktop has no tool of its own";
    const QDir folder(tembra.screenshots());
    EXPECT_TRUE(folder.entryList({u".tembra*"_s}, QDir::Files | QDir::Hidden).isEmpty());
    EXPECT_EQ(tembra.status()[u"screenshots"][u"count"].toInt(), 0);

    ASSERT_TRUE(QDir().rename(tembra.screenshots(), tembra.home() + u"/elsewhere"_s));
    tembra.kill();
    const auto lost = tembra.command({u"doctor"_s});
    EXPECT_EQ(lost.exitStatus, 0) << "a folder that was renamed is found again: "
                                  << lost.output.toStdString();
    ASSERT_TRUE(QDir(tembra.home() + u"/elsewhere"_s).removeRecursively());
    const auto gone = tembra.command({u"doctor"_s});
    EXPECT_EQ(gone.exitStatus, 1);
    EXPECT_TRUE(gone.output.contains(u"is not there."_s)) << gone.output.toStdString();
}
