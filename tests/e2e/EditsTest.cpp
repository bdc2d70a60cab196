#include "AccessibleTree.h"
#include "TembraProcess.h"
#include "support/Annotations.h"
#include "support/EditStore.h"
#include "support/Files.h"

#include <QCoreApplication>
#include <QDir>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

const QByteArray filledRectangle = R"({"annotations": [{"id": "11111111-2222-3333-4444-555555555555",
    "kind": "rectangle", "points": [{"x": 300, "y": 200}, {"x": 500, "y": 400}],
    "color": {"r": 1, "g": 0, "b": 0, "a": 1}, "width": 0, "filled": true}]})";

bool hasShot(const QJsonObject &status) {
    return status[u"screenshots"][u"count"].toInt() == 1;
}

// How many pixels of two files differ, as ImageMagick counts them.
int differences(const TembraProcess &tembra, const QStringList &files) {
    const auto answer =
        tembra.tool(QStringLiteral("compare"), QStringList{QStringLiteral("-metric"), QStringLiteral("AE")} +
                                                   files + QStringList{QStringLiteral("null:")});
    return answer.error.trimmed().toInt();
}

} // namespace

TEST(Edits, areDrawnOntoARealCaptureAndNowhereElse) {
    const TembraProcess tembra;
    QDir().mkpath(tembra.screenshots());
    ASSERT_EQ(tembra.tool(QStringLiteral("scrot"), {QStringLiteral("capture.png")}).exitStatus, 0);
    writeFile(tembra.screenshots() + QStringLiteral("/edits.json"), filledRectangle);
    const auto render = [&](const char *image, const char *output) {
        const QString folder = tembra.screenshots() + u'/';
        return tembra.command({QStringLiteral("render"), folder + QString::fromLatin1(image),
                               QStringLiteral("--edits"), folder + QStringLiteral("edits.json"),
                               QStringLiteral("-o"), folder + QString::fromLatin1(output)});
    };
    const auto rendered = render("capture.png", "out.png");
    ASSERT_EQ(rendered.exitStatus, 0) << rendered.error.toStdString();
    EXPECT_GE(differences(tembra, {QStringLiteral("capture.png"), QStringLiteral("out.png")}), 200 * 200);
    // With what was drawn covered in both, its halo of a few pixels too, nothing differs.
    for (const char *file : {"capture.png", "out.png"})
        tembra.tool(QStringLiteral("mogrify"),
                    {QStringLiteral("-fill"), QStringLiteral("black"), QStringLiteral("-draw"),
                     QStringLiteral("rectangle 290,190 510,410"), QString::fromLatin1(file)});
    EXPECT_EQ(differences(tembra, {QStringLiteral("capture.png"), QStringLiteral("out.png")}), 0);

    EXPECT_EQ(render("out.png", "out.png").exitStatus, 1) << "an image is not written over";
    const auto missing = render("missing.png", "new.png");
    EXPECT_EQ(missing.exitStatus, 1);
    EXPECT_EQ(missing.error.count(u'\n'), 1) << missing.error.toStdString();
    EXPECT_FALSE(QFile::exists(tembra.screenshots() + QStringLiteral("/new.png")));
    EXPECT_EQ(tembra.command({QStringLiteral("render"), QStringLiteral("capture.png")}).exitStatus, 2);
}

TEST(Edits, markTheScreenshotThatCarriesThem) {
    TembraProcess tembra;
    tembra.start();
    ASSERT_EQ(tembra.tool(QStringLiteral("scrot"), {}).exitStatus, 0);
    ASSERT_TRUE(tembra.waitFor(hasShot));
    tembra.command({QStringLiteral("quit")});
    ASSERT_TRUE(tembra.waitForEnd());
    const QString shot = QDir(tembra.screenshots()).entryInfoList(QDir::Files).constFirst().filePath();
    const QString store = tembra.home() + QStringLiteral("/tembra/data/ScreenshotEdits");
    {
        int argumentCount = 0;
        const QCoreApplication application(argumentCount, nullptr);
        EditStore edits(tembra.home());
        ScreenshotEditStore saving(store, edits.services());
        const auto saved = saving.load(shot, {}).and_then([&](const ScreenshotEditLoaded &loaded) {
            return saving.save(loaded, {annotationOfKind(ScreenshotAnnotation::Kind::ellipse)}, {});
        });
        ASSERT_TRUE(saved) << saved.error().message.toStdString();
    }

    AccessibleTree tree;
    tembra.start();
    ASSERT_TRUE(tembra.waitFor(hasShot)) << "the edited file is the capture that it was";
    tembra.command({QStringLiteral("open")});
    ASSERT_TRUE(
        tembra.waitFor([](const QJsonObject &status) { return status[u"shelf"][u"expanded"].toBool(); }));
    EXPECT_TRUE(tembra.waitFor([&](const QJsonObject &) {
        const auto tile =
            tree.find(QStringLiteral("Tembra"), QFileInfo(shot).fileName(), QStringLiteral("list item"));
        return tile && tile->description == u"Edited";
    }));
}
