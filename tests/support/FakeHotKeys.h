#pragma once

#include "platform/HotKeys.h"

#include <QKeyEvent>

#include <algorithm>
#include <vector>

namespace tembra {

// A keyboard of which other programs may have taken keys. The scan code of a key event is its virtual key
// code.
class FakeHotKeys final : public HotKeys {
public:
    bool isAvailable = true;
    // What other programs have.
    std::vector<HotKey> foreign;
    // How often a key was asked for.
    int attempts = 0;

    [[nodiscard]] bool areAvailable() const override { return isAvailable; }
    [[nodiscard]] Result<std::unique_ptr<Registration>> registerHotKey(const HotKey &key,
                                                                       Callbacks callbacks) override {
        ++attempts;
        const bool isForeign = std::ranges::any_of(foreign, [&](const HotKey &other) {
            return other.keyCode == key.keyCode && other.modifiers == key.modifiers;
        });
        if (!isAvailable || isForeign) {
            return failure({errorDomain, isAvailable ? taken : unavailable,
                            QStringLiteral("The keyboard says no."), QString()});
        }
        return std::make_unique<Entry>(*this, key, std::move(callbacks));
    }
    [[nodiscard]] std::optional<std::uint32_t> virtualKeyCode(const QKeyEvent &event) const override {
        const auto code = event.nativeScanCode();
        return code < 128 ? std::optional<std::uint32_t>(code) : std::nullopt;
    }

    [[nodiscard]] std::vector<HotKey> registered() const {
        std::vector<HotKey> keys;
        std::ranges::transform(m_entries, std::back_inserter(keys),
                               [](const Entry *entry) { return entry->key; });
        return keys;
    }
    // The user presses all of them.
    void press() const {
        for (const Entry *const entry : std::vector(m_entries))
            std::function(entry->callbacks.onPressed)();
    }
    // The desktop takes all of them away.
    void lose(const Error &error) const {
        for (const Entry *const entry : std::vector(m_entries))
            std::function(entry->callbacks.onLost)(error);
    }

private:
    struct Entry final : public Registration {
        Entry(FakeHotKeys &owner, HotKey hotKey, Callbacks calls)
            : keyboard(owner), key(std::move(hotKey)), callbacks(std::move(calls)) {
            keyboard.m_entries.push_back(this);
        }
        ~Entry() override { std::erase(keyboard.m_entries, this); }

        FakeHotKeys &keyboard;
        const HotKey key;
        const Callbacks callbacks;
    };

    std::vector<Entry *> m_entries;
};

} // namespace tembra
