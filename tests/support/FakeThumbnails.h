#pragma once

#include "platform/Thumbnails.h"

#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

namespace tembra {

// Makes a picture when the test says so. A request whose handle was dropped is never answered.
class FakeThumbnails final : public Thumbnails {
public:
    [[nodiscard]] std::unique_ptr<Request> request(const QString &path, double sidePoints, double scale,
                                                   std::function<void(Result<Thumbnail>)> onDone) override {
        const auto job = std::make_shared<Job>(Job{path, sidePoints, scale, std::move(onDone)});
        std::erase_if(m_jobs, [](const auto &known) { return known.expired(); });
        m_jobs.push_back(job);
        ++m_requestCount;
        return std::make_unique<Handle>(job);
    }

    // Paths that wait for their picture, in the order asked for.
    [[nodiscard]] QStringList waiting() const {
        QStringList paths;
        for (const auto &known : m_jobs) {
            const auto job = known.lock();
            if (job && job->onDone)
                paths += job->path;
        }
        return paths;
    }
    [[nodiscard]] int requestCount() const { return m_requestCount; }

    // Each answers the oldest request that waits for the path, and tells whether there was one.
    bool answer(const QString &path, const QColor &color = Qt::red, QSize points = {64, 36}) {
        return finish(path, [&](const Job &job) -> Result<Thumbnail> {
            QImage image(QSizeF(QSizeF(points).boundedTo({job.side, job.side}) * job.scale).toSize(),
                         QImage::Format_ARGB32_Premultiplied);
            image.setDevicePixelRatio(job.scale);
            image.fill(color);
            return Thumbnail{image, true};
        });
    }
    bool answerWith(const QString &path, const Result<Thumbnail> &thumbnail) {
        return finish(path, [&](const Job &) { return thumbnail; });
    }
    bool fail(const QString &path) {
        return answerWith(path, failure({.domain = QStringLiteral("Tembra.ScreenshotThumbnail"), .code = 1}));
    }

private:
    struct Job {
        QString path;
        double side = 0;
        double scale = 1;
        std::function<void(Result<Thumbnail>)> onDone;
    };
    class Handle final : public Request {
    public:
        explicit Handle(std::shared_ptr<Job> job) : m_job(std::move(job)) {}

    private:
        std::shared_ptr<Job> m_job;
    };

    template <class Make>
    bool finish(const QString &path, const Make &make) {
        for (const auto &known : m_jobs) {
            const auto job = known.lock();
            if (!job || job->path != path || !job->onDone)
                continue;
            const auto onDone = std::exchange(job->onDone, nullptr);
            onDone(make(*job));
            return true;
        }
        return false;
    }

    std::vector<std::weak_ptr<Job>> m_jobs;
    int m_requestCount = 0;
};

} // namespace tembra
