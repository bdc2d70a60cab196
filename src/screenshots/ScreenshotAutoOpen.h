#pragma once

#include "base/Clocks.h"
#include "screenshots/Shot.h"

#include <QSet>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tembra {

// Chooses which new captures open in the editor by themselves. Main thread; owned by ShelfController.
class ScreenshotAutoOpen {
public:
    // `isCapture` looks at the file again.
    explicit ScreenshotAutoOpen(std::function<bool(const QString &path)> isCapture);

    // Nothing made before the moment of a change opens; the same configuration again changes nothing.
    void configure(bool enabled, const std::optional<QString> &folder, Instant now);
    // Those to open now, each once.
    [[nodiscard]] std::vector<Shot> take(const std::vector<Shot> &shots);

private:
    [[nodiscard]] bool qualifies(const Shot &shot) const;

    const std::function<bool(const QString &)> m_isCapture;
    Instant m_enabledSince{};
    // Without links; nothing while it is not enabled.
    std::optional<QString> m_folder;
    QSet<QString> m_taken;
};

} // namespace tembra
