#include "SettingsFixture.h"
#include "settings/AutoCleanGrace.h"

using namespace std::chrono_literals;
using namespace tembra;

namespace {

constexpr Instant now{std::chrono::seconds(1'700'000'000)};

class AppSettingsPins : public SettingsFixture {
protected:
    [[nodiscard]] QString makeFile(const char *name) const { return writeFile(path(name)); }
    [[nodiscard]] QList<QByteArray> stored() const {
        return m_defaults.dataArray(settingsKey::pinnedScreenshotBookmarks).value_or(QList<QByteArray>());
    }

    const QString m_a = makeFile("a.png");
    const QString m_b = makeFile("b.png");
};

class AppSettingsGrace : public AppSettingsPins {
protected:
    [[nodiscard]] QByteArray list() const {
        return m_defaults.data(settingsKey::autoCleanRestoredFiles).value_or(QByteArray());
    }
};

} // namespace

TEST_F(AppSettingsPins, pinsAreKeptUntilTheyAreTakenOff) {
    start();
    ASSERT_TRUE(m_settings->setScreenshotsPinned({m_a, m_b, m_a}, true));
    ASSERT_TRUE(m_settings->setScreenshotsPinned({m_b}, true));
    EXPECT_EQ(m_updates.size(), 1U);
    EXPECT_EQ(stored(), (QList<QByteArray>{bookmark(m_a), bookmark(m_b)}));
    start();
    EXPECT_EQ(m_settings->pinnedScreenshotPaths(), (QSet<QString>{m_a, m_b}));

    ASSERT_TRUE(m_settings->setScreenshotsPinned({m_a, path("never pinned")}, false));
    ASSERT_TRUE(m_settings->setScreenshotsPinned({m_a}, false));
    EXPECT_EQ(m_updates.size(), 1U);
    EXPECT_EQ(stored(), QList<QByteArray>{bookmark(m_b)});
    EXPECT_EQ(m_settings->pinnedScreenshotPaths(), QSet<QString>{m_b});
}

TEST_F(AppSettingsPins, oneThatCannotBePinnedLeavesAllAsItWas) {
    start();
    const auto result = m_settings->setScreenshotsPinned({m_a, path("gone.png")}, true);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, ENOENT);
    EXPECT_TRUE(m_settings->pinnedScreenshotPaths().isEmpty());
    EXPECT_FALSE(m_defaults.contains(settingsKey::pinnedScreenshotBookmarks));
    EXPECT_TRUE(m_updates.empty());
}

TEST_F(AppSettingsPins, oneWhoseDiskIsAbsentStaysAndIsFoundLater) {
    const QByteArray malformed("not a bookmark");
    const QList<QByteArray> all{bookmark(m_a), malformed, bookmark(m_b)};
    m_defaults.setDataArray(settingsKey::pinnedScreenshotBookmarks, all);
    m_absent = {all[0]};
    start();
    EXPECT_EQ(m_settings->pinnedScreenshotPaths(), QSet<QString>{m_b});
    EXPECT_EQ(m_settings->unavailablePinCount(), 1);
    EXPECT_EQ(m_settings->pinnedScreenshotFiles(),
              (QSet{*m_files.facts(m_a)->resource, *m_files.facts(m_b)->resource}));
    m_settings->refreshUnresolvedPins();
    EXPECT_TRUE(m_updates.empty());
    EXPECT_EQ(stored(), all);

    ASSERT_TRUE(m_settings->setScreenshotsPinned({m_b}, false));
    EXPECT_EQ(stored(), (QList<QByteArray>{all[0], malformed}));

    m_absent.clear();
    m_updates.clear();
    m_settings->refreshUnresolvedPins();
    m_settings->refreshUnresolvedPins();
    EXPECT_EQ(m_updates.size(), 1U);
    EXPECT_EQ(m_settings->pinnedScreenshotPaths(), QSet<QString>{m_a});
    EXPECT_EQ(m_settings->unavailablePinCount(), 0);
    EXPECT_EQ(m_settings->pinnedScreenshots()[0].resolved->reference, m_files.facts(m_a)->resource);
}

TEST_F(AppSettingsPins, aPinFollowsItsFile) {
    start();
    ASSERT_TRUE(m_settings->setScreenshotsPinned({m_a, m_b}, true));
    m_updates.clear();
    const QString moved = path("moved.png");
    EXPECT_FALSE(m_settings->rebindScreenshotPin(m_a, moved));
    ASSERT_TRUE(m_settings->rebindScreenshotPin(path("never pinned"), m_b));
    EXPECT_EQ(m_settings->pinnedScreenshotPaths(), (QSet<QString>{m_a, m_b}));
    EXPECT_TRUE(m_updates.empty());

    ASSERT_TRUE(QFile::rename(m_a, moved));
    ASSERT_TRUE(m_settings->rebindScreenshotPin(m_a, moved));
    EXPECT_EQ(m_settings->pinnedScreenshotPaths(), (QSet<QString>{moved, m_b}));
    EXPECT_EQ(stored(), (QList<QByteArray>{bookmark(moved), bookmark(m_b)}));
    EXPECT_EQ(m_updates.size(), 1U);
}

TEST_F(AppSettingsGrace, aRestoredScreenshotIsSparedForAWhileAfterItsLastReturn) {
    start();
    m_settings->protectRestoredScreenshots({m_a, m_b}, now);
    m_settings->protectRestoredScreenshots({m_b}, now + 1h);
    start();
    const Instant end = now + AutoCleanGrace::period;
    EXPECT_EQ(m_settings->autoCleanGraceDates(end - 1ms),
              (QHash<QString, Instant>{{m_a, end}, {m_b, end + 1h}}));
    EXPECT_EQ(m_settings->autoCleanGraceDates(end), (QHash<QString, Instant>{{m_b, end + 1h}}));
    // What is over is gone from the store too, so that a clock set back does not bring it up again.
    EXPECT_EQ(m_settings->autoCleanGraceDates(now), (QHash<QString, Instant>{{m_b, end + 1h}}));
    EXPECT_FALSE(list().contains("a.png"));
}

TEST_F(AppSettingsGrace, isKnownByTheFileTooSoThatItHoldsAfterARenameAndWithoutThoseThatAreGone) {
    start();
    const FileResource file = *m_files.facts(m_a)->resource;
    m_settings->protectRestoredScreenshots({path("gone.png"), m_a}, now);
    ASSERT_TRUE(QFile::rename(m_a, path("renamed.png")));
    EXPECT_EQ(m_settings->autoCleanGraceFiles(now),
              (QHash<FileResource, Instant>{{file, now + AutoCleanGrace::period}}));
}

TEST_F(AppSettingsGrace, aListThatCannotBeDecodedIsEmptyAndIsReplacedByTheNext) {
    const QByteArray good(R"({"bookmark":"YQ==","path":"/p","restoredAt":"2023-11-14T22:13:20.000Z"})");
    m_defaults.setData(settingsKey::autoCleanRestoredFiles, "[" + good + "]");
    start();
    EXPECT_EQ(m_settings->autoCleanGraceDates(now).keys(), QStringList{QStringLiteral("/p")});
    for (const char *bad :
         {"", "null", "{}", "[1]", R"([{"bookmark":"YQ==","path":"/p"}])",
          R"([{"bookmark":"YQ==","path":7,"restoredAt":"2023-11-14T22:13:20.000Z"}])",
          R"([{"bookmark":"?","path":"/p","restoredAt":"2023-11-14T22:13:20.000Z"}])",
          R"([{"bookmark":"YQ==","path":"/p","restoredAt":"yesterday"}])",
          R"([{"bookmark":"YQ==","path":"/p","restoredAt":"9999-12-31T23:59:59.000Z"}])",
          R"([{"bookmark":"YQ==","path":"/p","restoredAt":"2262-04-11T12:00:00.000Z"}])",
          R"([{"bookmark":"YQ==","path":"/p","restoredAt":"0001-01-01T00:00:00.000Z"}])", "[{\"bookm"}) {
        m_defaults.setData(settingsKey::autoCleanRestoredFiles, bad);
        EXPECT_TRUE(m_settings->autoCleanGraceDates(now).isEmpty()) << bad;
        m_defaults.setData(settingsKey::autoCleanRestoredFiles, "[" + good + "," + QByteArray(bad).mid(1));
        EXPECT_TRUE(m_settings->autoCleanGraceDates(now).isEmpty()) << bad;
        m_settings->protectRestoredScreenshots({m_a}, now);
        EXPECT_EQ(m_settings->autoCleanGraceDates(now).keys(), QStringList{m_a}) << bad;
    }
}
