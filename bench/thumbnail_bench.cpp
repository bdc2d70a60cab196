// Thumbnails of captures, with the cache of thumbnails empty and filled, beside the thumbnailer programs of
// other desktops, which make each one in a process of its own. Run through bench/run.

#include "InterfacePictures.h"
#include "Row.h"
#include "Scratch.h"
#include "base/QtScheduler.h"
#include "platform/linux/FreedesktopThumbnails.h"

#include <QBuffer>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace tembra;
using namespace tembra::bench;

namespace {

constexpr int captureCount = 1'000;
constexpr int distinctCount = 24;
constexpr int rounds = 3;

void require(bool condition, const char *what) {
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

// Half of them 1920 × 1080 and half 1280 × 720, saved as screenshot tools do.
QStringList writeCaptures(const QDir &folder) {
    QList<QByteArray> files;
    for (int number = 0; number < distinctCount; ++number) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        require(interfacePicture(number % 2 == 0 ? QSize(1920, 1080) : QSize(1280, 720), number)
                    .save(&buffer, "PNG"),
                "cannot encode");
        files += buffer.data();
    }
    QStringList paths;
    for (int i = 0; i < captureCount; ++i) {
        QFile file(folder.filePath(QStringLiteral("Screenshot %1.png").arg(i)));
        const QByteArray &bytes = files[i % distinctCount];
        require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
                "cannot write captures");
        paths += file.fileName();
    }
    return paths;
}

// Milliseconds a thumbnail, from the first request to the last answer.
double ours(const QStringList &captures, const QString &cache) {
    QtScheduler scheduler;
    FreedesktopThumbnails thumbnails(scheduler, {cache, {}});
    QEventLoop loop;
    qsizetype answers = 0;
    std::vector<std::unique_ptr<Thumbnails::Request>> requests;
    return milliseconds([&] {
               for (const QString &path : captures) {
                   requests.push_back(thumbnails.request(path, 64, 1, [&](const auto &result) {
                       require(result && result->isThumbnail, "no thumbnail");
                       if (++answers == captures.size())
                           loop.quit();
                   }));
               }
               loop.exec();
           }) /
           static_cast<double>(captures.size());
}

// Runs a program whose words nobody is to read.
bool succeeds(std::vector<std::string> command) {
    std::vector<char *> arguments;
    for (std::string &word : command)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = -1;
    int status = -1;
    const bool ended =
        posix_spawnp(&child, arguments.front(), &quiet, nullptr, arguments.data(), environ) == 0 &&
        waitpid(child, &status, 0) == child;
    posix_spawn_file_actions_destroy(&quiet);
    return ended && status == 0;
}

// The same for a program that is given a file's name and where to put its thumbnail, with as many at work at
// once as there are processors.
double program(const std::vector<std::string> &command, const QStringList &captures, const QDir &folder) {
    std::atomic<qsizetype> next = 0;
    const auto work = [&] {
        while (true) {
            const qsizetype number = next++;
            if (number >= captures.size())
                return;
            std::vector<std::string> words = command;
            const QString output = folder.filePath(QStringLiteral("%1.png").arg(number));
            for (std::string &word : words) {
                if (word == "INPUT")
                    word = captures[number].toStdString();
                if (word == "OUTPUT")
                    word = output.toStdString();
            }
            require(succeeds(words) && QFile::exists(output), "a thumbnailer program did not work");
        }
    };
    return milliseconds([&] {
               std::vector<std::jthread> threads;
               for (unsigned i = 0; i < std::thread::hardware_concurrency(); ++i)
                   threads.emplace_back(work);
           }) /
           static_cast<double>(captures.size());
}

bool isInstalled(const char *name) {
    return !QStandardPaths::findExecutable(QLatin1StringView(name)).isEmpty();
}

// The faster one of the programs that are installed.
double programs(const QStringList &captures, const QDir &folder) {
    std::vector<double> times;
    if (isInstalled("gdk-pixbuf-thumbnailer"))
        times.push_back(
            program({"gdk-pixbuf-thumbnailer", "-s", "128", "INPUT", "OUTPUT"}, captures, folder));
    // Much the slower one.
    if (isInstalled("ffmpegthumbnailer"))
        times.push_back(program({"ffmpegthumbnailer", "-s", "128", "-i", "INPUT", "-o", "OUTPUT"},
                                captures.first(60), folder));
    require(!times.empty(), "no thumbnailer program is installed");
    return *std::ranges::min_element(times);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir scratch(scratchTemplate("thumbnail-bench"));
    const QDir folder(scratch.path());
    const QStringList captures = writeCaptures(folder);
    require(folder.mkdir(QStringLiteral("programs")), "cannot write");
    std::vector<double> cold;
    std::vector<double> warm;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        const QString cache = folder.filePath(QStringLiteral("cache%1").arg(round));
        cold.push_back(ours(captures, cache));
        warm.push_back(ours(captures, cache));
        theirs.push_back(programs(captures.mid(round * captureCount / rounds, captureCount / rounds),
                                  QDir(folder.filePath(QStringLiteral("programs")))));
    }
    printRow("a thumbnail, cold cache / thumbnailer program", median(cold), median(theirs), "ms", 0.2);
    printRow("a thumbnail, warm cache / thumbnailer program", median(warm), median(theirs), "ms", 0.05);
    return 0;
}
