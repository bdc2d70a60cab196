#include "platform/linux/desktop/DesktopFilePromises.h"

#include "BusService.h"
#include "DirectSaveSource.h"
#include "platform/linux/desktop/X11Connection.h"
#include "platform/linux/desktop/X11DirectSave.h"
#include "support/EventLoop.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

#include <optional>

using namespace tembra;

namespace {

// A window that takes promised files into a folder.
class Receiver final : public QWidget {
public:
    Receiver() {
        setAcceptDrops(true);
        setGeometry(100, 100, 300, 200);
        show();
        EXPECT_TRUE(eventually([this] { return isVisible() && windowHandle()->isExposed(); }));
    }

    const QTemporaryDir folder;
    DesktopFilePromises promises{X11Connection::open()};
    std::optional<Result<FilePromises::Delivery>> delivery;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override {
        if (FilePromises::areIn(*event->mimeData()))
            event->acceptProposedAction();
    }
    void dropEvent(QDropEvent *event) override {
        promises.receive(*event->mimeData(), folder.path(),
                         [this](const Result<FilePromises::Delivery> &result) { delivery = result; });
        event->acceptProposedAction();
    }
};

// What became of the drop.
std::optional<Result<FilePromises::Delivery>> drop(Receiver &receiver, const DirectSaveSource::Offer &offer,
                                                   QByteArray *property = nullptr) {
    const DirectSaveSource source(offer, static_cast<xcb_window_t>(receiver.winId()),
                                  receiver.mapToGlobal(QPoint(50, 50)));
    EXPECT_TRUE(eventually([&] { return source.isFinished(); }));
    if (property)
        *property = source.property();
    return receiver.delivery;
}

} // namespace

TEST(DesktopFilePromisesTest, aProgramWritesThePromisedFileIntoTheFolder) {
    Receiver receiver;
    const auto delivery = drop(receiver, {.name = "ä b%.txt", .answer = 'S', .content = "saved"});
    ASSERT_TRUE(delivery && *delivery);
    ASSERT_EQ((*delivery)->paths, QStringList{receiver.folder.filePath(QStringLiteral("ä b%.txt"))});
    QFile file((*delivery)->paths.constFirst());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "saved");
}

TEST(DesktopFilePromisesTest, aProgramThatCannotWriteThereGivesTheBytesOrNothing) {
    Receiver receiver;
    const auto given = drop(receiver, {.name = "/etc/../x", .answer = 'F', .content = "bytes"});
    ASSERT_TRUE(given && *given);
    EXPECT_TRUE((*given)->paths.isEmpty());
    EXPECT_EQ((*given)->name, QStringLiteral("x"));
    EXPECT_EQ((*given)->content, "bytes");

    QByteArray property = "untouched";
    const auto refused = drop(receiver, {.name = "x", .answer = 'E'}, &property);
    ASSERT_TRUE(refused);
    EXPECT_FALSE(*refused);
    EXPECT_EQ(property, "") << "the source is told that nothing came of it";
}

TEST(DesktopFilePromisesTest, aProposedNameIsOneOfAFileInTheFolder) {
    for (const auto &[proposed, name] : std::initializer_list<std::pair<QByteArray, QByteArray>>{
             {"a.txt", "a.txt"},
             {"../../a", "a"},
             {"/etc/passwd", "passwd"},
             {"..", "File"},
             {"", "File"},
             {"a/", "File"},
             {QByteArray("a\0b", 3), "a"},
             {QByteArray(300, 'x'), QByteArray(255, 'x')}})
        EXPECT_EQ(safeFileName(proposed), name) << proposed.constData();
}

TEST(DesktopFilePromisesTest, thePortalHandsOverFilesForTheKeyInTheDrop) {
    BusService portal(QStringLiteral("org.freedesktop.portal.Documents"),
                      QStringLiteral("/org/freedesktop/portal/documents"));
    const QStringList files{QStringLiteral("/run/user/1/doc/a/b.txt"), QStringLiteral("/home/c")};
    portal.answerFromNowOn(files);
    DesktopFilePromises promises(X11Connection::open());
    QMimeData pasteboard;
    pasteboard.setData(FilePromises::portalTransfer, QByteArray("the key\0", 8));
    std::optional<Result<FilePromises::Delivery>> delivery;
    const auto ask = [&] {
        delivery.reset();
        promises.receive(pasteboard, {}, [&](const auto &result) { delivery = result; });
        return eventually([&] { return delivery.has_value(); });
    };
    ASSERT_TRUE(ask() && *delivery);
    EXPECT_EQ((*delivery)->paths, files);
    const QDBusMessage call = portal.calls().constLast();
    EXPECT_EQ(call.interface(), QStringLiteral("org.freedesktop.portal.FileTransfer"));
    EXPECT_EQ(call.member(), QStringLiteral("RetrieveFiles"));
    EXPECT_EQ(call.signature(), QStringLiteral("sa{sv}"));
    EXPECT_EQ(call.arguments().constFirst(), QStringLiteral("the key"));

    portal.failFromNowOn();
    ASSERT_TRUE(ask());
    EXPECT_FALSE(*delivery);
}
