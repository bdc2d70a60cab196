#include "platform/linux/desktop/EventSoundSetting.h"

#include "platform/linux/GSettingsObject.h"
#include "platform/linux/desktop/X11Connection.h"
#include "platform/linux/desktop/XSettings.h"
#include "platform/linux/tools/RcFile.h"
#include "platform/linux/tools/SettingsText.h"

#include <QStandardPaths>

namespace tembra {

namespace {

using Statement = EventSoundSetting::Statement;

constexpr char enabledKey[] = "event-sounds";
constexpr char themeKey[] = "theme-name";

std::optional<QString> stated(const QString &theme) {
    return theme.isEmpty() ? std::nullopt : std::optional(theme);
}

Statement statementOf(const XSettings &settings) {
    Statement statement;
    const auto isEnabled = settings.value(QByteArrayLiteral("Net/EnableEventSounds"), QByteArray());
    if (const auto *const number = std::get_if<std::int32_t>(&isEnabled))
        statement.isEnabled = *number != 0;
    const auto theme = settings.value(QByteArrayLiteral("Net/SoundThemeName"), 0);
    if (const auto *const text = std::get_if<QByteArray>(&theme))
        statement.theme = stated(QString::fromUtf8(*text));
    return statement;
}

Statement statementOf(GSettings *settings) {
    const std::unique_ptr<char, void (*)(void *)> theme(g_settings_get_string(settings, themeKey), g_free);
    return {g_settings_get_boolean(settings, enabledKey) != FALSE, stated(QString::fromUtf8(theme.get()))};
}

Statement statementOf(const RcFile &file) {
    const auto value = [&file](const QByteArray &key) -> std::optional<QString> {
        const auto entry = file.entry(QByteArrayLiteral("Sounds"), key);
        return entry && !entry->flags.contains('d') ? stated(fromKConfig(entry->value)) : std::nullopt;
    };
    Statement statement{std::nullopt, value(QByteArrayLiteral("Theme"))};
    if (const auto isEnabled = value(QByteArrayLiteral("Enable"))) {
        const QString word = isEnabled->toLower();
        statement.isEnabled = word == QLatin1StringView("true") || word == QLatin1StringView("on") ||
                              word == QLatin1StringView("yes") || word == QLatin1StringView("1");
    }
    return statement;
}

// What the later one states counts only where the earlier one is silent.
Statement completed(const Statement &earlier, const Statement &later) {
    return {earlier.isEnabled ? earlier.isEnabled : later.isEnabled,
            earlier.theme ? earlier.theme : later.theme};
}

bool isKdeSession() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(QStringLiteral("KDE"));
}

} // namespace

EventSoundSetting EventSoundSetting::ofDesktop(std::shared_ptr<X11Connection> connection) {
    std::vector<Source> sources;
    if (connection) {
        sources.emplace_back(
            [connection = std::move(connection)] { return statementOf(readXSettings(*connection)); });
    }
    sources.push_back(gnome());
    sources.push_back(kde());
    // GNOME's settings state something even where they are nobody's.
    if (isKdeSession())
        std::swap(sources.end()[-1], sources.end()[-2]);
    return EventSoundSetting(std::move(sources));
}

EventSoundSetting::Source EventSoundSetting::gnome(GSettingsBackend *backend) {
    // Opened when they are first asked, and kept.
    auto settings = std::make_shared<std::optional<GSettingsObject>>();
    return [settings, backend] {
        if (!*settings)
            *settings = openGSettings("org.gnome.desktop.sound", {enabledKey, themeKey}, backend);
        return **settings ? statementOf((*settings)->get()) : Statement();
    };
}

EventSoundSetting::Source EventSoundSetting::kde() {
    return [] {
        Statement statement;
        const QStringList files =
            QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, QStringLiteral("kdeglobals"));
        for (const QString &path : files) {
            if (const auto file = RcFile::read(path))
                statement = completed(statement, statementOf(*file));
        }
        return statement;
    };
}

EventSoundSetting::Value EventSoundSetting::read() const {
    Statement statement;
    for (const Source &source : m_sources) {
        statement = completed(statement, source());
        if (statement.isEnabled && statement.theme)
            break;
    }
    const Value standard;
    return {statement.isEnabled.value_or(standard.isEnabled), statement.theme.value_or(standard.theme)};
}

} // namespace tembra
