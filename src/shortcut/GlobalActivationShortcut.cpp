#include "shortcut/GlobalActivationShortcut.h"

#include "base/MainThread.h"

#include <QCoreApplication>

#include <utility>

namespace tembra {

namespace {

// Where no shortcut is to be had, another one would not do either.
Error registrationError(const Error &error) {
    if (error.code == HotKeys::unavailable)
        return error;
    return {GlobalActivationShortcut::errorDomain,
            error.code,
            QCoreApplication::translate("GlobalActivationShortcut",
                                        "This shortcut is unavailable. Choose another combination."),
            {}};
}

} // namespace

Result<void> GlobalActivationShortcut::configure(const std::optional<ActivationShortcut> &shortcut) {
    requireMainThread();
    if (shortcut == m_shortcut)
        return {};
    if (!shortcut) {
        m_registration.reset();
        m_shortcut.reset();
        return {};
    }
    auto registration =
        m_hotKeys.registerHotKey({shortcut->keyCode, shortcut->modifiers, shortcut->keyLabel}, callbacks());
    if (!registration)
        return failure(registrationError(registration.error()));
    m_registration = std::move(*registration);
    m_shortcut = shortcut;
    return {};
}

HotKeys::Callbacks GlobalActivationShortcut::callbacks() {
    return {.onPressed =
                [this] {
                    if (onPressed)
                        onPressed();
                },
            .onLost =
                [this](const Error &error) {
                    m_registration.reset();
                    m_shortcut.reset();
                    if (onLost)
                        onLost(registrationError(error));
                }};
}

} // namespace tembra
