#include "platform/linux/desktop/QtPasteboard.h"

#include "platform/linux/desktop/X11Connection.h"
#include "support/EventLoop.h"

#include <QBuffer>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QThread>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// The clipboard of the test's X server, which xclip shares with us.
class QtPasteboardTest : public testing::Test {
protected:
    static QProcess &startXclip(QProcess &process, const QStringList &words) {
        process.start(QStringLiteral("xclip"),
                      QStringList{QStringLiteral("-selection"), QStringLiteral("clipboard")} + words);
        return process;
    }
    // What another program pastes, while we answer it.
    static QByteArray pasted(const char *type) {
        QProcess xclip;
        startXclip(xclip, {QStringLiteral("-o"), QStringLiteral("-t"), QString::fromLatin1(type)});
        EXPECT_TRUE(eventually([&] { return xclip.state() == QProcess::NotRunning; }));
        return xclip.readAllStandardOutput();
    }
    // Another program copies; whether the count grows although no event of ours is handled meanwhile.
    bool isToldOfCopying(const QByteArray &text) {
        const auto before = pasteboard.changeCount();
        QProcess xclip;
        startXclip(xclip, {QStringLiteral("-i")});
        xclip.write(text);
        xclip.closeWriteChannel();
        EXPECT_TRUE(xclip.waitForFinished());
        // The clipboard is taken by a process of its own, which may not have come to it yet.
        const QDeadlineTimer deadline(20'000);
        while (pasteboard.changeCount() == before && !deadline.hasExpired())
            QThread::yieldCurrentThread();
        return pasteboard.changeCount() > before;
    }
    static QByteArray pngBytes(const QColor &color) {
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(color);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return buffer.data();
    }

    QtPasteboard pasteboard{X11Connection::open()};
};

} // namespace

TEST_F(QtPasteboardTest, otherProgramsGetAllFilesAndTheLastImageAsItIs) {
    const QByteArray red = pngBytes(Qt::red);
    const QByteArray blue = pngBytes(Qt::blue);
    ASSERT_TRUE(pasteboard.writeObjects({{QStringLiteral("/s/a b.png"), QStringLiteral("public.png"), red},
                                         {QStringLiteral("/s/c.png"), QStringLiteral("public.png"), blue}}));
    EXPECT_EQ(pasted("image/png"), blue);
    EXPECT_EQ(pasted("text/uri-list"), "file:///s/a%20b.png\r\nfile:///s/c.png\r\n");
    EXPECT_EQ(pasted("x-special/gnome-copied-files"), "copy\nfile:///s/a%20b.png\nfile:///s/c.png");
    EXPECT_EQ(QImage::fromData(pasted("image/tiff")).pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(QtPasteboardTest, tellsOfAChangeBeforeAnyEventOfItIsHandled) {
    const auto before = pasteboard.changeCount();
    EXPECT_EQ(pasteboard.changeCount(), before);
    EXPECT_TRUE(isToldOfCopying("one"));
    EXPECT_TRUE(isToldOfCopying("two")) << "by the same program again";

    const auto theirs = pasteboard.changeCount();
    ASSERT_TRUE(pasteboard.writeObjects({{QStringLiteral("/s/a.png"), {}, {}}}));
    EXPECT_GT(pasteboard.changeCount(), theirs) << "our own counts too";
    const auto ours = pasteboard.changeCount();
    QCoreApplication::processEvents();
    EXPECT_EQ(pasteboard.changeCount(), ours);
}
