#include "updates/UpdateSignature.h"

#include "updates/UpdateFailure.h"

#include <QCoreApplication>
#include <QFile>

#include <sodium.h>

namespace tembra {

namespace {

// Strict base64 of exactly so many bytes, else nothing.
QByteArray decoded(const QByteArray &text, std::size_t length) {
    const auto result =
        QByteArray::fromBase64Encoding(text.trimmed(), QByteArray::AbortOnBase64DecodingErrors);
    return result && std::size_t(result.decoded.size()) == length ? result.decoded : QByteArray();
}

const uchar *unsignedBytes(const QByteArray &bytes) {
    return reinterpret_cast<const uchar *>(bytes.constData());
}

} // namespace

Result<UpdateSignature> UpdateSignature::withKey(const QString &publicKey) {
    const QByteArray key = decoded(publicKey.toLatin1(), crypto_sign_PUBLICKEYBYTES);
    if (key.isEmpty() || sodium_init() < 0)
        return updateFailure(
            QCoreApplication::translate("Updates", "The key that updates are checked with is not valid."));
    return UpdateSignature(key);
}

bool UpdateSignature::isOf(std::span<const uchar> bytes, const QByteArray &signature) const {
    const QByteArray raw = decoded(signature, crypto_sign_BYTES);
    return !raw.isEmpty() && crypto_sign_verify_detached(unsignedBytes(raw), bytes.data(), bytes.size(),
                                                         unsignedBytes(m_key)) == 0;
}

Result<void> UpdateSignature::checkFile(const QString &path, qint64 length,
                                        const QByteArray &signature) const {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return updateFailure(QCoreApplication::translate("Updates", "The update cannot be read."));
    if (length <= 0 || file.size() != length)
        return updateFailure(QCoreApplication::translate("Updates", "The update is not complete."));
    // Updates may be larger than what one would want in memory.
    const uchar *bytes = file.map(0, length);
    if (!bytes)
        return updateFailure(QCoreApplication::translate("Updates", "The update cannot be read."));
    if (!isOf({bytes, std::size_t(length)}, signature))
        return updateFailure(QCoreApplication::translate(
            "Updates", "The update is not signed by the publisher of Tembra and was not kept."));
    return {};
}

} // namespace tembra
