#pragma once

#include <QTemporaryDir>

namespace tembra::bench {

// A home with so many captures, of a user who is past the onboarding. While it lives, the environment of this
// process and of those that it starts leads there.
class UserHome {
public:
    explicit UserHome(int captures);

    [[nodiscard]] QString captures() const;

private:
    const QTemporaryDir m_folder;
};

} // namespace tembra::bench
