#include "session/ScreenshotUndoManager.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

using Phase = ScreenshotUndoManager::Phase;

// Steps that register their reverse as the session's do, those with capital letters only later.
class ScreenshotUndoManagerTest : public testing::Test {
protected:
    void registerStep(Phase phase, const QString &name) {
        manager.registerAction(phase, name, [this, name](Phase next) {
            if (!name.at(0).isUpper())
                return registerStep(next, name);
            late.push_back([this, name, next] { registerStep(next, name); });
        });
    }
    [[nodiscard]] QString steps() const {
        return manager.undoNames().join(QString()) + u'|' + manager.redoNames().join(QString());
    }

    ScreenshotUndoManager manager;
    std::vector<std::function<void()>> late;
};

} // namespace

TEST_F(ScreenshotUndoManagerTest, stepsGoToAndFroNewestFirst) {
    EXPECT_FALSE(manager.undo() || manager.redo());
    for (const char name : {'a', 'b', 'C'})
        registerStep(Phase::doing, QString(QLatin1Char(name)));
    EXPECT_EQ(steps(), QStringLiteral("Cba|"));
    EXPECT_TRUE(manager.undo());
    EXPECT_EQ(steps(), QStringLiteral("ba|")) << "what is not yet done can be neither undone nor redone";
    late.back()();
    EXPECT_EQ(steps(), QStringLiteral("ba|C"));
    EXPECT_TRUE(manager.undo());
    EXPECT_EQ(steps(), QStringLiteral("a|bC"));
    EXPECT_TRUE(manager.redo());
    EXPECT_EQ(steps(), QStringLiteral("ba|C")) << "a redo leaves the other redos";
    registerStep(Phase::doing, QStringLiteral("d"));
    EXPECT_EQ(steps(), QStringLiteral("dba|"));
}
