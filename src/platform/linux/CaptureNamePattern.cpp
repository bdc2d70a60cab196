#include "platform/linux/CaptureNamePattern.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tembra {

namespace {

// What may stand between the words of a name and its moment.
constexpr QStringView separators = u" _-.,";

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

// What tools put around the number of a further capture in the same moment.
struct Brackets {
    QStringView before;
    QStringView after;
};
constexpr Brackets counters[]{{u" (", u")"}, {u"(", u")"}, {u" - ", u""},
                              {u" — ", u""}, {u"-", u""},  {u"_", u""}};

bool isCounter(QStringView text) {
    const auto isWithin = [text](const Brackets &brackets) {
        const qsizetype around = brackets.before.size() + brackets.after.size();
        return text.size() > around && text.startsWith(brackets.before) && text.endsWith(brackets.after) &&
               std::ranges::all_of(text.sliced(brackets.before.size(), text.size() - around), isDigit);
    };
    return text.isEmpty() || std::ranges::any_of(counters, isWithin);
}

} // namespace

bool CaptureNamePattern::matches(QStringView name) const {
    return name.startsWith(prefix, Qt::CaseInsensitive) && matchesMoment(name.sliced(prefix.size()));
}

bool CaptureNamePattern::matchesAfter(QStringView otherPrefix, QStringView name) const {
    if (!name.startsWith(otherPrefix, Qt::CaseInsensitive))
        return false;
    QStringView rest = name.sliced(otherPrefix.size());
    while (!rest.isEmpty() && separators.contains(rest.front()))
        rest = rest.sliced(1);
    return matchesMoment(rest);
}

bool CaptureNamePattern::matchesMoment(QStringView text) const {
    const auto rest = afterMoment(moment, text);
    return rest && rest->startsWith(suffix, Qt::CaseInsensitive) && isCounter(rest->sliced(suffix.size()));
}

} // namespace tembra
