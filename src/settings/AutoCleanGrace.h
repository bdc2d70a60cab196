#pragma once

#include "base/Clocks.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace tembra {

// A screenshot that came back from the Trash and is spared by auto-clean for a while. Stored as a JSON object
// with the fields' names as keys: the bookmark in base64, the date in ISO 8601 with milliseconds.
struct AutoCleanGrace {
    QByteArray bookmark;
    QString path;
    Instant restoredAt{};

    // How long a restored screenshot is spared.
    static constexpr auto period = std::chrono::days(30);

    [[nodiscard]] static QByteArray toJson(const std::vector<AutoCleanGrace> &list);
    // Empty when the bytes are not a list of such objects.
    [[nodiscard]] static std::vector<AutoCleanGrace> fromJson(const QByteArray &json);

    bool operator==(const AutoCleanGrace &) const = default;
};

} // namespace tembra
