#include "Volume.h"

#include "e2e/TembraProcess.h"

#include <QDir>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <cstring>
#include <sched.h>
#include <sys/mount.h>

namespace tembra {

namespace {

QByteArray native(const QString &path) {
    return QFile::encodeName(path);
}

} // namespace

Volume::Volume(const TembraProcess &tembra, Tally &tally)
    : m_tembra(tembra),
      m_tally(tally),
      m_pictures(tembra.home() + QStringLiteral("/Pictures")),
      m_folder(tembra.screenshots()),
      m_files(m_pictures) {
    if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        m_problem = QStringLiteral("no mount namespace of our own is permitted here");
        return;
    }
    const QString files = tembra.home() + QStringLiteral("/.volume");
    QDir().mkpath(files);
    if (::mount("tmpfs", native(files).constData(), "tmpfs", 0, "size=2g") != 0) {
        m_problem = QStringLiteral("a tmpfs cannot be mounted here");
        return;
    }
    m_files = files;
    // Without its disk the folder is gone.
    QDir().rmdir(m_folder);
    mount();
    QDir().mkpath(m_folder);
}

Volume::~Volume() {
    if (!m_problem.isEmpty())
        return;
    if (m_isMounted)
        ::umount2(native(m_pictures).constData(), MNT_DETACH);
    ::umount2(native(m_files).constData(), MNT_DETACH);
}

void Volume::mount() {
    m_isMounted =
        ::mount(native(m_files).constData(), native(m_pictures).constData(), nullptr, MS_BIND, nullptr) == 0;
    if (!m_isMounted)
        qFatal("cannot mount %s: %s", qUtf8Printable(m_pictures), std::strerror(errno));
}

void Volume::unmount() {
    if (!m_problem.isEmpty() || !m_isMounted)
        return;
    // Whoever is reading a file is soon done with it.
    for (int i = 0; i < 100; ++i) {
        if (::umount2(native(m_pictures).constData(), 0) == 0) {
            m_isMounted = false;
            return m_tally.count("volume unmounted");
        }
        QThread::msleep(50);
    }
    m_tally.count("volume too busy to be unmounted");
    tellWhoHoldsIt();
}

// No disk stays busy because of the program.
void Volume::tellWhoHoldsIt() {
    const QDir descriptors(QStringLiteral("/proc/%1/fd").arg(m_tembra.processId()));
    for (const QFileInfo &descriptor : descriptors.entryInfoList(QDir::AllEntries | QDir::System)) {
        if (descriptor.symLinkTarget().startsWith(m_pictures))
            m_tally.fault(QStringLiteral("the program keeps the volume busy with ") +
                          descriptor.symLinkTarget());
    }
}

void Volume::renameFolder() {
    if (isFolderThere() && QDir().rename(m_folder, m_folder + QStringLiteral(" of old"))) {
        m_isRenamed = true;
        m_tally.count("folder renamed");
    }
}

void Volume::bringBack() {
    if (!m_isMounted) {
        mount();
        m_tally.count("volume mounted again");
    }
    if (!m_isRenamed)
        return;
    if (!QDir().rename(m_folder + QStringLiteral(" of old"), m_folder))
        return m_tally.fault(QStringLiteral("the folder cannot get its name back"));
    m_isRenamed = false;
    m_tally.count("folder renamed back");
}

} // namespace tembra
