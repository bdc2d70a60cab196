#include "ToolHome.h"
#include "support/WaylandCompositor.h"

#include <QDir>
#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace tembra;

TEST(Grim, savesWhereTembraReadsAndIsRecognised) {
    if (QStandardPaths::findExecutable(QStringLiteral("grim")).isEmpty())
        GTEST_SKIP() << "grim is not installed";
    const ToolHome home;
    const WaylandCompositor compositor;
    if (!compositor.isRunning())
        GTEST_SKIP() << "sway is not installed";
    const QString elsewhere = home.emptyFolder(QStringLiteral("elsewhere"));
    const QString pictures = home.emptyFolder(ToolHome::pictures);
    const QString ofTheSession = home.emptyFolder(QStringLiteral("für später, 6%"));
    for (const QString &folder : {pictures, ofTheSession}) {
        if (folder == ofTheSession)
            qputenv("GRIM_DEFAULT_DIR", folder.toUtf8());
        const QString generic = QStringLiteral("generic");
        EXPECT_EQ(home.preferences(generic)->location(), folder);
        EXPECT_EQ(takeCapture(QStringLiteral("grim"), {}, elsewhere), QString());
        const QJsonArray captures = home.scan(folder, generic)[u"captures"].toArray();
        ASSERT_EQ(captures.size(), 1) << folder.toStdString();
        EXPECT_TRUE(captures[0][u"complete"].toBool());
        EXPECT_EQ(captures[0][u"because"].toString(), QStringLiteral("tool"));
    }
}
