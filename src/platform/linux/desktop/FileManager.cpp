#include "platform/linux/desktop/FileManager.h"

#include "base/FileUri.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace tembra {

namespace {

QString serviceName() {
    return QStringLiteral("org.freedesktop.FileManager1");
}

tl::unexpected<Error> failed(const QString &message) {
    return failure({QStringLiteral("Tembra.Workspace"), 1, message, QString()});
}

// A dangling link is there too.
bool isThere(const QString &path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// Running, or started by the bus when it is called.
bool isAvailable(const QDBusConnection &bus) {
    if (!bus.isConnected())
        return false;
    return bus.interface()->isServiceRegistered(serviceName()) ||
           bus.interface()->activatableServiceNames().value().contains(serviceName());
}

QDBusMessage showItemsCall(const QStringList &paths) {
    QStringList urls;
    for (const QString &path : paths)
        urls.append(QString::fromLatin1(fileUri(path)));
    QDBusMessage call =
        QDBusMessage::createMethodCall(serviceName(), QStringLiteral("/org/freedesktop/FileManager1"),
                                       serviceName(), QStringLiteral("ShowItems"));
    call << urls << QString();
    return call;
}

} // namespace

Result<void> FileManager::reveal(const QStringList &paths) {
    QStringList present;
    std::ranges::copy_if(paths, std::back_inserter(present), isThere);
    if (paths.isEmpty())
        return {};
    if (present.isEmpty()) {
        return failed(QCoreApplication::translate("FileManager", "“%1” is no longer there.")
                          .arg(QFileInfo(paths.first()).fileName()));
    }
    const QString folder = QFileInfo(present.first()).absolutePath();
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!isAvailable(bus))
        return openFolder(folder);
    auto *const answer = new QDBusPendingCallWatcher(bus.asyncCall(showItemsCall(present)), &m_context);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &m_context, [this, answer, folder] {
        if (answer->isError())
            static_cast<void>(openFolder(folder));
        answer->deleteLater();
    });
    return {};
}

Result<void> FileManager::openFolder(const QString &path) {
    const QString name = QDir(path).dirName();
    if (!QFileInfo(path).isDir()) {
        return failed(
            QCoreApplication::translate("FileManager", "The folder “%1” is no longer there.").arg(name));
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        return failed(
            QCoreApplication::translate("FileManager", "No file manager could open the folder “%1”.")
                .arg(name));
    }
    return {};
}

} // namespace tembra
