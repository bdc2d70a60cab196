#include "editor/model/StrictJson.h"

#include <QStringDecoder>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tembra {

namespace {

constexpr qsizetype mostBytes = 64 << 20;
constexpr std::size_t deepest = 16;
// More than any object has that is kept here; keeping their order, Json takes long to find one of many.
constexpr std::size_t mostKeys = 1'000;

// Goes through a text ahead of its being kept, and stops where it is not sound.
class Watch final : public nlohmann::json_sax<Json> {
public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t &) override { return true; }
    bool string(string_t &) override { return true; }
    bool binary(binary_t &) override { return true; }
    bool start_object(std::size_t) override { return enter(); }
    bool end_object() override { return leave(); }
    bool start_array(std::size_t) override { return enter(); }
    bool end_array() override { return leave(); }
    bool key(string_t &key) override {
        std::set<std::string> &keys = m_keys.back();
        return keys.size() < mostKeys && keys.insert(key).second;
    }
    bool parse_error(std::size_t, const std::string &, const nlohmann::json::exception &) override {
        return false;
    }

private:
    bool enter() {
        m_keys.emplace_back();
        return m_keys.size() <= deepest;
    }
    bool leave() {
        m_keys.pop_back();
        return true;
    }

    // Of the objects and arrays that are open.
    std::vector<std::set<std::string>> m_keys;
};

} // namespace

std::optional<Json> parseStrictly(QByteArrayView bytes) {
    if (bytes.size() > mostBytes)
        return std::nullopt;
    Watch watch;
    if (!Json::sax_parse(bytes.begin(), bytes.end(), &watch))
        return std::nullopt;
    Json json = Json::parse(bytes.begin(), bytes.end(), nullptr, false);
    return json.is_discarded() ? std::nullopt : std::optional(std::move(json));
}

QByteArray toBytes(const Json &json) {
    constexpr int indent = 2;
    const std::string text = json.dump(indent, ' ', false, Json::error_handler_t::replace);
    return {text.data(), static_cast<qsizetype>(text.size())};
}

const Json *JsonFields::find(const char *key) const {
    if (!m_object.is_object())
        return nullptr;
    const auto member = m_object.find(key);
    return member == m_object.end() || member->is_null() ? nullptr : &*member;
}

std::optional<double> jsonNumber(const Json &json) {
    return json.is_number() ? std::optional(json.get<double>()) : std::nullopt;
}

std::optional<std::int64_t> jsonInteger(const Json &json) {
    const bool fits = json.is_number_unsigned() ? json.get<std::uint64_t>() <=
                                                      std::uint64_t{std::numeric_limits<std::int64_t>::max()}
                                                : json.is_number_integer();
    return fits ? std::optional(json.get<std::int64_t>()) : std::nullopt;
}

std::optional<bool> jsonBoolean(const Json &json) {
    return json.is_boolean() ? std::optional(json.get<bool>()) : std::nullopt;
}

std::optional<QString> jsonText(const Json &json) {
    if (!json.is_string())
        return std::nullopt;
    // QString itself would drop a byte order mark in front, which is a character of the text here.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return QString(decode(QByteArrayView(json.get_ref<const std::string &>())));
}

std::optional<QUuid> jsonUuid(const Json &json) {
    constexpr int length = 36;
    const auto text = jsonText(json);
    if (!text || text->size() != length)
        return std::nullopt;
    const QUuid id = QUuid::fromString(*text);
    return id.isNull() ? std::nullopt : std::optional(id);
}

std::optional<QByteArray> jsonData(const Json &json) {
    const auto text = jsonText(json);
    if (!text)
        return std::nullopt;
    auto decoded = QByteArray::fromBase64Encoding(text->toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(std::move(decoded.decoded)) : std::nullopt;
}

} // namespace tembra
