#include "app/CommandService.h"

#include "app/StatusReport.h"
#include "base/FileUri.h"
#include "editor/window/EditorStatus.h"
#include "shelf/ShelfController.h"

#include <QCoreApplication>

namespace tembra {

namespace {

tl::unexpected<Error> refused(const QString &message) {
    return failure({QStringLiteral("Tembra.CommandService"), 1, message, {}});
}

} // namespace

CommandService::CommandService(ShelfController &shelf, std::function<EditorStatus()> editorStatus,
                               std::function<void()> reopen, std::function<void()> quit)
    : m_shelf(shelf),
      m_editorStatus(std::move(editorStatus)),
      m_reopen(std::move(reopen)),
      m_quit(std::move(quit)) {}

Result<QString> CommandService::perform(const QString &command, const QStringList &arguments) {
    if (command == u"open")
        return open(arguments);
    if (command == u"status")
        return status(arguments);
    if (command == u"add")
        return add(arguments);
    if (command == u"edit")
        return edit(arguments);
    if (command == u"reopen")
        m_reopen();
    else if (command == u"close")
        m_shelf.collapse();
    else if (command == u"toggle")
        m_shelf.toggleFromShortcut();
    else if (command == u"quit")
        m_quit();
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

Result<QString> CommandService::status(const QStringList &arguments) const {
    const ShelfStatus now = m_shelf.status();
    if (arguments.contains(QStringLiteral("--json")))
        return QString::fromUtf8(statusJson(now, m_editorStatus(), QCoreApplication::applicationVersion()));
    return statusText(now);
}

} // namespace tembra
