#include "platform/linux/CaptureNamePattern.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tembra {

namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// The fields of a date and time, gathered digit by digit.
class Moment {
public:
    void add(QChar field, QChar digit) {
        const auto at = fields.indexOf(field);
        m_values[static_cast<std::size_t>(at)] =
            m_values[static_cast<std::size_t>(at)] * 10 + digit.digitValue();
    }

    [[nodiscard]] bool isPossible() const {
        const auto [year, month, day, hour, minute, second] = m_values;
        return year >= 1970 && month >= 1 && month <= 12 && day >= 1 && day <= 31 && hour < 24 &&
               minute < 60 && second <= 60;
    }

    static constexpr QStringView fields = u"YMDHIS";

private:
    std::array<int, 6> m_values{};
};

// What follows the moment in the name; nothing when the name does not begin with such a moment.
std::optional<QStringView> afterMoment(QStringView pattern, QStringView name) {
    Moment moment;
    qsizetype at = 0;
    for (const QChar expected : pattern) {
        if (at >= name.size())
            return std::nullopt;
        if (expected == u'#') {
            if (!isDigit(name[at]))
                return std::nullopt;
            while (at < name.size() && isDigit(name[at]))
                ++at;
            continue;
        }
        const bool isField = Moment::fields.contains(expected);
        if (isField ? !isDigit(name[at]) : name[at] != expected)
            return std::nullopt;
        if (isField)
            moment.add(expected, name[at]);
        ++at;
    }
    return moment.isPossible() ? std::optional(name.sliced(at)) : std::nullopt;
}

bool isCounter(QStringView text) {
    if (text.isEmpty())
        return true;
    if (text.startsWith(u" (") && text.endsWith(u')'))
        text = text.sliced(2).chopped(1);
    else if (text.front() == u'-' || text.front() == u'_')
        text = text.sliced(1);
    else
        return false;
    return !text.isEmpty() && std::ranges::all_of(text, isDigit);
}

} // namespace

bool CaptureNamePattern::matches(QStringView name) const {
    return matchesAfter(prefix, name);
}

bool CaptureNamePattern::matchesAfter(QStringView otherPrefix, QStringView name) const {
    if (!name.startsWith(otherPrefix, Qt::CaseInsensitive))
        return false;
    const auto rest = afterMoment(moment, name.sliced(otherPrefix.size()));
    return rest && rest->startsWith(suffix, Qt::CaseInsensitive) && isCounter(rest->sliced(suffix.size()));
}

} // namespace tembra
