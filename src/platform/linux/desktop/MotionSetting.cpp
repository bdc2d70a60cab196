#include "platform/linux/desktop/MotionSetting.h"

#include "platform/linux/GSettingsObject.h"
#include "platform/linux/desktop/X11Connection.h"
#include "platform/linux/desktop/XSettings.h"
#include "platform/linux/tools/RcFile.h"

#include <QStandardPaths>

namespace tembra {

namespace {

constexpr char animationsKey[] = "enable-animations";

std::optional<bool> statementOf(const XSettings &settings) {
    const auto animates = settings.value(QByteArrayLiteral("Gtk/EnableAnimations"), QByteArray());
    const auto *const number = std::get_if<std::int32_t>(&animates);
    return number ? std::optional(*number == 0) : std::nullopt;
}

bool isKdeSession() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(QStringLiteral("KDE"));
}

} // namespace

MotionSetting MotionSetting::ofDesktop(std::shared_ptr<X11Connection> connection) {
    // KDE tells GTK's programs something of its own, and GNOME's settings state something even where they are
    // nobody's.
    if (isKdeSession())
        return MotionSetting({kde()});
    std::vector<Source> sources;
    if (connection) {
        sources.emplace_back(
            [connection = std::move(connection)] { return statementOf(readXSettings(*connection)); });
    }
    sources.push_back(gnome());
    return MotionSetting(std::move(sources));
}

MotionSetting::Source MotionSetting::gnome(GSettingsBackend *backend) {
    // Opened when they are first asked, and kept.
    auto settings = std::make_shared<std::optional<GSettingsObject>>();
    return [settings, backend]() -> std::optional<bool> {
        if (!*settings)
            *settings = openGSettings("org.gnome.desktop.interface", {animationsKey}, backend);
        if (!**settings)
            return std::nullopt;
        return g_settings_get_boolean((*settings)->get(), animationsKey) == FALSE;
    };
}

MotionSetting::Source MotionSetting::kde() {
    return []() -> std::optional<bool> {
        // The user's own file comes first.
        const QStringList files =
            QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, QStringLiteral("kdeglobals"));
        for (const QString &path : files) {
            const auto file = RcFile::read(path);
            const auto factor =
                file ? file->value(QByteArrayLiteral("KDE"), QByteArrayLiteral("AnimationDurationFactor"))
                     : std::nullopt;
            bool isNumber = false;
            const double value = factor ? factor->toDouble(&isNumber) : 0;
            if (isNumber)
                return value <= 0;
        }
        return std::nullopt;
    };
}

bool MotionSetting::isReduced() const {
    for (const Source &source : m_sources) {
        if (const auto isReduced = source())
            return *isReduced;
    }
    return false;
}

} // namespace tembra
