#pragma once

#include <QByteArrayView>
#include <QString>
#include <QUuid>

#include <nlohmann/json.hpp>
#include <optional>
#include <vector>

namespace tembra {

// JSON (RFC 8259) whose objects keep their keys in the order written.
using Json = nlohmann::ordered_json;

// Reads JSON as it comes from anywhere: nothing for what is not JSON, not UTF-8, nested deeper than anything
// that is kept here, too large, has a key twice in an object or a number beyond the range of its type.
[[nodiscard]] std::optional<Json> parseStrictly(QByteArrayView bytes);

[[nodiscard]] QByteArray toBytes(const Json &json);

// Takes the members of an object, each of exactly one type. Whatever is missing or of another type makes the
// whole incomplete; unknown members are passed over. An optional member may be null.
class JsonFields {
public:
    explicit JsonFields(const Json &object) : m_object(object), m_isComplete(object.is_object()) {}

    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    // What was read, if everything that was asked for was there.
    template <class Value>
    [[nodiscard]] std::optional<Value> orNothing(Value value) const {
        return m_isComplete ? std::optional(std::move(value)) : std::nullopt;
    }

    // Each member is understood by `read`, which gives nothing for what it does not understand.
    template <class Read>
    auto required(const char *key, Read read) {
        const Json *member = find(key);
        auto value = member ? read(*member) : std::nullopt;
        m_isComplete = m_isComplete && value;
        return std::move(value).value_or(typename decltype(value)::value_type());
    }
    template <class Read>
    auto optional(const char *key, Read read) {
        const Json *member = find(key);
        auto value = member ? read(*member) : std::nullopt;
        m_isComplete = m_isComplete && (value || !member);
        return value;
    }

private:
    [[nodiscard]] const Json *find(const char *key) const;

    const Json &m_object;
    bool m_isComplete;
};

[[nodiscard]] std::optional<double> jsonNumber(const Json &json);
[[nodiscard]] std::optional<std::int64_t> jsonInteger(const Json &json);
[[nodiscard]] std::optional<bool> jsonBoolean(const Json &json);
[[nodiscard]] std::optional<QString> jsonText(const Json &json);
// Hyphenated hexadecimal without braces, as RFC 4122 has it.
[[nodiscard]] std::optional<QUuid> jsonUuid(const Json &json);
// Base64 (RFC 4648).
[[nodiscard]] std::optional<QByteArray> jsonData(const Json &json);

template <class Read>
[[nodiscard]] auto jsonArray(const Json &json, Read read)
    -> std::optional<std::vector<typename decltype(read(json))::value_type>> {
    std::vector<typename decltype(read(json))::value_type> values;
    if (!json.is_array())
        return std::nullopt;
    values.reserve(json.size());
    for (const Json &element : json) {
        auto value = read(element);
        if (!value)
            return std::nullopt;
        values.push_back(*std::move(value));
    }
    return values;
}

} // namespace tembra
