#include "screenshots/CaptureName.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

constexpr std::array<QStringView, 3> imagePrefixes{u"screenshot", u"screen shot", u"снимок экрана"};
constexpr std::array<QStringView, 2> videoPrefixes{u"screen recording", u"запись экрана"};

// An optional dash, a date with the year first or last, an optional word, a time of 12 or 24 hours, an
// optional counter.
const QRegularExpression &moment() {
    static const QRegularExpression expression(
        QStringLiteral("^(?:[-–—] )?"
                       "(?:\\d{4}[-.]\\d{1,2}[-.]\\d{1,2}|\\d{1,2}[-.]\\d{1,2}[-.]\\d{4})"
                       "(?: \\p{L}+)? "
                       "(?:[01]?\\d|2[0-3])[.:][0-5]\\d(?:[.:][0-5]\\d)?"
                       "(?: ?[ap]m)?(?: \\(\\d+\\))?$"),
        QRegularExpression::UseUnicodePropertiesOption | QRegularExpression::DontCaptureOption);
    return expression;
}

bool isMoment(QStringView text) {
    // Most names that begin like a capture's go on with another word: that needs no expression.
    const bool mayBe =
        !text.isEmpty() && (text.front().isDigit() || QStringView(u"-–—").contains(text.front()));
    return mayBe && moment().match(text.toString()).hasMatch();
}

bool follows(QStringView name, QStringView prefix) {
    if (!name.startsWith(prefix))
        return false;
    QStringView rest = name.sliced(prefix.size());
    if (rest.startsWith(u' '))
        rest = rest.sliced(1);
    return isMoment(rest);
}

} // namespace

bool isCaptureName(QStringView baseName, bool isVideo, QStringView customPrefix) {
    // 12-hour times are written with a narrow no-break space by newer systems.
    const QString name = baseName.toString().toLower().replace(QChar(0x202f), u' ');
    if (!customPrefix.isEmpty() && follows(name, customPrefix.toString().toLower()))
        return true;
    const auto matches = [&name](QStringView prefix) { return follows(name, prefix); };
    return isVideo ? std::ranges::any_of(videoPrefixes, matches)
                   : std::ranges::any_of(imagePrefixes, matches);
}

} // namespace tembra
