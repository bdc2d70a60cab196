#pragma once

#include <QByteArray>
#include <QObject>
#include <QSslServer>
#include <QStringList>
#include <QTemporaryDir>

#include <map>
#include <optional>

namespace tembra {

// A real HTTPS server on this machine, with a certificate of its own that no system trusts, which says what
// the test tells it to.
class HttpsServer : public QObject {
    Q_OBJECT

public:
    struct Answer {
        int status = 200;
        QByteArray body;
        QByteArray location;
        // Of the body, where it is not the real length; negative for none.
        std::optional<qint64> announced;
        // Holds the connection after what there is of the body.
        bool hangs = false;
    };

    HttpsServer();

    // What else is asked for is not found.
    std::map<QString, Answer> answers;
    QStringList requests;

    // In PEM; for 127.0.0.1 only.
    [[nodiscard]] QByteArray certificate() const { return m_certificate; }
    [[nodiscard]] QString url(const QString &path, const QString &host = QStringLiteral("127.0.0.1")) const;

private:
    void answer(QTcpSocket &socket);

    QTemporaryDir m_folder;
    QByteArray m_certificate;
    QSslServer m_server;
};

} // namespace tembra
