#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace tembra {

// What a banner says, and up to two things to do about it.
struct EditorBannerMessage {
    struct Action {
        QString title;
        std::function<void()> perform;
    };

    QString text;
    std::vector<Action> actions;
    bool isError = false;
};

} // namespace tembra
