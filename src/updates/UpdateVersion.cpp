#include "updates/UpdateVersion.h"

#include <QList>

#include <algorithm>

namespace tembra {

namespace {

constexpr qsizetype longestVersion = 64;

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

bool isNumber(QStringView text) {
    return !text.isEmpty() && std::ranges::all_of(text, isDigit);
}

std::optional<std::vector<quint32>> numbersOf(QStringView text) {
    std::vector<quint32> numbers;
    for (const QStringView part : text.split(u'.')) {
        bool fits = false;
        const quint32 number = part.toUInt(&fits);
        if (!fits || !isNumber(part))
            return std::nullopt;
        numbers.push_back(number);
    }
    while (!numbers.empty() && numbers.back() == 0)
        numbers.pop_back();
    return numbers;
}

bool isSuffixPart(QStringView part) {
    return !part.isEmpty() && std::ranges::all_of(part, [](QChar character) {
        return character.unicode() < 0x80 && (character.isLetterOrNumber() || character == u'-');
    });
}

// Numbers by their value and before words, as semantic versioning has it.
std::strong_ordering compareParts(const QString &one, const QString &other) {
    const bool isNumeric = isNumber(one);
    if (isNumeric != isNumber(other))
        return isNumeric ? std::strong_ordering::less : std::strong_ordering::greater;
    if (isNumeric) {
        if (const auto order = one.toULongLong() <=> other.toULongLong(); order != 0)
            return order;
    }
    return one.compare(other) <=> 0;
}

} // namespace

std::optional<UpdateVersion> UpdateVersion::parse(QStringView text) {
    if (text.size() > longestVersion)
        return std::nullopt;
    const QStringView version = text.left(text.indexOf(u'+') < 0 ? text.size() : text.indexOf(u'+'));
    const auto *const end =
        std::ranges::find_if_not(version, [](QChar c) { return isDigit(c) || c == u'.'; });
    const auto numbersLength = end - version.begin();
    const auto numbers = numbersOf(version.left(numbersLength));
    if (!numbers)
        return std::nullopt;
    UpdateVersion parsed;
    parsed.m_numbers = *numbers;
    QStringView suffix = version.mid(numbersLength);
    if (suffix.isEmpty())
        return parsed;
    if (suffix.startsWith(u'-'))
        suffix = suffix.mid(1);
    for (const QStringView part : suffix.split(u'.')) {
        if (!isSuffixPart(part))
            return std::nullopt;
        parsed.m_suffix.push_back(part.toString());
    }
    return parsed;
}

std::optional<UpdateVersion> UpdateVersion::parseNumbers(QStringView text) {
    const auto *const end = std::ranges::find_if_not(text, [](QChar c) { return isDigit(c) || c == u'.'; });
    return parse(text.left(end - text.begin()));
}

std::strong_ordering UpdateVersion::operator<=>(const UpdateVersion &other) const {
    if (const auto order = m_numbers <=> other.m_numbers; order != 0)
        return order;
    if (m_suffix.empty() != other.m_suffix.empty())
        return m_suffix.empty() ? std::strong_ordering::greater : std::strong_ordering::less;
    return std::lexicographical_compare_three_way(m_suffix.begin(), m_suffix.end(), other.m_suffix.begin(),
                                                  other.m_suffix.end(), compareParts);
}

} // namespace tembra
