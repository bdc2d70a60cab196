#include "editor/model/StrictJson.h"

#include <QStringDecoder>

#include <set>
#include <string>

namespace tembra {

namespace {

constexpr qsizetype mostBytes = 64 << 20;
constexpr int deepest = 16;

// Watches the keys of the objects that are being read.
class Watch {
public:
    bool accept(int depth, nlohmann::json::parse_event_t event, const Json &parsed) {
        using Event = nlohmann::json::parse_event_t;
        m_isSound = m_isSound && depth <= deepest;
        if (event == Event::object_start)
            m_keys.emplace_back();
        else if (event == Event::object_end && !m_keys.empty())
            m_keys.pop_back();
        else if (event == Event::key && !m_keys.empty())
            m_isSound = m_keys.back().insert(parsed.get<std::string>()).second && m_isSound;
        return m_isSound;
    }

    [[nodiscard]] bool isSound() const { return m_isSound; }

private:
    std::vector<std::set<std::string>> m_keys;
    bool m_isSound = true;
};

} // namespace

std::optional<Json> parseStrictly(QByteArrayView bytes) {
    if (bytes.size() > mostBytes)
        return std::nullopt;
    Watch watch;
    const auto accept = [&watch](int depth, Json::parse_event_t event, const Json &parsed) {
        return watch.accept(depth, static_cast<nlohmann::json::parse_event_t>(event), parsed);
    };
    Json json = Json::parse(bytes.begin(), bytes.end(), accept, false);
    if (json.is_discarded() || !watch.isSound())
        return std::nullopt;
    return json;
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
