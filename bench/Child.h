#pragma once

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>

namespace tembra::bench {

// A process under measurement; killed when it goes out of scope.
class Child {
public:
    explicit Child(const std::vector<std::string> &command);
    ~Child();
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    [[nodiscard]] std::chrono::steady_clock::time_point startedAt() const { return m_startedAt; }
    // Proportional set size in KiB, from /proc/PID/smaps_rollup.
    [[nodiscard]] long proportionalKiB() const;
    // Until it has used no processor time for three seconds.
    void awaitRest() const;
    // Times that any thread of the process was given a processor after waiting, from /proc/PID/task/*/status.
    [[nodiscard]] long wakeUps() const;

private:
    pid_t m_pid = -1;
    std::chrono::steady_clock::time_point m_startedAt;
};

} // namespace tembra::bench
