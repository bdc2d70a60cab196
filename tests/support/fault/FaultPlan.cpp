#include "support/fault/FaultPlan.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/syscall.h>
#include <unistd.h>

namespace tembra::fault {

namespace {

struct Plan {
    std::string folder;
    std::string kind;
    long at = 0;
    bool isForGood = false;
    int log = -1;
};

Plan planOfEnvironment() {
    const auto text = [](const char *name) {
        const char *const value = std::getenv(name);
        return std::string(value ? value : "");
    };
    Plan plan{.folder = text("TEMBRA_FAULT_FOLDER"), .kind = text("TEMBRA_FAULT_KIND")};
    plan.at = std::strtol(text("TEMBRA_FAULT_AT").c_str(), nullptr, 10);
    if (const std::string log = text("TEMBRA_FAULT_LOG"); !log.empty())
        plan.log = static_cast<int>(
            ::syscall(SYS_openat, AT_FDCWD, log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600));
    constexpr std::string_view ending = "-always";
    plan.isForGood = plan.kind.ends_with(ending);
    if (plan.isForGood)
        plan.kind.erase(plan.kind.size() - ending.size());
    return plan;
}

// Read once, as the program may change its environment, and never destroyed: it is asked until the very end.
const Plan &plan() {
    static const Plan *const plan = new Plan(planOfEnvironment());
    return *plan;
}

std::atomic<long> callCount = 0;

// Past the hook.
void writeDown(long number, const char *call, const Place &place) {
    std::array<char, 2 * PATH_MAX + 64> line{};
    const int length = std::snprintf(line.data(), line.size(), "%ld %s %s\n", number, call, place.text());
    ::syscall(SYS_write, plan().log, line.data(), std::min<std::size_t>(length, line.size() - 1));
}

int codeOf(std::string_view kind) {
    if (kind == "ENOSPC")
        return ENOSPC;
    if (kind == "EACCES")
        return EACCES;
    return EIO;
}

} // namespace

Place::Place(int descriptor) {
    std::array<char, 64> link{};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", descriptor);
    const ssize_t length = ::readlink(link.data(), m_text.data(), m_text.size() - 1);
    m_text[static_cast<std::size_t>(std::max<ssize_t>(length, 0))] = '\0';
}

Place::Place(int folder, const char *path) {
    if (!path) {
        *this = Place(folder);
        return;
    }
    if (*path != '/' && folder == AT_FDCWD && !::getcwd(m_text.data(), PATH_MAX))
        m_text[0] = '\0';
    if (*path != '/' && folder != AT_FDCWD)
        *this = Place(folder);
    const std::size_t length = std::strlen(m_text.data());
    std::snprintf(m_text.data() + length, m_text.size() - length, *path == '/' ? "%s" : "/%s", path);
}

bool Place::isWatched() const {
    const std::string &folder = plan().folder;
    return !folder.empty() && std::strncmp(text(), folder.c_str(), folder.size()) == 0 &&
           (text()[folder.size()] == '/' || text()[folder.size()] == '\0');
}

Fate fateOf(const char *call, const Place &place, int &code) {
    const long number = ++callCount;
    if (plan().log >= 0)
        writeDown(number, call, place);
    if (number != plan().at && !(plan().isForGood && plan().at > 0 && number > plan().at))
        return Fate::perform;
    if (plan().kind == "kill-before")
        return Fate::dieBefore;
    if (plan().kind == "kill-after")
        return Fate::dieAfter;
    code = codeOf(plan().kind);
    return Fate::fail;
}

void die() {
    ::kill(::getpid(), SIGKILL);
    // Another thread may be the one that the signal reaches.
    while (true)
        ::pause();
}

} // namespace tembra::fault
