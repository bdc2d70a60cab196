#pragma once

#include <QString>
#include <QStringView>

#include <compare>
#include <optional>
#include <vector>

namespace tembra {

// A version as updates are ordered by it: dotted numbers, of which missing ones count as zero, and perhaps a
// suffix that makes it an earlier one ("1.2-beta.2" comes before "1.2-beta.10", which comes before "1.2").
// What follows a plus sign does not count. Any thread.
class UpdateVersion {
public:
    // Nothing when the text is no such version.
    [[nodiscard]] static std::optional<UpdateVersion> parse(QStringView text);
    // The dotted numbers that the text begins with: how systems name theirs ("6.1.0-25-amd64").
    [[nodiscard]] static std::optional<UpdateVersion> parseNumbers(QStringView text);

    [[nodiscard]] std::strong_ordering operator<=>(const UpdateVersion &other) const;
    [[nodiscard]] bool operator==(const UpdateVersion &other) const {
        return (*this <=> other) == std::strong_ordering::equal;
    }

private:
    std::vector<quint32> m_numbers;
    // The parts of the suffix; empty for a final version.
    std::vector<QString> m_suffix;
};

} // namespace tembra
