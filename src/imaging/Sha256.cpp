#include "imaging/Sha256.h"

#include <QByteArray>

#include <array>
#include <openssl/evp.h>

namespace tembra {

QString sha256Hex(QByteArrayView bytes) {
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned length = 0;
    if (EVP_Digest(bytes.data(), static_cast<std::size_t>(bytes.size()), digest.data(), &length, EVP_sha256(),
                   nullptr) != 1)
        qFatal("libcrypto has no SHA-256");
    const auto binary = QByteArray::fromRawData(reinterpret_cast<const char *>(digest.data()),
                                                static_cast<qsizetype>(length));
    return QString::fromLatin1(binary.toHex());
}

} // namespace tembra
