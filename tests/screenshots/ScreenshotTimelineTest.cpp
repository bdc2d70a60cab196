#include "screenshots/ScreenshotTimeline.h"

#include <QDateTime>

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

using Kind = ScreenshotSectionKind;

Instant utc(const char *isoDate) {
    const QDateTime date = QDateTime::fromString(QString::fromUtf8(isoDate), Qt::ISODate);
    EXPECT_TRUE(date.isValid()) << isoDate;
    return Instant(std::chrono::milliseconds(date.toMSecsSinceEpoch()));
}

Shot shot(const QString &location, Instant createdAt) {
    return {.location = location,
            .identity = {ScreenshotFileIdentity::Path{location, createdAt}},
            .stamp = {},
            .createdAt = createdAt};
}

Kind kindOf(Instant createdAt, Instant now, const char *zone) {
    const auto sections =
        ScreenshotTimeline::sections({shot(QStringLiteral("/a"), createdAt)}, {}, now, QTimeZone(zone));
    EXPECT_EQ(sections.size(), 1U);
    return sections.empty() ? Kind::pinned : sections[0].kind;
}

} // namespace

TEST(ScreenshotTimeline, daysAreThoseOfTheCalendarInTheZone) {
    struct Case {
        const char *name;
        const char *zone;
        const char *now;
        const char *midnight;
        Kind before;
        Kind from;
    };
    const Case cases[]{
        {"today", "UTC", "2024-05-17T12:00:00Z", "2024-05-17T00:00:00Z", Kind::yesterday, Kind::today},
        {"yesterday", "UTC", "2024-05-17T12:00:00Z", "2024-05-16T00:00:00Z", Kind::recent, Kind::yesterday},
        {"recent", "UTC", "2024-05-17T12:00:00Z", "2024-05-11T00:00:00Z", Kind::older, Kind::recent},
        {"the day's first moment", "UTC", "2024-05-17T00:00:00Z", "2024-05-17T00:00:00Z", Kind::yesterday,
         Kind::today},
        {"the day's last moment", "UTC", "2024-05-17T23:59:59Z", "2024-05-17T00:00:00Z", Kind::yesterday,
         Kind::today},
        {"over a new year", "UTC", "2024-01-01T12:00:00Z", "2023-12-31T00:00:00Z", Kind::recent,
         Kind::yesterday},
        {"far east", "Pacific/Auckland", "2024-05-17T13:00:00Z", "2024-05-17T12:00:00Z", Kind::yesterday,
         Kind::today},
        {"half hours", "Asia/Kolkata", "2024-05-17T12:00:00Z", "2024-05-16T18:30:00Z", Kind::yesterday,
         Kind::today},
        {"a day of 23 hours", "Europe/Berlin", "2024-03-31T12:00:00Z", "2024-03-30T23:00:00Z",
         Kind::yesterday, Kind::today},
        {"after a day of 23 hours", "Europe/Berlin", "2024-04-01T12:00:00Z", "2024-03-30T23:00:00Z",
         Kind::recent, Kind::yesterday},
        {"after a day of 25 hours", "Europe/Berlin", "2024-10-28T12:00:00Z", "2024-10-26T22:00:00Z",
         Kind::recent, Kind::yesterday},
        {"a week with a day of 25 hours", "Europe/Berlin", "2024-10-30T12:00:00Z", "2024-10-23T22:00:00Z",
         Kind::older, Kind::recent},
        {"a day without midnight", "America/Sao_Paulo", "2018-11-04T12:00:00Z", "2018-11-04T03:00:00Z",
         Kind::yesterday, Kind::today},
        {"a day that begins twice", "America/Havana", "2022-11-06T15:00:00Z", "2022-11-06T04:00:00Z",
         Kind::yesterday, Kind::today},
        {"a day that the calendar leaves out", "Pacific/Apia", "2011-12-31T00:00:00Z", "2011-12-30T10:00:00Z",
         Kind::recent, Kind::today},
    };
    for (const Case &c : cases) {
        const Instant midnight = utc(c.midnight);
        EXPECT_EQ(kindOf(midnight - 1ns, utc(c.now), c.zone), c.before) << c.name;
        EXPECT_EQ(kindOf(midnight, utc(c.now), c.zone), c.from) << c.name;
    }
    EXPECT_EQ(kindOf(utc("2030-01-01T00:00:00Z"), utc("2024-05-17T12:00:00Z"), "UTC"), Kind::today);
    EXPECT_EQ(kindOf(Instant::min(), utc("2024-05-17T12:00:00Z"), "UTC"), Kind::older);
}

TEST(ScreenshotTimeline, sectionsComeInOrderNewestFirstAndNoneIsEmpty) {
    const Instant now = utc("2024-05-17T12:00:00Z");
    const Shot today = shot(QStringLiteral("/today"), now - 1h);
    const Shot tie = shot(QStringLiteral("/tie"), now - 1h);
    const Shot newest = shot(QStringLiteral("/a newest"), now - 1h + 1ns);
    const Shot older = shot(QStringLiteral("/older"), now - 24h * 30);
    const Shot pinnedOld = shot(QStringLiteral("/pinned old"), now - 24h * 400);
    const Shot pinnedNew = shot(QStringLiteral("/pinned new"), now);
    const QSet<QString> pins{pinnedOld.location, pinnedNew.location, QStringLiteral("/not shown")};
    const std::vector<ScreenshotSection> expected{
        {Kind::pinned, {pinnedNew, pinnedOld}}, {Kind::today, {newest, today, tie}}, {Kind::older, {older}}};
    std::vector<Shot> shots{tie, older, today, pinnedOld, newest, pinnedNew};
    EXPECT_TRUE(ScreenshotTimeline::sections(shots, pins, now, QTimeZone::utc()) == expected);
    std::ranges::reverse(shots);
    EXPECT_TRUE(ScreenshotTimeline::sections(shots, pins, now, QTimeZone::utc()) == expected);
    EXPECT_TRUE(ScreenshotTimeline::sections({}, pins, now, QTimeZone::utc()).empty());
}

TEST(ScreenshotTimeline, sectionsAreCalled) {
    QStringList titles;
    for (const Kind kind : {Kind::pinned, Kind::today, Kind::yesterday, Kind::recent, Kind::older})
        titles.append(title(kind));
    EXPECT_EQ(titles.join(u'|'), QStringLiteral("Pinned|Today|Yesterday|Last 7 Days|Older"));
}
