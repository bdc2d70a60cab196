#include "updates/HttpsTransfer.h"

#include "base/MainThread.h"
#include "updates/UpdateFailure.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslConfiguration>

#include <algorithm>
#include <array>
#include <utility>

namespace tembra {

namespace {

constexpr int mostRedirections = 5;
// What waits to be read; the rest stays with the server.
constexpr qint64 bufferSize = qint64(256) * 1024;

constexpr int found = 200;
constexpr std::array movedElsewhere{301, 302, 303, 307, 308};

QString text(const char *source) {
    return QCoreApplication::translate("Updates", source);
}

QString notSecure() {
    return text(QT_TRANSLATE_NOOP("Updates", "The update server offered a connection that is not secure."));
}

QString tooLong() {
    return text(QT_TRANSLATE_NOOP("Updates", "The update server sent more than it announced."));
}

QString tooSlow() {
    return text(QT_TRANSLATE_NOOP("Updates", "The update server did not answer in time."));
}

// Nothing of the user's goes out, and nothing is kept or changed on the way.
QNetworkRequest requestTrusting(const QByteArray &authorities) {
    QNetworkRequest request;
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setRawHeader("Accept-Encoding", "identity");
    request.setRawHeader("Accept-Language", "*");
    request.setHeader(QNetworkRequest::UserAgentHeader, QCoreApplication::applicationName());
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    // A list of one's own ends the loading of the system's on demand.
    if (!authorities.isEmpty())
        tls.setCaCertificates(QSslConfiguration::systemCaCertificates() +
                              QSslCertificate::fromData(authorities, QSsl::Pem));
    request.setSslConfiguration(tls);
    return request;
}

} // namespace

HttpsTransfer::HttpsTransfer(QNetworkAccessManager &network, Scheduler &scheduler, Limits limits,
                             const QByteArray &authorities)
    : m_network(network), m_scheduler(scheduler), m_limits(limits), m_request(requestTrusting(authorities)) {}

HttpsTransfer::~HttpsTransfer() {
    dropReply();
}

void HttpsTransfer::start(const QUrl &url, Sink sink, Done done) {
    requireMainThread();
    m_sink = std::move(sink);
    m_done = std::move(done);
    if (m_limits.whole > Scheduler::Duration::zero())
        m_whole = m_scheduler.schedule(m_limits.whole, [this] { fail(tooSlow()); });
    get(url);
}

void HttpsTransfer::get(const QUrl &url) {
    if (url.scheme() != u"https")
        return fail(notSecure());
    dropReply();
    m_request.setUrl(url);
    m_reply = m_network.get(m_request);
    m_reply->setReadBufferSize(bufferSize);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &HttpsTransfer::receiveHead);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpsTransfer::receiveBytes);
    connect(m_reply, &QNetworkReply::finished, this, &HttpsTransfer::receiveEnd);
    armSilence();
}

void HttpsTransfer::armSilence() {
    m_silence = m_scheduler.schedule(m_limits.silence, [this] { fail(tooSlow()); });
}

void HttpsTransfer::receiveHead() {
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 0 || m_accepted)
        return;
    if (std::ranges::find(movedElsewhere, status) != movedElsewhere.end())
        return redirect();
    if (status != found)
        return fail(
            text(QT_TRANSLATE_NOOP("Updates", "The update server does not have the file (answer %1)."))
                .arg(status));
    if (m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() > m_limits.bytes)
        return fail(tooLong());
    m_accepted = true;
    armSilence();
}

void HttpsTransfer::redirect() {
    const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (++m_redirections > mostRedirections || target.isEmpty())
        return fail(text(QT_TRANSLATE_NOOP("Updates", "The update server sends from one place to another.")));
    get(m_reply->url().resolved(target));
}

bool HttpsTransfer::receiveBytes() {
    while (m_accepted && m_reply->bytesAvailable() > 0) {
        const QByteArray bytes = m_reply->read(bufferSize);
        m_received += bytes.size();
        if (m_received > m_limits.bytes) {
            fail(tooLong());
            return false;
        }
        if (const auto taken = m_sink(bytes); !taken) {
            finish(taken);
            return false;
        }
    }
    armSilence();
    return true;
}

void HttpsTransfer::receiveEnd() {
    if (m_reply->error() == QNetworkReply::SslHandshakeFailedError)
        return fail(text(QT_TRANSLATE_NOOP("Updates", "The update server cannot be trusted: %1"))
                        .arg(m_reply->errorString()));
    if (m_accepted && m_reply->error() != QNetworkReply::NoError)
        return fail(text(QT_TRANSLATE_NOOP("Updates", "The connection to the update server was lost.")));
    if (!m_accepted)
        return fail(text(QT_TRANSLATE_NOOP("Updates", "The update server cannot be reached: %1"))
                        .arg(m_reply->errorString()));
    if (receiveBytes())
        finish({});
}

void HttpsTransfer::dropReply() {
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    // Its end is the end of the connection; ended by name from its own signals it would complain.
    m_reply->deleteLater();
    m_reply = nullptr;
}

void HttpsTransfer::fail(const QString &message) {
    finish(updateFailure(message));
}

void HttpsTransfer::finish(const Result<void> &result) {
    m_silence.cancel();
    m_whole.cancel();
    dropReply();
    const Done done = std::exchange(m_done, nullptr);
    done(result);
}

} // namespace tembra
