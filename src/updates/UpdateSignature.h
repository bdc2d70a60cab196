#pragma once

#include "base/Result.h"

#include <QByteArray>

#include <cstddef>
#include <span>

namespace tembra {

// Tells by the publisher's public key (Ed25519) whether bytes are the publisher's. A value; any thread.
class UpdateSignature {
public:
    // The key in base64. Error: that it is none.
    [[nodiscard]] static Result<UpdateSignature> withKey(const QString &publicKey);

    // Whether the detached signature, in base64, is the publisher's for exactly these bytes.
    [[nodiscard]] bool isOf(std::span<const uchar> bytes, const QByteArray &signature) const;
    // The same for a file, which must be exactly so long. Error: the sentence that says what is wrong.
    [[nodiscard]] Result<void> checkFile(const QString &path, qint64 length,
                                         const QByteArray &signature) const;

private:
    explicit UpdateSignature(QByteArray key) : m_key(std::move(key)) {}

    QByteArray m_key;
};

} // namespace tembra
