#pragma once

#include "support/ChildProgram.h"

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace tembra {

// An X server whose displays are plugged in and out at will: its outputs DUMMY0, which is there from the
// start with 1024 × 768 pixels, to DUMMY15. Programs that are started during its life show themselves on it.
class DummyServer {
public:
    // Nothing where it is not installed or may not run.
    [[nodiscard]] static std::unique_ptr<DummyServer> start();
    ~DummyServer();
    DummyServer(const DummyServer &) = delete;
    DummyServer &operator=(const DummyServer &) = delete;

    // As the user's display settings would.
    void xrandr(const QStringList &arguments);

private:
    DummyServer();

    const QTemporaryDir m_folder;
    const QByteArray m_previousDisplay;
    std::unique_ptr<ChildProgram> m_server;
    bool m_isRunning = false;
};

} // namespace tembra
