#include "support/Files.h"
#include "support/ScratchMount.h"
#include "tray/Tray.h"

#include <gtest/gtest.h>

#include <sys/mount.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

// Each test brings its tray after the mount: what is mounted is seen by namespace.
class ClipboardVolumesTest : public testing::TestWithParam<const char *> {
protected:
    void SetUp() override {
        if (!m_disk.problem().isEmpty())
            GTEST_SKIP() << qPrintable(m_disk.problem());
    }
    [[nodiscard]] QString path(const char *name) const { return m_disk.path() + QString::fromUtf8(name); }

    ScratchMount m_disk{QString::fromUtf8(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(On, ClipboardVolumesTest, testing::Values("ext4", "vfat"),
                         [](const auto &type) { return std::string(type.param); });

QString greyed(const QString &path) {
    return u'-' + path;
}

} // namespace

TEST_P(ClipboardVolumesTest, entriesOfAnAbsentVolumeGreyAndComeBackWithIt) {
    Tray tray;
    const QString file = writeFile(path("/file"));
    tray.add({file, m_disk.path()});
    tray.store.startMonitoring();
    ASSERT_TRUE(m_disk.unmount()) << "the tray keeps it from being unmounted";
    tray.reconcile();
    EXPECT_EQ(tray.shown(), (QStringList{greyed(file), greyed(m_disk.path())}));
    // Something of the same name where the volume was is not the file.
    writeFile(file);
    tray.reconcile();
    EXPECT_EQ(tray.shown().constFirst(), greyed(file));

    ASSERT_TRUE(m_disk.mount());
    tray.workspace.raise(Workspace::Event::didMount);
    tray.scheduler.advance(150ms);
    EXPECT_EQ(tray.shown(), (QStringList{file, m_disk.path()}));
    // And is watched again.
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_TRUE(eventually([&] {
        tray.scheduler.advance(150ms);
        tray.settle();
        return tray.shown() == QStringList{m_disk.path()};
    }));
}

TEST_P(ClipboardVolumesTest, aFileDeletedWhileTheVolumeWasAwayGoesWhenItIsBack) {
    Tray tray;
    const QString file = writeFile(path("/file"));
    tray.add({file});
    ASSERT_TRUE(m_disk.unmount());
    tray.reconcile();
    ASSERT_TRUE(m_disk.mount());
    ASSERT_TRUE(QFile::remove(file));
    tray.reconcile();
    EXPECT_TRUE(tray.shown().isEmpty());
}

TEST_P(ClipboardVolumesTest, aVolumeMountedSomewhereElseIsTheSame) {
    Tray tray;
    const QString file = writeFile(path("/file"));
    tray.add({file});
    const QString elsewhere = tray.path("elsewhere");
    ASSERT_TRUE(QDir().mkdir(elsewhere));
    ASSERT_EQ(::mount(qPrintable(m_disk.path()), qPrintable(elsewhere), nullptr, MS_MOVE, nullptr), 0);
    tray.reconcile();
    EXPECT_EQ(tray.shown(), QStringList{elsewhere + QStringLiteral("/file")});
    ASSERT_EQ(::mount(qPrintable(elsewhere), qPrintable(m_disk.path()), nullptr, MS_MOVE, nullptr), 0);
    tray.reconcile();
    EXPECT_EQ(tray.shown(), QStringList{file});
}

TEST_P(ClipboardVolumesTest, aFileThatALinkLedToIsFoundWhereItsVolumeIsMountedThen) {
    Tray tray;
    writeFile(path("/file"));
    // Shorter than the mount point.
    ASSERT_TRUE(QFile::link(m_disk.path(), tray.path("l")));
    tray.add({tray.path("l/file")});
    const QString elsewhere = tray.path("elsewhere");
    ASSERT_TRUE(QDir().mkdir(elsewhere));
    ASSERT_EQ(::mount(qPrintable(m_disk.path()), qPrintable(elsewhere), nullptr, MS_MOVE, nullptr), 0);
    tray.reconcile();
    EXPECT_EQ(tray.shown(), QStringList{elsewhere + QStringLiteral("/file")});
    ASSERT_EQ(::mount(qPrintable(elsewhere), qPrintable(m_disk.path()), nullptr, MS_MOVE, nullptr), 0);
}

TEST(ClipboardBindMount, whatIsSeenThroughItGreysWithItThoughItsVolumeStays) {
    const ScratchMount disk(QStringLiteral("tmpfs"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    Tray tray;
    for (const char *folder : {"source", "bound"})
        ASSERT_TRUE(QDir().mkdir(tray.path(folder)));
    const auto bind = [&] {
        return ::mount(qPrintable(tray.path("source")), qPrintable(tray.path("bound")), nullptr, MS_BIND,
                       nullptr);
    };
    writeFile(tray.path("source/file"));
    writeFile(tray.path("source/other"));
    ASSERT_EQ(bind(), 0);
    const QString file = tray.path("bound/file");
    tray.add({file, tray.path("bound/other")});
    ASSERT_EQ(::umount(qPrintable(tray.path("bound"))), 0) << "the tray keeps it from being unmounted";
    writeFile(file);
    tray.reconcile();
    EXPECT_EQ(tray.shown(), (QStringList{greyed(file), greyed(tray.path("bound/other"))}));
    ASSERT_TRUE(QFile::remove(tray.path("source/other")));
    ASSERT_EQ(bind(), 0);
    tray.reconcile();
    EXPECT_EQ(tray.shown(), QStringList{file});
    ASSERT_EQ(::umount(qPrintable(tray.path("bound"))), 0);
}

TEST(ClipboardRemovableVolume, aFileIsFoundAnywhereOnItWithoutBeingHeld) {
    const ScratchMount disk(QStringLiteral("ext4"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    Tray tray;
    const QString far = disk.path() + QStringLiteral("/1/2/3/4");
    ASSERT_TRUE(QDir().mkpath(far) && QDir().mkpath(disk.path() + QStringLiteral("/.Trash-0/files")));
    const QString file = writeFile(disk.path() + QStringLiteral("/file"));
    tray.add({file});
    ASSERT_FALSE(tray.store.entries().front().reference);
    ASSERT_TRUE(QDir().rename(file, far + QStringLiteral("/renamed")));
    tray.store.reconcileFiles();
    EXPECT_EQ(tray.shown(), QStringList{greyed(file)}) << "as long as it is looked for";
    tray.settle();
    EXPECT_EQ(tray.shown(), QStringList{far + QStringLiteral("/renamed")});
    ASSERT_TRUE(QDir().rename(far + QStringLiteral("/renamed"),
                              disk.path() + QStringLiteral("/.Trash-0/files/renamed")));
    tray.reconcile();
    EXPECT_TRUE(tray.shown().isEmpty());
}
