#pragma once

#include <cstdlib>
#include <sys/types.h>
#include <unistd.h>

namespace tembra {

// While it lives, permissions count for this process even when root runs it.
class Unprivileged {
public:
    Unprivileged() : m_isDropped(::geteuid() == 0 && ::setresuid(nobody, nobody, 0) == 0) {}
    ~Unprivileged() {
        if (m_isDropped && ::setresuid(0, 0, 0) != 0)
            std::abort();
    }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

private:
    static constexpr uid_t nobody = 65534;

    const bool m_isDropped;
};

} // namespace tembra
