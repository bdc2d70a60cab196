#pragma once

#include "base/Result.h"
#include "base/Scheduler.h"

#include <QByteArray>
#include <QNetworkRequest>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <functional>

QT_BEGIN_NAMESPACE
class QNetworkAccessManager;
class QNetworkReply;
QT_END_NAMESPACE

namespace tembra {

// One file fetched over HTTPS, byte by byte as the server has it. Every hop of a redirection must be HTTPS as
// well, and errors of TLS are never passed over. Main thread; dropping it ends the transfer without a word.
class HttpsTransfer final : public QObject {
    Q_OBJECT

public:
    struct Limits {
        qint64 bytes = 0;
        // How long nothing may arrive.
        Scheduler::Duration silence = std::chrono::seconds(30);
        // How long the whole may take; zero for as long as something arrives.
        Scheduler::Duration whole = Scheduler::Duration::zero();
    };
    // A failure ends the transfer with it.
    using Sink = std::function<Result<void>(const QByteArray &bytes)>;
    using Done = std::function<void(const Result<void> &)>;

    // `authorities`, in PEM, are trusted besides the system's.
    HttpsTransfer(QNetworkAccessManager &network, Scheduler &scheduler, Limits limits,
                  const QByteArray &authorities = {});
    ~HttpsTransfer() override;

    // Once. `done` comes once, may come before this returns, and may destroy this.
    void start(const QUrl &url, Sink sink, Done done);

private:
    void get(const QUrl &url);
    void receiveHead();
    void redirect();
    // Whether the transfer goes on; else this may be gone.
    bool receiveBytes();
    void receiveEnd();
    void armSilence();
    void dropReply();
    // The last thing that is done, since this may be gone then.
    void fail(const QString &message);
    void finish(const Result<void> &result);

    QNetworkAccessManager &m_network;
    Scheduler &m_scheduler;
    const Limits m_limits;
    QNetworkRequest m_request;
    Sink m_sink;
    Done m_done;
    QPointer<QNetworkReply> m_reply;
    int m_redirections = 0;
    qint64 m_received = 0;
    bool m_accepted = false;
    WorkItem m_silence;
    WorkItem m_whole;
};

} // namespace tembra
