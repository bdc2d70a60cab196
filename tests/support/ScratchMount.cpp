#include "support/ScratchMount.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <sched.h>
#include <sys/mount.h>

namespace tembra {

ScratchMount::ScratchMount(const QString &type) : m_type(type) {
    prepare();
    if (m_problem.isEmpty())
        mount();
}

ScratchMount::~ScratchMount() {
    if (m_isMounted)
        unmount();
}

QString ScratchMount::path() const {
    return m_folder.filePath(QStringLiteral("mounted"));
}

void ScratchMount::prepare() {
    if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        m_problem = QStringLiteral("no mount namespace of our own is permitted here");
        return;
    }
    QDir().mkpath(path());
    if (m_type == QStringLiteral("tmpfs"))
        return;
    const QString image = m_folder.filePath(QStringLiteral("image"));
    QFile file(image);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(16 << 20))
        m_problem = QStringLiteral("no room for a file-system image");
    else
        run(QStringLiteral("/sbin/mkfs.") + m_type, {image});
}

bool ScratchMount::mount() {
    const bool isImage = m_type != QStringLiteral("tmpfs");
    const QString source = isImage ? m_folder.filePath(QStringLiteral("image")) : m_type;
    QStringList arguments{QStringLiteral("-t"), m_type, source, path()};
    if (isImage)
        arguments << QStringLiteral("-o") << QStringLiteral("loop");
    m_isMounted = run(QStringLiteral("/bin/mount"), arguments);
    return m_isMounted;
}

bool ScratchMount::unmount() {
    m_isMounted = !run(QStringLiteral("/bin/umount"), {path()});
    return !m_isMounted;
}

bool ScratchMount::run(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.start(program, arguments);
    const bool worked =
        process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!worked)
        m_problem = program + QStringLiteral(" did not work: ") +
                    (process.error() == QProcess::UnknownError
                         ? QString::fromLocal8Bit(process.readAllStandardError()).trimmed()
                         : process.errorString());
    return worked;
}

} // namespace tembra
