#pragma once

#include <QStringView>
#include <QUrl>

#include <vector>

namespace tembra {

// An address within a text: of a web page or, as `mailto:`, of a person. A value.
struct TextLink {
    // In the text.
    qsizetype start = 0;
    qsizetype length = 0;
    QUrl url;

    // From the first to the last; they do not overlap.
    [[nodiscard]] static std::vector<TextLink> find(QStringView text);

    bool operator==(const TextLink &) const = default;
};

} // namespace tembra
