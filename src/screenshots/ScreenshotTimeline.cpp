#include "screenshots/ScreenshotTimeline.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

QDateTime dateTime(Instant instant, const QTimeZone &zone) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(instant.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(milliseconds.count(), zone);
}

// The first moment of a day. A day that the calendar leaves out begins with the next.
Instant startOf(QDate day, const QTimeZone &zone) {
    QDateTime found = day.startOfDay(zone);
    if (!found.isValid())
        found = day.addDays(1).startOfDay(zone);
    const Instant start{std::chrono::milliseconds(found.toMSecsSinceEpoch())};
    // Where the clock is set back over midnight the day begins twice, and what was found is the second time.
    constexpr auto recently = std::chrono::hours(3);
    const auto offset = [&zone](Instant instant) {
        return std::chrono::seconds(zone.offsetFromUtc(dateTime(instant, QTimeZone::utc())));
    };
    const Instant first = start - (offset(start - recently) - offset(start));
    return first < start && dateTime(first, zone).date() == found.date() ? first : start;
}

// Where the days begin that part the sections.
struct DayStarts {
    Instant today;
    Instant yesterday;
    Instant recent;

    DayStarts(Instant now, const QTimeZone &zone) {
        const QDate date = dateTime(now, zone).date();
        today = startOf(date, zone);
        yesterday = startOf(date.addDays(-1), zone);
        recent = startOf(date.addDays(-6), zone);
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
    // Counted first: with many thousands, growing would cost more than all the rest.
    std::vector<std::size_t> places;
    places.reserve(shots.size());
    std::array<std::size_t, 5> counts{};
    for (const Shot &shot : shots) {
        const Kind kind = pinnedPaths.contains(shot.location) ? Kind::pinned : starts.kind(shot.createdAt);
        places.push_back(static_cast<std::size_t>(kind));
        ++counts[places.back()];
    }
    for (std::size_t place = 0; place < all.size(); ++place)
        all[place].shots.reserve(counts[place]);
    for (std::size_t i = 0; i < shots.size(); ++i)
        all[places[i]].shots.push_back(shots[i]);
    std::vector<ScreenshotSection> sections;
    for (ScreenshotSection &section : all) {
        if (section.shots.empty())
            continue;
        // A scan's shots come in this order already.
        if (!std::ranges::is_sorted(section.shots, isShownBefore))
            std::ranges::sort(section.shots, isShownBefore);
        sections.push_back(std::move(section));
    }
    return sections;
}

} // namespace tembra
