#pragma once

#include "support/ChildProgram.h"

#include <QTemporaryDir>

#include <optional>

namespace tembra {

// A Wayland compositor without a screen, for this process and those it starts.
class WaylandCompositor {
public:
    WaylandCompositor();
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
