#include "WaylandCompositor.h"

#include "support/Files.h"

#include <sys/stat.h>
#include <unistd.h>

namespace tembra {

namespace {

constexpr uid_t nobody = 65534;

} // namespace

WaylandCompositor::WaylandCompositor() {
    const QByteArray folder = QFile::encodeName(m_runtimeFolder.path());
    // It says where it listens as soon as it does.
    const QByteArray configuration =
        QFile::encodeName(writeFile(m_runtimeFolder.filePath(QStringLiteral("config")),
                                    "xwayland disable\nexec echo \"$WAYLAND_DISPLAY\"\n"));
    ::chmod(configuration.constData(), 0644);
    qputenv("XDG_RUNTIME_DIR", folder);
    qputenv("WLR_BACKENDS", "headless");
    qputenv("WLR_RENDERER", "pixman");
    qputenv("WLR_LIBINPUT_NO_DEVICES", "1");
    qunsetenv("WAYLAND_DISPLAY");
    qunsetenv("DISPLAY");
    // It does not run as root.
    if (::geteuid() == 0 && ::chown(folder.constData(), nobody, nobody) == 0) {
        m_program.emplace({"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--pdeathsig=TERM",
                           "sway", "--config", configuration.constData()});
    } else {
        m_program.emplace({"sway", "--config", configuration.constData()});
    }
    const QByteArray display = m_program->readLine();
    m_isRunning = !display.isEmpty();
    qputenv("WAYLAND_DISPLAY", display);
}

WaylandCompositor::~WaylandCompositor() {
    qunsetenv("WAYLAND_DISPLAY");
}

} // namespace tembra
