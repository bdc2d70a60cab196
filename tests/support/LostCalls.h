#pragma once

#include <array>
#include <cerrno>
#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

namespace tembra {

// Takes away from this process for good what older kernels and some file systems do not have: renameat2 and
// openat2; gives whether it could.
inline bool loseNewerCalls() {
    constexpr auto answer = [](unsigned code) { return SECCOMP_RET_ERRNO | code; };
    std::array<sock_filter, 6> rules{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_renameat2, 2, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat2, 2, 0),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        BPF_STMT(BPF_RET | BPF_K, answer(EINVAL)),
        BPF_STMT(BPF_RET | BPF_K, answer(ENOSYS)),
    }};
    const sock_fprog filter{rules.size(), rules.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

} // namespace tembra
