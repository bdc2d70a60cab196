#include "platform/linux/desktop/DesktopApplications.h"

#include "base/FilePath.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <memory>

#undef signals
#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

namespace tembra {

namespace {

struct Unref {
    void operator()(void *object) const { g_object_unref(object); }
};
struct Free {
    void operator()(void *text) const { g_free(text); }
};
struct FreeInfos {
    void operator()(GList *list) const { g_list_free_full(list, g_object_unref); }
};
struct FreeError {
    void operator()(GError *error) const { g_error_free(error); }
};
using Context = std::unique_ptr<GAppLaunchContext, Unref>;
using File = std::unique_ptr<GFile, Unref>;
using Info = std::unique_ptr<GAppInfo, Unref>;
using Infos = std::unique_ptr<GList, FreeInfos>;
using Text = std::unique_ptr<char, Free>;

File fileAt(const QString &path) {
    return File(g_file_new_for_path(pathBytes(path).constData()));
}

Text contentType(const QString &path) {
    const std::unique_ptr<GFileInfo, Unref> info(g_file_query_info(fileAt(path).get(),
                                                                   G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE,
                                                                   G_FILE_QUERY_INFO_NONE, nullptr, nullptr));
    return Text(info ? g_strdup(g_file_info_get_content_type(info.get())) : nullptr);
}

QString identifier(GAppInfo *info) {
    return QString::fromUtf8(g_app_info_get_id(info));
}

QIcon icon(GAppInfo *info) {
    GIcon *icon = g_app_info_get_icon(info);
    if (!icon)
        return {};
    const Text text(g_icon_to_string(icon));
    const QString name = QString::fromUtf8(text.get());
    return name.startsWith(u'/') ? QIcon(name) : QIcon::fromTheme(name);
}

std::vector<Workspace::Application> applicationsForType(const char *type) {
    const Infos infos(g_app_info_get_all_for_type(type));
    const Info preferred(g_app_info_get_default_for_type(type, FALSE));
    std::vector<Workspace::Application> applications;
    for (const GList *item = infos.get(); item; item = item->next) {
        auto *info = static_cast<GAppInfo *>(item->data);
        if (!g_app_info_should_show(info) || !g_app_info_get_id(info))
            continue;
        applications.push_back({.identifier = identifier(info),
                                .name = QString::fromUtf8(g_app_info_get_display_name(info)),
                                .icon = icon(info),
                                .isDefault = preferred && g_app_info_equal(info, preferred.get())});
    }
    return applications;
}

Info applicationFor(const QString &path, const QString &identifier) {
    if (!identifier.isEmpty())
        return Info(reinterpret_cast<GAppInfo *>(g_desktop_app_info_new(identifier.toUtf8().constData())));
    const Text type = contentType(path);
    return Info(type ? g_app_info_get_default_for_type(type.get(), FALSE) : nullptr);
}

tl::unexpected<Error> failed(const QString &message) {
    return failure({QStringLiteral("Tembra.Workspace"), 1, message, QString()});
}

// What only this program needs of its environment is not handed on.
Context launchContext() {
    Context context(g_app_launch_context_new());
    const QStringList others = environmentForPrograms().keys();
    for (const QString &variable : QProcessEnvironment::systemEnvironment().keys()) {
        if (!others.contains(variable))
            g_app_launch_context_unsetenv(context.get(), variable.toLocal8Bit().constData());
    }
    return context;
}

} // namespace

std::vector<Workspace::Application> DesktopApplications::applicationsFor(const QStringList &paths) {
    std::vector<Workspace::Application> common;
    QStringList types;
    for (const QString &path : paths) {
        const Text type = contentType(path);
        const QString name = QString::fromUtf8(type.get());
        if (types.contains(name))
            continue;
        auto those = type ? applicationsForType(type.get()) : std::vector<Workspace::Application>();
        if (types.isEmpty())
            common = std::move(those);
        else
            std::erase_if(common, [&those](const Workspace::Application &application) {
                return std::ranges::find(those, application.identifier,
                                         &Workspace::Application::identifier) == those.end();
            });
        types.append(name);
    }
    std::ranges::sort(common, [](const auto &a, const auto &b) {
        return a.isDefault != b.isDefault ? a.isDefault : a.name.localeAwareCompare(b.name) < 0;
    });
    return common;
}

Result<void> DesktopApplications::open(const QStringList &paths, const QString &identifier) {
    if (paths.isEmpty())
        return {};
    const Info application = applicationFor(paths.first(), identifier);
    if (!application)
        return failed(QCoreApplication::translate("Workspace", "No application opens “%1”.")
                          .arg(QFileInfo(paths.first()).fileName()));
    GList *files = nullptr;
    for (const QString &path : paths)
        files = g_list_append(files, fileAt(path).release());
    GError *problem = nullptr;
    const bool launched = g_app_info_launch(application.get(), files, launchContext().get(), &problem);
    g_list_free_full(files, g_object_unref);
    if (launched)
        return {};
    const std::unique_ptr<GError, FreeError> error(problem);
    return failed(QCoreApplication::translate("Workspace", "%1 could not be started: %2")
                      .arg(QString::fromUtf8(g_app_info_get_display_name(application.get())),
                           QString::fromUtf8(error ? error->message : "")));
}

Result<void> DesktopApplications::openLink(const QUrl &url) {
    GError *problem = nullptr;
    if (g_app_info_launch_default_for_uri(url.toEncoded().constData(), launchContext().get(), &problem))
        return {};
    const std::unique_ptr<GError, FreeError> error(problem);
    return failed(QCoreApplication::translate("Workspace", "“%1” could not be opened: %2")
                      .arg(url.toDisplayString(), QString::fromUtf8(error ? error->message : "")));
}

} // namespace tembra
