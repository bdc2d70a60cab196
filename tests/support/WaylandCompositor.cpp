#include "support/WaylandCompositor.h"

#include "support/Files.h"

#include <sys/stat.h>
#include <unistd.h>

namespace tembra {

namespace {

constexpr uid_t nobody = 65534;

} // namespace

WaylandCompositor::WaylandCompositor(int outputs, const QByteArray &configuration) {
    const QByteArray folder = QFile::encodeName(m_runtimeFolder.path());
    // It says where it listens as soon as it does.
    const QByteArray file = QFile::encodeName(
        writeFile(m_runtimeFolder.filePath(QStringLiteral("config")),
                  "xwayland disable\n" + configuration + "\nexec echo \"$WAYLAND_DISPLAY\" \"$SWAYSOCK\"\n"));
    ::chmod(file.constData(), 0644);
    qputenv("XDG_RUNTIME_DIR", folder);
    qputenv("WLR_BACKENDS", "headless");
    qputenv("WLR_HEADLESS_OUTPUTS", QByteArray::number(outputs));
    qputenv("WLR_RENDERER", "pixman");
    qputenv("WLR_LIBINPUT_NO_DEVICES", "1");
    qunsetenv("WAYLAND_DISPLAY");
    qunsetenv("DISPLAY");
    // It does not run as root.
    if (::geteuid() == 0 && ::chown(folder.constData(), nobody, nobody) == 0) {
        m_program.emplace({"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--pdeathsig=TERM",
                           "sway", "--config", file.constData()});
    } else {
        m_program.emplace({"sway", "--config", file.constData()});
    }
    const QByteArrayList places = m_program->readLine().split(' ');
    m_isRunning = places.size() == 2;
    qputenv("WAYLAND_DISPLAY", places.first());
    qputenv("SWAYSOCK", places.last());
}

WaylandCompositor::~WaylandCompositor() {
    qunsetenv("WAYLAND_DISPLAY");
    qunsetenv("SWAYSOCK");
}

} // namespace tembra
