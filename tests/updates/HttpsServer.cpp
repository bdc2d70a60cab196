#include "HttpsServer.h"

#include <QFile>
#include <QProcess>
#include <QSslKey>

namespace tembra {

namespace {

QByteArray contentOf(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("openssl made no certificate");
    return file.readAll();
}

} // namespace

HttpsServer::HttpsServer() {
    const QString key = m_folder.filePath(QStringLiteral("key.pem"));
    const QString certificate = m_folder.filePath(QStringLiteral("certificate.pem"));
    QProcess openssl;
    openssl.start(
        QStringLiteral("openssl"),
        QStringLiteral("req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -subj /CN=Test "
                       "-addext subjectAltName=IP:127.0.0.1 -keyout")
                .split(u' ') +
            QStringList{key, QStringLiteral("-out"), certificate});
    openssl.waitForFinished();
    m_certificate = contentOf(certificate);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(QSslCertificate(m_certificate));
    tls.setPrivateKey(QSslKey(contentOf(key), QSsl::Ec));
    m_server.setSslConfiguration(tls);
    connect(&m_server, &QTcpServer::pendingConnectionAvailable, this, [this] {
        QTcpSocket *socket = m_server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            if (socket->peek(65536).contains("\r\n\r\n"))
                answer(*socket);
        });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
    if (!m_server.listen(QHostAddress::AnyIPv4))
        qFatal("no port to listen on");
}

QString HttpsServer::url(const QString &path, const QString &host) const {
    return QStringLiteral("https://%1:%2%3").arg(host).arg(m_server.serverPort()).arg(path);
}

void HttpsServer::answer(QTcpSocket &socket) {
    const QString path = QString::fromLatin1(socket.readAll().split(' ').value(1));
    requests += path;
    const auto found = answers.find(path);
    const Answer answer = found == answers.end() ? Answer{.status = 404} : found->second;
    QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + " -\r\nConnection: close\r\n";
    if (!answer.location.isEmpty())
        head += "Location: " + answer.location + "\r\n";
    if (const qint64 length = answer.announced.value_or(answer.body.size()); length >= 0)
        head += "Content-Length: " + QByteArray::number(length) + "\r\n";
    if (!answer.hangs || !answer.body.isEmpty())
        socket.write(head + "\r\n" + answer.body);
    if (!answer.hangs)
        socket.disconnectFromHost();
}

} // namespace tembra
