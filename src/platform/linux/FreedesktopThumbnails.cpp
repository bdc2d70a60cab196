#include "platform/linux/FreedesktopThumbnails.h"

#include "base/FilePath.h"
#include "base/MainThread.h"
#include "platform/linux/ThumbnailDecoder.h"

#include <QImageReader>
#include <QMimeDatabase>
#include <QStandardPaths>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cmath>
#include <sys/stat.h>
#include <utility>

namespace tembra {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds programLimit = 10s;

// More would take too much memory for large pictures.
std::size_t mostThreads() {
    return std::clamp(std::thread::hardware_concurrency(), 2U, 4U);
}

bool exists(const QString &path) {
    struct stat status {};
    return ::stat(pathBytes(path).constData(), &status) == 0;
}

} // namespace

struct FreedesktopThumbnails::Job {
    QString path;
    int pixels = 0;
    double scale = 1;
    std::atomic<bool> cancelled = false;
    // Main thread only.
    std::function<void(Result<Thumbnail>)> onDone;
};

class FreedesktopThumbnails::JobRequest final : public Request {
public:
    explicit JobRequest(std::shared_ptr<Job> job) : m_job(std::move(job)) {}
    ~JobRequest() override {
        m_job->cancelled = true;
        m_job->onDone = nullptr;
    }

private:
    std::shared_ptr<Job> m_job;
};

FreedesktopThumbnails::Locations FreedesktopThumbnails::userLocations() {
    return {ThumbnailCacheFolder::userRoot(),
            QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("thumbnailers"),
                                      QStandardPaths::LocateDirectory)};
}

FreedesktopThumbnails::FreedesktopThumbnails(Scheduler &scheduler, Locations locations)
    : m_scheduler(scheduler),
      m_cache(std::move(locations.cache)),
      m_thumbnailerFolders(std::move(locations.thumbnailers)) {}

FreedesktopThumbnails::~FreedesktopThumbnails() {
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
        m_jobs.clear();
    }
    m_wake.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
}

std::unique_ptr<Thumbnails::Request>
FreedesktopThumbnails::request(const QString &path, double sidePoints, double scale,
                               std::function<void(Result<Thumbnail>)> onDone) {
    requireMainThread();
    auto job = std::make_shared<Job>();
    job->path = path;
    job->pixels = std::max(1, static_cast<int>(std::ceil(sidePoints * scale)));
    job->scale = scale;
    job->onDone = std::move(onDone);
    {
        const std::lock_guard lock(m_mutex);
        std::erase_if(m_jobs, [](const auto &waiting) { return waiting->cancelled.load(); });
        m_jobs.push_back(job);
        if (m_jobs.size() > m_idle && m_threads.size() < mostThreads())
            m_threads.emplace_back([this] { run(); });
    }
    m_wake.notify_one();
    return std::make_unique<JobRequest>(std::move(job));
}

void FreedesktopThumbnails::run() {
    do {
        // Its memory goes while there is nothing to do.
        PngThumbnailReader pngReader;
        while (const std::shared_ptr<Job> job = take())
            perform(job, pngReader);
    } while (awaitJobs());
}

std::shared_ptr<FreedesktopThumbnails::Job> FreedesktopThumbnails::take() {
    const std::lock_guard lock(m_mutex);
    while (!m_jobs.empty()) {
        std::shared_ptr<Job> job = std::move(m_jobs.back());
        m_jobs.pop_back();
        if (!job->cancelled)
            return job;
    }
    return nullptr;
}

bool FreedesktopThumbnails::awaitJobs() {
    std::unique_lock lock(m_mutex);
    ++m_idle;
    m_wake.wait(lock, [this] { return m_ending || !m_jobs.empty(); });
    --m_idle;
    return !m_ending;
}

void FreedesktopThumbnails::perform(const std::shared_ptr<Job> &job, PngThumbnailReader &pngReader) {
    // Only regular files are opened: a named pipe would hold the thread for ever.
    const auto source = ThumbnailCacheFolder::sourceOf(job->path);
    if (!source) {
        deliver(job, exists(job->path) ? Result<QImage>() : failure(unreadablePicture()));
        return;
    }
    if (const auto cached = m_cache.find(*source, job->pixels)) {
        deliver(job, reduced(*cached, job->pixels).image);
        return;
    }
    std::optional<QImage> toStore;
    deliver(job, make(*job, pngReader, toStore));
    if (!toStore)
        return;
    m_cache.store(*source, *toStore);
    // A file that changed while it was read has a thumbnail of neither version. Asked afterwards: who changed
    // it may have looked for what is to be forgotten just before.
    if (ThumbnailCacheFolder::sourceOf(job->path) != source)
        m_cache.forget(job->path);
}

Result<QImage> FreedesktopThumbnails::make(const Job &job, PngThumbnailReader &pngReader,
                                           std::optional<QImage> &toStore) {
    const int side = ThumbnailCacheFolder::sideFor(job.pixels);
    if ((toStore = pngReader.read(job.path, side)))
        return reduced(*toStore, job.pixels).image;
    auto picture = decodeReduced(job.path, side);
    if (picture && !*picture)
        picture = decodeReducedHeif(job.path, side);
    if (!picture)
        return failure(picture.error());
    if (!*picture) {
        const QString type = QMimeDatabase().mimeTypeForFile(job.path).name();
        if (QImageReader::supportedMimeTypes().contains(type.toLatin1()))
            return failure(unreadablePicture());
        const auto drawn = fromProgram(job, type, side);
        if (!drawn)
            return QImage();
        *picture = DecodedPicture{reduced(*drawn, side).image, true};
    }
    if ((*picture)->wasReduced)
        toStore = (*picture)->image;
    return reduced((*picture)->image, job.pixels).image;
}

std::optional<QImage> FreedesktopThumbnails::fromProgram(const Job &job, const QString &type, int side) {
    std::call_once(m_programsRead, [this] { m_programs.emplace(m_thumbnailerFolders); });
    return m_programs->run(job.path, type, side, programLimit, [&] { return job.cancelled.load(); });
}

void FreedesktopThumbnails::deliver(const std::shared_ptr<Job> &job, Result<QImage> picture) {
    m_scheduler.post([job, picture = std::move(picture)]() mutable {
        // Whoever is told may drop the request, and with it the function that is running.
        const auto onDone = std::exchange(job->onDone, nullptr);
        if (!onDone)
            return;
        if (!picture) {
            onDone(failure(picture.error()));
            return;
        }
        picture->setDevicePixelRatio(job->scale);
        onDone(Thumbnail{*picture, !picture->isNull()});
    });
}

} // namespace tembra
