#include "updates/UpdateFeed.h"

#include "updates/UpdateFailure.h"

#include <QCoreApplication>

#include <utility>

namespace tembra {

namespace {

constexpr Scheduler::Duration deadline = std::chrono::seconds(60);
constexpr qint64 longestSignature = 1024;

QUrl signatureOf(QUrl feed) {
    feed.setPath(feed.path() + QStringLiteral(".sig"));
    return feed;
}

} // namespace

UpdateFeed::UpdateFeed(QNetworkAccessManager &network, Scheduler &scheduler, UpdateSignature publisher,
                       const QByteArray &authorities, Done done)
    : m_publisher(std::move(publisher)),
      m_done(std::move(done)),
      m_feed(network, scheduler, {.bytes = Appcast::mostBytes, .whole = deadline}, authorities),
      m_signature(network, scheduler, {.bytes = longestSignature, .whole = deadline}, authorities) {}

void UpdateFeed::read(const QUrl &url) {
    fetch(m_feed, url, m_feedBytes, [this, url] {
        fetch(m_signature, signatureOf(url), m_signatureBytes, [this] {
            const Done done = m_done;
            done(checked());
        });
    });
}

void UpdateFeed::fetch(HttpsTransfer &transfer, const QUrl &url, QByteArray &bytes,
                       std::function<void()> next) {
    transfer.start(
        url,
        [&bytes](const QByteArray &more) {
            bytes += more;
            return Result<void>();
        },
        [done = m_done, next = std::move(next)](const Result<void> &fetched) {
            if (fetched)
                next();
            else
                done(failure(fetched.error()));
        });
}

Result<Appcast> UpdateFeed::checked() const {
    const std::span bytes(reinterpret_cast<const uchar *>(m_feedBytes.constData()),
                          std::size_t(m_feedBytes.size()));
    if (!m_publisher.isOf(bytes, m_signatureBytes))
        return updateFailure(QCoreApplication::translate(
            "Updates", "The list of updates is not signed by the publisher of Tembra and was not used."));
    return Appcast::parse(m_feedBytes);
}

} // namespace tembra
