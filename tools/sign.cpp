// tembra-sign: makes the key of the publisher and signs updates and the list of them (docs/updates.md).

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <sodium.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using SecretKey = std::array<unsigned char, crypto_sign_SECRETKEYBYTES>;

constexpr int base64 = sodium_base64_VARIANT_ORIGINAL;

int fail(const std::string &message) {
    std::cerr << "tembra-sign: " << message << '\n';
    return 1;
}

std::string encoded(const unsigned char *bytes, std::size_t length) {
    std::string text(sodium_base64_encoded_len(length, base64), '\0');
    sodium_bin2base64(text.data(), text.size(), bytes, length, base64);
    text.pop_back();
    return text;
}

std::optional<std::string> contentOf(const char *path) {
    std::ifstream file(path, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(file), {}};
    return file ? std::optional(std::move(content)) : std::nullopt;
}

std::optional<SecretKey> readKey(const char *path) {
    const auto text = contentOf(path);
    SecretKey key{};
    std::size_t length = 0;
    if (!text || sodium_base642bin(key.data(), key.size(), text->data(), text->size(), "\r\n ", &length,
                                   nullptr, base64) != 0)
        return std::nullopt;
    return length == key.size() ? std::optional(key) : std::nullopt;
}

// Never over a key that is there: what it signed could be followed by nothing.
int makeKey(const char *path) {
    std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> publicKey{};
    SecretKey secretKey{};
    crypto_sign_keypair(publicKey.data(), secretKey.data());
    const std::string text = encoded(secretKey.data(), secretKey.size()) + '\n';
    const int file = ::open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return fail(std::string(path) + " exists or cannot be made");
    const bool isWritten =
        ::write(file, text.data(), text.size()) == ssize_t(text.size()) && ::fsync(file) == 0;
    if (::close(file) != 0 || !isWritten)
        return fail(std::string(path) + " cannot be written");
    std::cout << encoded(publicKey.data(), publicKey.size()) << '\n';
    return 0;
}

int sign(const char *keyPath, const char *path) {
    const auto key = readKey(keyPath);
    if (!key)
        return fail(std::string(keyPath) + " is no key");
    const auto content = contentOf(path);
    if (!content)
        return fail(std::string(path) + " cannot be read");
    std::array<unsigned char, crypto_sign_BYTES> signature{};
    crypto_sign_detached(signature.data(), nullptr, reinterpret_cast<const unsigned char *>(content->data()),
                         content->size(), key->data());
    std::cout << encoded(signature.data(), signature.size()) << '\n';
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    if (sodium_init() < 0)
        return fail("libsodium does not start");
    const std::string verb = argc > 1 ? argv[1] : "";
    if (verb == "keygen" && argc == 3)
        return makeKey(argv[2]);
    if (verb == "sign" && argc == 4)
        return sign(argv[2], argv[3]);
    std::cerr << "tembra-sign keygen KEYFILE      makes a key, prints its public half\n"
                 "tembra-sign sign KEYFILE FILE   prints the signature of the file\n";
    return 2;
}
