#pragma once

#include <QString>

#include <utility>

namespace tembra {

// A failure as a value: the domain is named after the type that understood it ("Tembra.AutoClean"), or is
// "POSIX" for an errno; `message` is the one sentence that the user reads.
struct Error {
    QString domain;
    int code = 0;
    QString message;
    QString recoverySuggestion;

    bool operator==(const Error &) const = default;
};

// The domain of errors whose code is an errno.
inline const QString posixErrorDomain = QStringLiteral("POSIX");

} // namespace tembra
