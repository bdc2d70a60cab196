#include "platform/CoordinatorFixture.h"
#include "support/LostCalls.h"

#include <unistd.h>

using namespace tembra;

namespace {

using LinuxFileCoordinatorWithoutExchange = CoordinatorFixture;

} // namespace

TEST_F(LinuxFileCoordinatorWithoutExchange, stillReplacesOnlyWhatIsExpected) {
    const auto isRight = [this] {
        const auto write = [this](const char *content) {
            return [this, content] { writeFile(m_shot, content); };
        };
        return loseNewerCalls() && save() && contentOf("shot.png") == "new" &&
               codeOf(save()) == FileCoordinator::changed && contentOf("shot.png") == "new" &&
               (write("old")(), codeOf(saveWhile({write("theirs")})) == FileCoordinator::changed) &&
               contentOf("shot.png") == "theirs" && names() == m_onlyShot;
    };
    EXPECT_EXIT(::_exit(isRight() ? 0 : 1), testing::ExitedWithCode(0), "");
}
