#pragma once

#include "support/ChildProgram.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <optional>

namespace tembra {

// A Wayland compositor without a screen, for this process and those it starts, which find it by the
// environment.
class WaylandCompositor {
public:
    // With as many outputs as told, HEADLESS-1 and so on, and these lines more in its configuration.
    explicit WaylandCompositor(int outputs = 1, const QByteArray &configuration = {});
    ~WaylandCompositor();
    WaylandCompositor(const WaylandCompositor &) = delete;
    WaylandCompositor &operator=(const WaylandCompositor &) = delete;

    // False where it is not installed.
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    void end() { m_program.reset(); }

private:
    const QTemporaryDir m_runtimeFolder;
    std::optional<ChildProgram> m_program;
    bool m_isRunning = false;
};

} // namespace tembra
