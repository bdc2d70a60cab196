#include "platform/linux/desktop/LinuxWorkspace.h"

#include "BusService.h"
#include "ForeignProgram.h"
#include "support/EventLoop.h"
#include "support/Files.h"
#include "support/ScratchMount.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QTemporaryDir>
#include <QUrl>

#include <gmock/gmock.h>

#include <set>

using namespace tembra;
using testing::Contains;
using testing::ElementsAre;

namespace {

using Event = Workspace::Event;

class LinuxWorkspaceTest : public testing::Test {
protected:
    // Others are left out: the machine below may mount a disk at any time.
    [[nodiscard]] std::unique_ptr<Workspace::Observation> observe(const std::set<Event> &events) {
        return m_workspace.observe([this, events](Event event) {
            if (events.contains(event))
                m_events.push_back(event);
        });
    }

    [[nodiscard]] bool arrive(std::size_t count) {
        return eventually([this, count] { return m_events.size() >= count; });
    }

    LinuxWorkspace m_workspace{X11Connection::open()};
    ForeignProgram m_foreign;
    std::vector<Event> m_events;
};

// A program of ours in the place of the one that opens folders. Qt looks for it once.
class FolderOpener {
public:
    FolderOpener() {
        const QString program =
            writeFile(m_folder.filePath(QStringLiteral("xdg-open")),
                      QByteArrayLiteral("#!/bin/sh\nprintf %s \"$1\" > \"$TEMBRA_OPENED.new\"\n"
                                        "mv \"$TEMBRA_OPENED.new\" \"$TEMBRA_OPENED\"\n"));
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(m_folder.path()) + ":" + qgetenv("PATH"));
    }

private:
    const QTemporaryDir m_folder;
};

class LinuxWorkspaceFilesTest : public LinuxWorkspaceTest {
protected:
    LinuxWorkspaceFilesTest() {
        static const FolderOpener opener;
        qputenv("TEMBRA_OPENED", QFile::encodeName(opened()));
    }

    [[nodiscard]] QString opened() const { return m_folder.filePath(QStringLiteral("opened")); }
    [[nodiscard]] bool opensFolder() const {
        return eventually([this] { return QFile::exists(opened()); }) && openedFolder() == m_folder.path();
    }

    const QTemporaryDir m_folder;

private:
    [[nodiscard]] QString openedFolder() const {
        QFile file(opened());
        return file.open(QIODevice::ReadOnly) ? QUrl(QString::fromUtf8(file.readAll())).toLocalFile()
                                              : QString();
    }
};

} // namespace

TEST_F(LinuxWorkspaceTest, anotherVirtualDesktopIsTold) {
    const auto observation = observe({Event::activeSpaceChanged});
    m_foreign.showDesktop(1);
    EXPECT_TRUE(arrive(1));
    m_foreign.showDesktop(0);
    EXPECT_TRUE(arrive(2));
    EXPECT_THAT(m_events, ElementsAre(Event::activeSpaceChanged, Event::activeSpaceChanged));
}

TEST_F(LinuxWorkspaceTest, aCompositorIsToldComingAndGoing) {
    EXPECT_FALSE(m_workspace.isComposited());
    const auto observation = observe({Event::compositingChanged});
    m_foreign.takeSelection("_NET_WM_CM_S0");
    EXPECT_TRUE(arrive(1));
    EXPECT_TRUE(m_workspace.isComposited());
    m_foreign.dropSelection("_NET_WM_CM_S0");
    EXPECT_TRUE(arrive(2));
    EXPECT_FALSE(m_workspace.isComposited());
    EXPECT_THAT(m_events, ElementsAre(Event::compositingChanged, Event::compositingChanged));
}

TEST_F(LinuxWorkspaceTest, sleepAndWakeAreTold) {
    const QString path = QStringLiteral("/org/freedesktop/login1");
    BusService login(QStringLiteral("org.freedesktop.login1"), path);
    const auto observation = observe({Event::willSleep, Event::didWake});
    for (const bool isAboutToSleep : {true, false}) {
        QDBusMessage signal = QDBusMessage::createSignal(
            path, QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"));
        signal << isAboutToSleep;
        login.bus().send(signal);
    }
    EXPECT_TRUE(arrive(2));
    EXPECT_THAT(m_events, ElementsAre(Event::willSleep, Event::didWake));
}

TEST_F(LinuxWorkspaceTest, mountsAreTold) {
    ScratchMount disk(QStringLiteral("tmpfs"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    const auto observation = observe({Event::didMount, Event::didUnmount});
    ASSERT_TRUE(disk.unmount());
    EXPECT_TRUE(arrive(1));
    ASSERT_TRUE(disk.mount());
    EXPECT_TRUE(arrive(2));
    EXPECT_THAT(m_events, ElementsAre(Event::didUnmount, Event::didMount));
}

TEST_F(LinuxWorkspaceFilesTest, filesAreShownByTheFileManager) {
    const BusService manager(QStringLiteral("org.freedesktop.FileManager1"),
                             QStringLiteral("/org/freedesktop/FileManager1"));
    const QString file = writeFile(m_folder.filePath(QStringLiteral("50% of a #1 ü.png")));
    EXPECT_TRUE(m_workspace.reveal({file, m_folder.filePath(QStringLiteral("gone"))}));
    ASSERT_TRUE(eventually([&] { return !manager.calls().isEmpty(); }));
    const QDBusMessage call = manager.calls().first();
    EXPECT_EQ(call.member(), QStringLiteral("ShowItems"));
    const QStringList urls = call.arguments().value(0).toStringList();
    ASSERT_EQ(urls.size(), 1);
    EXPECT_EQ(QUrl(urls.first()).toLocalFile(), file);
    EXPECT_FALSE(QFile::exists(opened()));
}

TEST_F(LinuxWorkspaceFilesTest, theFolderIsOpenedWhereNoFileManagerShowsFiles) {
    const QString file = writeFile(m_folder.filePath(QStringLiteral("a.png")));
    EXPECT_TRUE(m_workspace.reveal({file}));
    EXPECT_TRUE(opensFolder());
}

TEST_F(LinuxWorkspaceFilesTest, theFolderIsOpenedWhenTheFileManagerFails) {
    BusService manager(QStringLiteral("org.freedesktop.FileManager1"),
                       QStringLiteral("/org/freedesktop/FileManager1"));
    manager.failFromNowOn();
    const QString file = writeFile(m_folder.filePath(QStringLiteral("a.png")));
    EXPECT_TRUE(m_workspace.reveal({file}));
    EXPECT_TRUE(opensFolder());
}

TEST_F(LinuxWorkspaceFilesTest, whatIsGoneIsSaidToBeGone) {
    const auto file = m_workspace.reveal({m_folder.filePath(QStringLiteral("gone.png"))});
    ASSERT_FALSE(file);
    EXPECT_EQ(file.error().domain, QStringLiteral("Tembra.Workspace"));
    EXPECT_TRUE(file.error().message.contains(QStringLiteral("gone.png")));
    EXPECT_FALSE(m_workspace.openFolder(m_folder.filePath(QStringLiteral("gone"))));
    EXPECT_FALSE(QFile::exists(opened()));
}
