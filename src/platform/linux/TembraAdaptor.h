#pragma once

#include "platform/SingleInstance.h"

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>

namespace tembra {

// The D-Bus interface app.tembra.Tembra: each command of the command line as a method. What fails answers
// with the error app.tembra.Tembra.Error and the sentence that says why.
class TembraAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "app.tembra.Tembra")

public:
    TembraAdaptor(QObject *parent, SingleInstance::Handler handler);

public Q_SLOTS:
    // Any command by its name, with the words that follow it; gives what the command prints.
    QString Command(const QString &command, const QStringList &arguments, const QDBusMessage &message);

    // Opens the shelf, on the tab "tray", "screenshots" or "text"; on the last one where it is empty.
    void OpenShelf(const QString &tab, const QDBusMessage &message);
    void CloseShelf(const QDBusMessage &message);
    void ToggleShelf(const QDBusMessage &message);
    // Paths or file URIs.
    void AddFiles(const QStringList &files, const QDBusMessage &message);
    void EditFile(const QString &file, const QDBusMessage &message);
    // Empty for the last page.
    void ShowSettings(const QString &page, const QDBusMessage &message);
    // As JSON.
    QString Status(const QDBusMessage &message);
    void Quit(const QDBusMessage &message);

Q_SIGNALS:
    void CaptureArrived(const QString &path);

private:
    SingleInstance::Handler m_handler;
};

} // namespace tembra
