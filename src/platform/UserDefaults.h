#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace tembra {

// The program's persisted preferences: a flat map from key to typed value. Reading a key that is absent or
// holds a value of another type gives nothing; there is no conversion between types. Main thread.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    [[nodiscard]] virtual bool contains(const QString &key) const = 0;
    [[nodiscard]] virtual std::optional<bool> boolean(const QString &key) const = 0;
    [[nodiscard]] virtual std::optional<qint64> integer(const QString &key) const = 0;
    [[nodiscard]] virtual std::optional<QString> string(const QString &key) const = 0;
    [[nodiscard]] virtual std::optional<QByteArray> data(const QString &key) const = 0;
    [[nodiscard]] virtual std::optional<QStringList> stringArray(const QString &key) const = 0;
    [[nodiscard]] virtual std::optional<QList<QByteArray>> dataArray(const QString &key) const = 0;
    [[nodiscard]] virtual std::optional<QList<double>> numberArray(const QString &key) const = 0;

    virtual void setBoolean(const QString &key, bool value) = 0;
    virtual void setInteger(const QString &key, qint64 value) = 0;
    virtual void setString(const QString &key, const QString &value) = 0;
    virtual void setData(const QString &key, const QByteArray &value) = 0;
    virtual void setStringArray(const QString &key, const QStringList &value) = 0;
    virtual void setDataArray(const QString &key, const QList<QByteArray> &value) = 0;
    virtual void setNumberArray(const QString &key, const QList<double> &value) = 0;
    virtual void remove(const QString &key) = 0;
};

} // namespace tembra
