#include "app/CommandService.h"

#include "app/StatusReport.h"
#include "base/FileUri.h"
#include "shelf/ShelfController.h"

#include <QCoreApplication>

namespace tembra {

namespace {

tl::unexpected<Error> refused(const QString &message) {
    return failure({QStringLiteral("Tembra.CommandService"), 1, message, {}});
}

} // namespace

Result<QString> CommandService::perform(const QString &command, const QStringList &arguments) {
    if (command == u"open")
        return open(arguments);
    if (command == u"status")
        return status(arguments);
    if (command == u"add")
        return add(arguments);
    if (command == u"edit")
        return edit(arguments);
    if (command == u"settings")
        return showSettings(arguments);
    if (command == u"reopen")
        m_hooks.reopen();
    else if (command == u"close")
        m_shelf.collapse();
    else if (command == u"toggle")
        m_shelf.toggleFromShortcut();
    else if (command == u"quit")
        m_hooks.quit();
    else
        return refused(QCoreApplication::translate("CommandService", "Tembra does not know the command “%1”.")
                           .arg(command));
    return QString();
}

Result<QString> CommandService::open(const QStringList &arguments) {
    if (!arguments.isEmpty()) {
        const auto tab = shelfTabNamed(arguments.constFirst());
        if (!tab || !m_shelf.activateTab(*tab))
            return refused(QCoreApplication::translate("CommandService", "This tab is not shown."));
    }
    m_shelf.openManually();
    return QString();
}

Result<QString> CommandService::add(const QStringList &files) {
    QStringList paths;
    for (const QString &file : files)
        paths += pathOfFileUri(file.toUtf8()).value_or(file);
    if (const auto added = m_shelf.addToTray(paths); !added)
        return refused(added.error().message);
    return QString();
}

Result<QString> CommandService::edit(const QStringList &files) {
    const QString file = files.value(0);
    return m_shelf.openScreenshotEditor(pathOfFileUri(file.toUtf8()).value_or(file)).map([] {
        return QString();
    });
}

Result<QString> CommandService::showSettings(const QStringList &arguments) const {
    const auto page = arguments.isEmpty() ? std::nullopt : settingsPageNamed(arguments.constFirst());
    if (!page && !arguments.isEmpty())
        return refused(
            QCoreApplication::translate("CommandService", "The settings have no page of this name."));
    m_shelf.collapse();
    m_hooks.showSettings(page);
    return QString();
}

Result<QString> CommandService::status(const QStringList &arguments) const {
    const ProgramStatus now = m_hooks.status();
    if (arguments.contains(QStringLiteral("--json")))
        return QString::fromUtf8(statusJson(now));
    return statusText(now.shelf);
}

} // namespace tembra
