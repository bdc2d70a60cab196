#include "DummyServer.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

namespace tembra {

namespace {

// Neither the machine's own graphics nor its keyboard and mouse are touched.
constexpr const char *configuration = R"(
Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoAddGPU" "false"
  Option "DontVTSwitch" "true"
EndSection
Section "Device"
  Identifier "card"
  Driver "dummy"
  VideoRam 65536
EndSection
Section "Screen"
  Identifier "screen"
  Device "card"
  DefaultDepth 24
EndSection
)";

} // namespace

DummyServer::DummyServer() : m_previousDisplay(qgetenv("DISPLAY")) {
    const QByteArray configurationFile = m_folder.filePath(QStringLiteral("xorg.conf")).toLocal8Bit();
    const QByteArray log = m_folder.filePath(QStringLiteral("log")).toLocal8Bit();
    QFile file(QString::fromLocal8Bit(configurationFile));
    if (!file.open(QIODevice::WriteOnly) || file.write(configuration) < 0)
        return;
    file.close();
    // Servers that look for a free number at the same time can get in each other's way.
    const QByteArray number = ':' + QByteArray::number(1000 + QCoreApplication::applicationPid() % 50'000);
    m_server = std::make_unique<ChildProgram>(std::initializer_list<const char *>{
        "Xorg", number.constData(), "-config", configurationFile.constData(), "-logfile", log.constData(),
        "-logverbose", "0", "-verbose", "0", "-displayfd", "1", "-noreset", "-nolisten", "tcp", "-sharevts",
        "-novtswitch"});
    const QByteArray display = m_server->readLine();
    if (display.isEmpty())
        return;
    qputenv("DISPLAY", ":" + display);
    m_isRunning = true;
}

std::unique_ptr<DummyServer> DummyServer::start() {
    std::unique_ptr<DummyServer> server(new DummyServer);
    return server->m_isRunning ? std::move(server) : nullptr;
}

DummyServer::~DummyServer() {
    qputenv("DISPLAY", m_previousDisplay);
}

void DummyServer::xrandr(const QStringList &arguments) {
    QProcess process;
    process.start(QStringLiteral("xrandr"), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("xrandr: %s", process.readAllStandardError().constData());
}

} // namespace tembra
