#pragma once

#include <QStringView>

namespace tembra {

// How a tool names its captures: fixed words around a moment. In `moment` the letters Y M D H I S stand for
// one digit each of year, month, day, hour, minute and second; '#' for one or more digits; everything else
// for itself. Letters outside of the moment match in either case.
struct CaptureNamePattern {
    QStringView prefix;
    QStringView moment;
    QStringView suffix = {};

    // Whether the name, without extension, is of this form; a counter may follow: "-1", "_2",
    // " (3)", "(4)", " - 5".
    [[nodiscard]] bool matches(QStringView name) const;
    // The same with other fixed words in front of the moment, with or without the separators that follow
    // them.
    [[nodiscard]] bool matchesAfter(QStringView otherPrefix, QStringView name) const;

private:
    [[nodiscard]] bool matchesMoment(QStringView text) const;
};

} // namespace tembra
