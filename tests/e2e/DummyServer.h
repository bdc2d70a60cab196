#pragma once

#include "support/ChildProgram.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <optional>

namespace tembra {

// An X server whose displays are plugged in and out at will: DUMMY0, which is there from the start with
// 1024 × 768 pixels, to DUMMY15. Programs started from now on show themselves on it.
class DummyServer {
public:
    DummyServer() {
        const QByteArray configuration = m_folder.filePath(QStringLiteral("xorg.conf")).toLocal8Bit();
        const QByteArray log = m_folder.filePath(QStringLiteral("log")).toLocal8Bit();
        QFile file(QString::fromLocal8Bit(configuration));
        if (!file.open(QIODevice::WriteOnly))
            return;
        // Neither the machine's own graphics nor its keyboard and mouse are touched.
        file.write(R"(Section "ServerFlags"
                        Option "AutoAddDevices" "false"
                        Option "AutoAddGPU" "false"
                      EndSection
                      Section "Device"
                        Identifier "card"
                        Driver "dummy"
                        VideoRam 65536
                      EndSection)");
        file.close();
        // Servers that look for a free number at the same time can get in each other's way.
        const QByteArray number =
            ':' + QByteArray::number(1000 + QCoreApplication::applicationPid() % 50'000);
        m_server.emplace({"Xorg", number.constData(), "-config", configuration.constData(), "-logfile",
                          log.constData(), "-verbose", "0", "-displayfd", "1", "-noreset", "-nolisten", "tcp",
                          "-sharevts", "-novtswitch"});
        const QByteArray display = m_server->readLine();
        m_isRunning = !display.isEmpty();
        if (m_isRunning)
            qputenv("DISPLAY", ":" + display);
    }

    // Not where it is not installed or may not run.
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    // As the user's display settings would.
    void xrandr(const QStringList &arguments) {
        QProcess process;
        process.start(QStringLiteral("xrandr"), arguments);
        if (!process.waitForFinished() || process.exitCode() != 0)
            qFatal("xrandr: %s", process.readAllStandardError().constData());
    }

private:
    const QTemporaryDir m_folder;
    std::optional<ChildProgram> m_server;
    bool m_isRunning = false;
};

} // namespace tembra
