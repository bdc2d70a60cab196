#pragma once

#include "platform/Pasteboard.h"

#include <QMimeData>

namespace tembra {

// A clipboard in memory, which the test may take as another program would, and which may refuse.
class FakePasteboard final : public Pasteboard {
public:
    bool refuses = false;
    std::vector<Item> items;
    int writes = 0;
    // What another program offers.
    QMimeData offered;

    [[nodiscard]] std::int64_t changeCount() override { return m_changeCount; }
    [[nodiscard]] const QMimeData *content() override { return &offered; }
    [[nodiscard]] Result<void> writeObjects(const std::vector<Item> &objects) override {
        if (refuses)
            return failure({.domain = errorDomain, .code = refused});
        items = objects;
        ++writes;
        change();
        return {};
    }
    void takeByAnother() {
        items.clear();
        change();
    }

private:
    void change() {
        ++m_changeCount;
        if (onChanged)
            onChanged();
    }

    std::int64_t m_changeCount = 7;
};

} // namespace tembra
