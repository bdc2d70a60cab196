// The recognition worker: reads the text of the pictures that come over its standard input; see
// WorkerProtocol.h. A process of its own, because the engine can be ended only with it, and may fall over
// foreign pictures.

#include "platform/linux/recognition/WorkerProtocol.h"
#include "platform/linux/recognition/worker/PageReader.h"
#include "platform/linux/recognition/worker/PictureSocket.h"
#include "platform/linux/recognition/worker/TextEngine.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fstream>
#include <leptonica/allheaders.h>
#include <malloc.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace tembra::recognition;

namespace {

// Bytes that are mapped now.
rlim_t addressSpace() {
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

void limitItself() {
    // It does not outlive the program.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // More than a picture of 8K takes; a worker that runs wild ends instead of the desktop.
    constexpr rlim_t more = rlim_t{3} << 30;
    const rlim_t memory = addressSpace() + more;
    const rlimit space{memory, memory};
    const rlimit none{0, 0};
    setrlimit(RLIMIT_AS, &space);
    // Nothing of the picture is to stay on the disk.
    setrlimit(RLIMIT_CORE, &none);
    prctl(PR_SET_DUMPABLE, 0);
}

// What the next picture may take.
void limitTime() {
    constexpr rlim_t seconds = 300;
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    const rlimit time{static_cast<rlim_t>(used.tv_sec) + seconds, RLIM_INFINITY};
    setrlimit(RLIMIT_CPU, &time);
}

int nameLanguages() {
    const std::vector<std::string> languages = TextEngine::installedLanguages();
    for (const std::string &language : languages)
        std::printf("%s\n", language.c_str());
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char **argv) {
    limitItself();
    if (argc == 2 && std::strcmp(argv[1], languagesOption) == 0)
        return nameLanguages();
    if (argc != 3)
        return EXIT_FAILURE;
    setMsgSeverity(L_SEVERITY_NONE);
    const std::chrono::milliseconds idleTime(std::atoi(argv[2]));
    const PictureSocket socket(STDIN_FILENO);
    PageReader reader(argv[1]);
    while (const auto picture = socket.next(idleTime)) {
        limitTime();
        const auto lines = reader.read(*picture);
        if (!lines) {
            (void)socket.say(lines.error() == ReadingFault::noLanguage ? noLanguageMark : "");
            return EXIT_FAILURE;
        }
        if (!socket.answer(*lines))
            break;
        malloc_trim(0);
    }
    return EXIT_SUCCESS;
}
