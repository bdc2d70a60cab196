#pragma once

#include "platform/UserDefaults.h"

#include <map>
#include <utility>
#include <variant>

namespace tembra {

// User defaults that live as long as the test, compared and changed as one map.
class MemoryUserDefaults final : public UserDefaults {
public:
    using Value =
        std::variant<bool, qint64, QString, QByteArray, QStringList, QList<QByteArray>, QList<double>>;
    using Values = std::map<QString, Value>;

    Values values;

    [[nodiscard]] bool contains(const QString &key) const override { return values.contains(key); }
    [[nodiscard]] std::optional<bool> boolean(const QString &key) const override { return get<bool>(key); }
    [[nodiscard]] std::optional<qint64> integer(const QString &key) const override {
        return get<qint64>(key);
    }
    [[nodiscard]] std::optional<QString> string(const QString &key) const override {
        return get<QString>(key);
    }
    [[nodiscard]] std::optional<QByteArray> data(const QString &key) const override {
        return get<QByteArray>(key);
    }
    [[nodiscard]] std::optional<QStringList> stringArray(const QString &key) const override {
        return get<QStringList>(key);
    }
    [[nodiscard]] std::optional<QList<QByteArray>> dataArray(const QString &key) const override {
        return get<QList<QByteArray>>(key);
    }
    [[nodiscard]] std::optional<QList<double>> numberArray(const QString &key) const override {
        return get<QList<double>>(key);
    }

    void setBoolean(const QString &key, bool value) override { set(key, value); }
    void setInteger(const QString &key, qint64 value) override { set(key, value); }
    void setString(const QString &key, const QString &value) override { set(key, value); }
    void setData(const QString &key, const QByteArray &value) override { set(key, value); }
    void setStringArray(const QString &key, const QStringList &value) override { set(key, value); }
    void setDataArray(const QString &key, const QList<QByteArray> &value) override { set(key, value); }
    void setNumberArray(const QString &key, const QList<double> &value) override { set(key, value); }
    void remove(const QString &key) override {
        ++m_writes;
        values.erase(key);
    }

    // How often something was set or removed.
    [[nodiscard]] int writes() const { return m_writes; }

private:
    template <class T>
    [[nodiscard]] std::optional<T> get(const QString &key) const {
        const auto found = values.find(key);
        const T *value = found == values.end() ? nullptr : std::get_if<T>(&found->second);
        return value ? std::optional(*value) : std::nullopt;
    }

    template <class T>
    void set(const QString &key, T value) {
        ++m_writes;
        values.insert_or_assign(key, Value(std::in_place_type<T>, std::move(value)));
    }

    int m_writes = 0;
};

} // namespace tembra
