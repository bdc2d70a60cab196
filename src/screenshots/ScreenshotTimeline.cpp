#include "screenshots/ScreenshotTimeline.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

// Where the days begin that part the sections.
struct DayStarts {
    Instant today;
    Instant yesterday;
    Instant recent;

    DayStarts(Instant now, const QTimeZone &zone) {
        const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(now.time_since_epoch());
        const QDate date = QDateTime::fromMSecsSinceEpoch(milliseconds.count(), zone).date();
        const auto startOf = [&zone](QDate day) {
            return Instant(std::chrono::milliseconds(day.startOfDay(zone).toMSecsSinceEpoch()));
        };
        today = startOf(date);
        yesterday = startOf(date.addDays(-1));
        recent = startOf(date.addDays(-6));
    }

    [[nodiscard]] ScreenshotSectionKind kind(Instant createdAt) const {
        if (createdAt >= today)
            return ScreenshotSectionKind::today;
        if (createdAt >= yesterday)
            return ScreenshotSectionKind::yesterday;
        return createdAt >= recent ? ScreenshotSectionKind::recent : ScreenshotSectionKind::older;
    }
};

} // namespace

bool ScreenshotTimeline::isShownBefore(const Shot &a, const Shot &b) {
    return a.createdAt != b.createdAt ? a.createdAt > b.createdAt : a.location > b.location;
}

std::vector<ScreenshotSection> ScreenshotTimeline::sections(const std::vector<Shot> &shots,
                                                            const QSet<QString> &pinnedPaths, Instant now,
                                                            const QTimeZone &zone) {
    using Kind = ScreenshotSectionKind;
    const DayStarts starts(now, zone);
    std::array<ScreenshotSection, 5> all{
        ScreenshotSection{Kind::pinned, {}}, ScreenshotSection{Kind::today, {}},
        ScreenshotSection{Kind::yesterday, {}}, ScreenshotSection{Kind::recent, {}},
        ScreenshotSection{Kind::older, {}}};
    for (const Shot &shot : shots) {
        const Kind kind = pinnedPaths.contains(shot.location) ? Kind::pinned : starts.kind(shot.createdAt);
        all[static_cast<std::size_t>(kind)].shots.push_back(shot);
    }
    std::vector<ScreenshotSection> sections;
    for (ScreenshotSection &section : all) {
        if (section.shots.empty())
            continue;
        std::ranges::sort(section.shots, isShownBefore);
        sections.push_back(std::move(section));
    }
    return sections;
}

} // namespace tembra
