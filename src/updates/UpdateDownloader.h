#pragma once

#include "base/Generation.h"
#include "base/SerialQueue.h"
#include "updates/Appcast.h"
#include "updates/HttpsTransfer.h"
#include "updates/UpdateSignature.h"

#include <QFile>

#include <functional>
#include <memory>

namespace tembra {

// Fetches the file of an update into a folder of the user's alone, under a name that nobody opens, and gives
// it its own only when it is as long as announced and the publisher's. What is not is deleted. The folder
// holds one update: an earlier one goes. Main thread; dropping it ends the download.
class UpdateDownloader {
public:
    struct Services {
        QNetworkAccessManager &network;
        Scheduler &scheduler;
        // Reads what was written.
        SerialQueue &queue;
    };
    using Done = std::function<void(const Result<QString> &path)>;

    UpdateDownloader(const Services &services, UpdateSignature publisher, AppcastItem item,
                     const QString &folder, const QByteArray &authorities);
    ~UpdateDownloader();
    UpdateDownloader(const UpdateDownloader &) = delete;
    UpdateDownloader &operator=(const UpdateDownloader &) = delete;

    // Of the file, 0 to 1.
    std::function<void(double)> onProgress;
    // `done` comes once and may destroy this.
    void start(Done done);

    // Removes the folder with what is in it.
    static void clear(const QString &folder);

private:
    [[nodiscard]] Result<void> prepare();
    Result<void> write(const QByteArray &bytes);
    void check(const Result<void> &transferred);
    [[nodiscard]] Result<QString> keep();
    void finish(const Result<QString> &result);

    const Services m_services;
    const UpdateSignature m_publisher;
    const AppcastItem m_item;
    const QString m_folder;
    HttpsTransfer m_transfer;
    QFile m_file;
    Done m_done;
    Generation m_generation;
};

} // namespace tembra
