#include "Child.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <thread>
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

// In user and system mode, as /proc/PID/stat has it (proc(5)); the name before it may hold spaces.
std::string processorTime(pid_t pid) {
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    std::string text;
    std::getline(file, text, '\0');
    std::istringstream words(text.substr(text.rfind(')') + 2));
    std::string word;
    for (int field = 3; field < 14; ++field)
        words >> word;
    std::string user;
    std::string system;
    words >> user >> system;
    return user + ' ' + system;
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

void Child::awaitRest() const {
    using namespace std::chrono_literals;
    std::string before;
    int quietSeconds = 0;
    while (quietSeconds < 3) {
        std::this_thread::sleep_for(1s);
        std::string used = processorTime(m_pid);
        quietSeconds = used == before ? quietSeconds + 1 : 0;
        before = std::move(used);
    }
}

long Child::wakeUps() const {
    long sum = 0;
    for (const auto &task : std::filesystem::directory_iterator("/proc/" + std::to_string(m_pid) + "/task"))
        sum += numberIn(task.path() / "status", "voluntary_ctxt_switches:");
    return sum;
}

} // namespace tembra::bench
