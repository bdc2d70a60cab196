// The recognition worker: reads the text of the picture on its standard input; see WorkerProtocol.h. A
// process of its own, because the engine can be ended only with it, and may fall over foreign pictures.

#include "platform/linux/recognition/WorkerProtocol.h"
#include "platform/linux/recognition/worker/PageReader.h"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
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
    // More than a picture of 8K takes; a worker that runs wild ends instead of the desktop.
    constexpr rlim_t more = rlim_t{3} << 30;
    constexpr rlim_t seconds = 300;
    const rlim_t memory = addressSpace() + more;
    const rlimit space{memory, memory};
    const rlimit time{seconds, seconds};
    const rlimit none{0, 0};
    setrlimit(RLIMIT_AS, &space);
    setrlimit(RLIMIT_CPU, &time);
    // Nothing of the picture is to stay on the disk.
    setrlimit(RLIMIT_CORE, &none);
    prctl(PR_SET_DUMPABLE, 0);
    // The desktop comes first.
    constexpr int niceness = 5;
    setpriority(PRIO_PROCESS, 0, niceness);
}

PixOwner greyPicture(const PictureHeader &header, const unsigned char *rows) {
    PixOwner grey(pixCreate(static_cast<int>(header.width), static_cast<int>(header.height), 8));
    if (!grey)
        return {};
    l_uint32 *const data = pixGetData(grey.get());
    const int wordsPerLine = pixGetWpl(grey.get());
    for (std::uint32_t y = 0; y < header.height; ++y) {
        l_uint32 *const line = data + std::ptrdiff_t{y} * wordsPerLine;
        const unsigned char *const row = rows + std::size_t{y} * header.bytesPerRow;
        for (std::uint32_t x = 0; x < header.width; ++x)
            SET_DATA_BYTE(line, x, row[x]);
    }
    return grey;
}

// Null when it is none.
PixOwner pictureFromInput() {
    constexpr std::uint32_t longestSide = 32'767;
    struct stat status {};
    if (fstat(STDIN_FILENO, &status) != 0 || status.st_size < static_cast<off_t>(sizeof(PictureHeader)))
        return {};
    const auto size = static_cast<std::size_t>(status.st_size);
    void *const memory = mmap(nullptr, size, PROT_READ, MAP_SHARED, STDIN_FILENO, 0);
    if (memory == MAP_FAILED)
        return {};
    PictureHeader header;
    std::memcpy(&header, memory, sizeof header);
    const bool isWhole = header.magic == PictureHeader::expectedMagic && header.width > 0 &&
                         header.height > 0 && header.width <= longestSide && header.height <= longestSide &&
                         header.bytesPerRow >= header.width &&
                         std::size_t{header.bytesPerRow} * header.height <= size - sizeof header;
    const auto *const rows = static_cast<const unsigned char *>(memory) + sizeof header;
    PixOwner picture = isWhole ? greyPicture(header, rows) : PixOwner();
    munmap(memory, size);
    return picture;
}

void print(const std::vector<ReadLine> &lines) {
    for (const ReadLine &line : lines) {
        for (const auto &[text, box] : line)
            std::printf("%.1f %.1f %.1f %.1f %s\n", box.left, box.top, box.right, box.bottom, text.c_str());
        std::puts("");
    }
    std::puts(endMark);
}

} // namespace

int main(int argc, char **argv) {
    limitItself();
    if (argc != 2)
        return unusable;
    setMsgSeverity(L_SEVERITY_NONE);
    const PixOwner picture = pictureFromInput();
    if (!picture)
        return unusable;
    const auto lines = readPage(picture.get(), argv[1]);
    if (!lines)
        return lines.error();
    print(*lines);
    return std::fflush(stdout) == 0 ? recognized : unusable;
}
