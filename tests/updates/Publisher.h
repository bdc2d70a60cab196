#pragma once

#include <QByteArray>

#include <sodium.h>

namespace tembra {

// Who publishes updates: a key, and what it signs.
class Publisher {
public:
    Publisher() {
        if (sodium_init() < 0 || crypto_sign_keypair(data(m_public), data(m_secret)) != 0)
            qFatal("libsodium makes no key");
    }

    [[nodiscard]] QByteArray publicKey() const { return m_public.toBase64(); }
    [[nodiscard]] QByteArray signature(const QByteArray &bytes) const {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(data(signature), nullptr, reinterpret_cast<const uchar *>(bytes.constData()),
                             static_cast<unsigned long long>(bytes.size()),
                             reinterpret_cast<const uchar *>(m_secret.constData()));
        return signature.toBase64();
    }

private:
    static uchar *data(QByteArray &bytes) { return reinterpret_cast<uchar *>(bytes.data()); }

    QByteArray m_public = QByteArray(crypto_sign_PUBLICKEYBYTES, '\0');
    QByteArray m_secret = QByteArray(crypto_sign_SECRETKEYBYTES, '\0');
};

} // namespace tembra
