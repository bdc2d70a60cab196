#pragma once

#include "base/Generation.h"
#include "base/Result.h"
#include "settings/ScreenshotAutoCleanPeriod.h"

#include <QString>

#include <functional>
#include <optional>

namespace tembra {

class AppSettings;

// The user's wish for another period of auto-clean: what it would move is counted first, and asked about. To
// switch it off takes no question. Main thread.
class AutoCleanChange {
public:
    struct Question {
        QString title;
        QString text;
        // Of the button that agrees.
        QString action;
    };
    struct Actions {
        // How many files the period would move now.
        std::function<void(ScreenshotAutoCleanPeriod, std::function<void(Result<int>)>)> preview;
        // Puts the period into force: what is too old moves at once.
        std::function<void(ScreenshotAutoCleanPeriod)> enable;
        std::function<void(const Question &, std::function<void(bool agrees)> decide)> ask;
    };

    AutoCleanChange(AppSettings &settings, Actions actions);

    // The latest wish counts.
    void request(ScreenshotAutoCleanPeriod period);

    // The wish was granted or given up.
    std::function<void()> onSettled;
    std::function<void(const QString &title, const QString &message)> onFailed;

private:
    // What is asked about holds for one folder, and for what was set when it was asked.
    struct Request {
        ScreenshotAutoCleanPeriod period;
        ScreenshotAutoCleanPeriod current;
        std::optional<QString> folder;
        Generation::Ticket ticket;
    };

    [[nodiscard]] bool isUpToDate(const Request &request) const;
    void counted(const Result<int> &count, const Request &request);
    void decide(const Request &request, bool agrees);
    [[nodiscard]] Question question(int count) const;

    AppSettings &m_settings;
    const Actions m_actions;
    Generation m_requests;
};

} // namespace tembra
