#pragma once

#include "base/Scheduler.h"
#include "platform/Thumbnails.h"
#include "platform/linux/PngThumbnailReader.h"
#include "platform/linux/ThumbnailCacheFolder.h"
#include "platform/linux/ThumbnailerPrograms.h"

#include <QStringList>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace tembra {

// Thumbnails from the user's shared cache, else decoded here and put into it. The threads start with the
// first request, sleep without waking while there is nothing to do, and serve the newest request first: what
// the user scrolled to counts more than what was scrolled past.
class FreedesktopThumbnails final : public Thumbnails {
public:
    struct Locations {
        // Holds the folders "normal", "large" and so on.
        QString cache;
        // Folders of "….thumbnailer" files, the most important one first.
        QStringList thumbnailers;
    };

    // The user's own, from the environment.
    [[nodiscard]] static Locations userLocations();

    // `scheduler` must outlive this.
    FreedesktopThumbnails(Scheduler &scheduler, Locations locations);
    ~FreedesktopThumbnails() override;
    FreedesktopThumbnails(const FreedesktopThumbnails &) = delete;
    FreedesktopThumbnails &operator=(const FreedesktopThumbnails &) = delete;

    [[nodiscard]] std::unique_ptr<Request> request(const QString &path, double sidePoints, double scale,
                                                   std::function<void(Result<Thumbnail>)> onDone) override;

private:
    struct Job;
    class JobRequest;

    void run();
    // The newest job that is still wanted, if there is one.
    std::shared_ptr<Job> take();
    // Sleeps until there are jobs; false when the threads are to end.
    bool awaitJobs();
    void perform(const std::shared_ptr<Job> &job, PngThumbnailReader &pngReader);
    void deliver(const std::shared_ptr<Job> &job, Result<QImage> picture);
    [[nodiscard]] Result<QImage> make(const Job &job, PngThumbnailReader &pngReader,
                                      std::optional<QImage> &toStore);
    [[nodiscard]] std::optional<QImage> fromProgram(const Job &job, const QString &type, int side);

    Scheduler &m_scheduler;
    const ThumbnailCacheFolder m_cache;
    const QStringList m_thumbnailerFolders;
    std::once_flag m_programsRead;
    std::optional<ThumbnailerPrograms> m_programs;

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::vector<std::shared_ptr<Job>> m_jobs;
    std::size_t m_idle = 0;
    bool m_ending = false;
    std::vector<std::thread> m_threads;
};

} // namespace tembra
