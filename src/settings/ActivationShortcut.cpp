#include "settings/ActivationShortcut.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <limits>

namespace tembra {

namespace {

const QString keyCodeKey = QStringLiteral("keyCode");
const QString modifiersKey = QStringLiteral("modifiers");
const QString keyLabelKey = QStringLiteral("keyLabel");

std::optional<std::uint32_t> unsignedNumber(const QJsonValue &value) {
    const qint64 number = value.toInteger(-1);
    if (number < 0 || number > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    return static_cast<std::uint32_t>(number);
}

} // namespace

ActivationShortcut ActivationShortcut::standard() {
    return {.keyCode = 13, .modifiers = command | shift, .keyLabel = QStringLiteral("W")};
}

bool ActivationShortcut::isValid() const {
    constexpr std::uint32_t required = command | option | control;
    constexpr std::uint32_t known = required | shift;
    return keyCode < 128 && (modifiers & required) != 0 && (modifiers & ~known) == 0 && !keyLabel.isEmpty();
}

QByteArray ActivationShortcut::toJson() const {
    const QJsonObject object{{keyCodeKey, static_cast<qint64>(keyCode)},
                             {modifiersKey, static_cast<qint64>(modifiers)},
                             {keyLabelKey, keyLabel}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<ActivationShortcut> ActivationShortcut::fromJson(const QByteArray &json) {
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const auto keyCode = unsignedNumber(object.value(keyCodeKey));
    const auto modifiers = unsignedNumber(object.value(modifiersKey));
    if (!keyCode || !modifiers)
        return std::nullopt;
    ActivationShortcut shortcut{*keyCode, *modifiers, object.value(keyLabelKey).toString()};
    return shortcut.isValid() ? std::optional(std::move(shortcut)) : std::nullopt;
}

} // namespace tembra
