#include "platform/linux/desktop/WaylandDataControlPasteboard.h"

#include "base/QtScheduler.h"
#include "platform/linux/Descriptor.h"
#include "support/EventLoop.h"
#include "support/Pictures.h"
#include "support/WaylandCompositor.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>

using namespace tembra;

namespace {

// Of more bytes than the pipes on the way hold.
const QSize large(2400, 1800);

class WaylandDataControlPasteboardTest : public testing::Test {
protected:
    void SetUp() override {
        if (!m_compositor.isRunning())
            GTEST_SKIP() << "sway is not installed or does not run here";
        m_pasteboard = WaylandDataControlPasteboard::open(m_scheduler);
        ASSERT_NE(m_pasteboard, nullptr);
    }

    // What the command writes, while the clipboard is ours to serve.
    [[nodiscard]] static QByteArray output(const QString &command) {
        QProcess shell;
        shell.start(QStringLiteral("sh"), {QStringLiteral("-c"), command});
        if (!eventually([&shell] { return shell.state() == QProcess::NotRunning; }))
            ADD_FAILURE() << qPrintable(command) << " does not end";
        return shell.readAllStandardOutput();
    }

    QtScheduler m_scheduler;
    WaylandCompositor m_compositor;
    std::unique_ptr<WaylandDataControlPasteboard> m_pasteboard;
};

} // namespace

TEST_F(WaylandDataControlPasteboardTest, otherProgramsGetTheFilesAndTheImage) {
    const QByteArray png = pictureBytes("png", large);
    ASSERT_GT(png.size(), 300'000);
    ASSERT_TRUE(m_pasteboard->writeObjects(
        {{QStringLiteral("/a b"), {}, {}}, {QStringLiteral("/ü.png"), QStringLiteral("public.png"), png}}));
    EXPECT_EQ(output(QStringLiteral("wl-paste --list-types")),
              "text/uri-list\nx-special/gnome-copied-files\nimage/png\nimage/tiff\n");
    EXPECT_EQ(output(QStringLiteral("wl-paste --no-newline --type text/uri-list")),
              "file:///a%20b\r\nfile:///%C3%BC.png\r\n");
    EXPECT_EQ(output(QStringLiteral("wl-paste --no-newline --type x-special/gnome-copied-files")),
              "copy\nfile:///a%20b\nfile:///%C3%BC.png");
    EXPECT_EQ(output(QStringLiteral("wl-paste --type image/png")), png);
    EXPECT_EQ(QImage::fromData(output(QStringLiteral("wl-paste --type image/tiff")), "tiff")
                  .convertToFormat(QImage::Format_RGB32),
              QImage::fromData(png));
}

TEST_F(WaylandDataControlPasteboardTest, everyChangeRaisesTheCount) {
    std::int64_t count = m_pasteboard->changeCount();
    EXPECT_EQ(m_pasteboard->changeCount(), count);
    const auto rises = [&] {
        const std::int64_t before = std::exchange(count, m_pasteboard->changeCount());
        return count > before;
    };
    ASSERT_TRUE(m_pasteboard->writeObjects({{QStringLiteral("/a"), {}, {}}}));
    EXPECT_TRUE(rises());
    EXPECT_EQ(output(QStringLiteral("wl-copy --type text/plain typed >/dev/null 2>&1")), "");
    EXPECT_TRUE(rises());
    EXPECT_EQ(output(QStringLiteral("wl-paste --no-newline")), "typed");
    EXPECT_FALSE(rises());
    ASSERT_TRUE(m_pasteboard->writeObjects({{QStringLiteral("/b"), {}, {}}}));
    ASSERT_TRUE(m_pasteboard->writeObjects({{QStringLiteral("/c"), {}, {}}}));
    EXPECT_TRUE(rises());
    EXPECT_EQ(output(QStringLiteral("wl-paste --no-newline --type text/uri-list")), "file:///c\r\n");
}

TEST_F(WaylandDataControlPasteboardTest, readersThatStopOrGoAwayHarmNobody) {
    const QByteArray png = pictureBytes("png", large);
    ASSERT_TRUE(m_pasteboard->writeObjects({{QStringLiteral("/a.png"), QStringLiteral("public.png"), png}}));
    QProcess stopped;
    stopped.start(
        QStringLiteral("sh"),
        {QStringLiteral("-c"), QStringLiteral("wl-paste --type image/png | (head -c 1; exec sleep 60)")});
    EXPECT_TRUE(eventually([&stopped] { return stopped.bytesAvailable() > 0; }));
    EXPECT_EQ(output(QStringLiteral("wl-paste --type image/png | head -c 4")), png.first(4));
    EXPECT_EQ(output(QStringLiteral("wl-paste --type image/png")), png);
    stopped.kill();
    stopped.waitForFinished();
}

TEST_F(WaylandDataControlPasteboardTest, refusesWhenTheCompositorIsGone) {
    const std::int64_t count = m_pasteboard->changeCount();
    m_compositor.end();
    EXPECT_EQ(m_pasteboard->changeCount(), count);
    const auto result = m_pasteboard->writeObjects({{QStringLiteral("/a"), {}, {}}});
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, Pasteboard::refused);
}

TEST(WaylandWithoutDataControl, thereIsNoSuchPasteboard) {
    QtScheduler scheduler;
    qunsetenv("WAYLAND_DISPLAY");
    EXPECT_EQ(WaylandDataControlPasteboard::open(scheduler), nullptr);
    const QTemporaryDir folder;
    const QString socket = folder.filePath(QStringLiteral("socket"));
    qputenv("WAYLAND_DISPLAY", QFile::encodeName(socket));
    EXPECT_EQ(WaylandDataControlPasteboard::open(scheduler), nullptr);
    // A compositor that never answers.
    const Descriptor silent(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{AF_UNIX, {}};
    std::ranges::copy(QFile::encodeName(socket), address.sun_path);
    ASSERT_EQ(::bind(silent.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(silent.number(), 1), 0);
    EXPECT_EQ(WaylandDataControlPasteboard::open(scheduler), nullptr);
    qunsetenv("WAYLAND_DISPLAY");
}
