// Thumbnails of captures, with the cache of thumbnails empty and filled, beside the thumbnailer programs of
// other desktops, which make each one in a process of its own; and how one grows with its picture.

#include "InterfacePictures.h"
#include "PictureSizes.h"
#include "Require.h"
#include "Row.h"
#include "Scratch.h"
#include "Timing.h"
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

#include <array>
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
double programTime(const std::vector<std::string> &command, const QStringList &captures, const QDir &folder) {
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

// The programs that are installed, and how many captures are enough for them.
struct Program {
    std::string name;
    std::vector<std::string> command;
    qsizetype captures = 0;
    std::vector<double> times{};
};

std::vector<Program> installedPrograms() {
    const std::array known{
        Program{"gdk-pixbuf-thumbnailer",
                {"gdk-pixbuf-thumbnailer", "-s", "128", "INPUT", "OUTPUT"},
                captureCount / rounds},
        Program{"ffmpegthumbnailer", {"ffmpegthumbnailer", "-s", "128", "-i", "INPUT", "-o", "OUTPUT"}, 60}};
    std::vector<Program> installed;
    for (const Program &program : known) {
        if (isInstalled(program.name.c_str()))
            installed.push_back(program);
        else
            printNote(program.name + " is not installed");
    }
    return installed;
}

// The fastest of them.
std::optional<Peer> fastest(const std::vector<Program> &programs) {
    std::optional<Peer> best;
    for (const Program &program : programs) {
        const double time = median(program.times);
        if (!best || time < best->value)
            best = Peer{program.name, time};
    }
    return best;
}

void measureCaptures(const QDir &folder) {
    const QStringList captures = writeCaptures(folder);
    require(folder.mkdir(QStringLiteral("programs")), "cannot write");
    std::vector<Program> programs = installedPrograms();
    std::vector<double> cold;
    std::vector<double> warm;
    for (int round = 0; round < rounds; ++round) {
        const QString cache = folder.filePath(QStringLiteral("cache%1").arg(round));
        cold.push_back(ours(captures, cache));
        warm.push_back(ours(captures, cache));
        for (Program &program : programs) {
            const QStringList some = captures.mid(round * program.captures, program.captures);
            program.times.push_back(
                programTime(program.command, some, QDir(folder.filePath(QStringLiteral("programs")))));
        }
    }
    const std::optional<Peer> peer = fastest(programs);
    printArea("Thumbnails");
    printRow({.what = "a thumbnail of 1,000, cold cache",
              .ours = median(cold),
              .unit = "ms",
              .peer = peer,
              .goal = atMostTimes(1.0 / 5)});
    printRow({.what = "a thumbnail of 1,000, warm cache",
              .ours = median(warm),
              .unit = "ms",
              .peer = peer,
              .goal = atMostTimes(1.0 / 20)});
}

void measureSizes(const QDir &folder) {
    for (const PictureSize &size : pictureSizes) {
        const QString path = folder.filePath(QStringLiteral("%1.png").arg(size.megapixels));
        require(interfacePicture(size.pixels, 1).save(path), "cannot write");
        std::vector<double> cold;
        for (int round = 0; round < 5; ++round)
            cold.push_back(
                ours({path}, folder.filePath(QStringLiteral("cache-%1-%2").arg(size.megapixels).arg(round))));
        printGrowth("megapixels", size.megapixels, "thumbnail, cold cache", "ms", median(cold));
    }
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir scratch(scratchTemplate("thumbnail-bench"));
    measureCaptures(QDir(scratch.path()));
    measureSizes(QDir(scratch.path()));
    return EXIT_SUCCESS;
}
