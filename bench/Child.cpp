#include "Child.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tembra::bench {

namespace {

// The number after `key` in a file of "Key:   number" lines; 0 when there is none.
long numberIn(const std::filesystem::path &file, const std::string &key) {
    std::ifstream lines(file);
    std::string line;
    while (std::getline(lines, line)) {
        if (line.starts_with(key))
            return std::strtol(line.c_str() + key.size(), nullptr, 10);
    }
    return 0;
}

} // namespace

Child::Child(const std::vector<std::string> &command) {
    std::vector<char *> arguments;
    for (const std::string &word : command)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    m_startedAt = std::chrono::steady_clock::now();
    if (posix_spawn(&m_pid, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0) {
        std::fprintf(stderr, "cannot start %s\n", arguments.front());
        std::exit(1);
    }
}

Child::~Child() {
    kill(m_pid, SIGTERM);
    waitpid(m_pid, nullptr, 0);
}

long Child::proportionalKiB() const {
    return numberIn("/proc/" + std::to_string(m_pid) + "/smaps_rollup", "Pss:");
}

long Child::wakeUps() const {
    long sum = 0;
    for (const auto &task : std::filesystem::directory_iterator("/proc/" + std::to_string(m_pid) + "/task"))
        sum += numberIn(task.path() / "status", "voluntary_ctxt_switches:");
    return sum;
}

} // namespace tembra::bench
