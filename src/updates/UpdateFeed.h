#pragma once

#include "updates/Appcast.h"
#include "updates/HttpsTransfer.h"
#include "updates/UpdateSignature.h"

#include <functional>
#include <memory>

namespace tembra {

// Reads the feed once: its bytes, then their signature from the same address with ".sig" behind the path, and
// looks into them only when they are the publisher's. Main thread; dropping it ends the reading.
class UpdateFeed {
public:
    using Done = std::function<void(const Result<Appcast> &)>;

    // `done` comes once and may destroy this.
    UpdateFeed(QNetworkAccessManager &network, Scheduler &scheduler, UpdateSignature publisher,
               const QByteArray &authorities, Done done);

    void read(const QUrl &url);

private:
    void fetch(HttpsTransfer &transfer, const QUrl &url, QByteArray &bytes, std::function<void()> next);
    [[nodiscard]] Result<Appcast> checked() const;

    const UpdateSignature m_publisher;
    const Done m_done;
    HttpsTransfer m_feed;
    HttpsTransfer m_signature;
    QByteArray m_feedBytes;
    QByteArray m_signatureBytes;
};

} // namespace tembra
