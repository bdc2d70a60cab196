#pragma once

#include "platform/UserDefaults.h"

#include <QJsonObject>
#include <QJsonValue>

namespace tembra {

// UserDefaults in one JSON file: bool, number, string and array as themselves, data as {"base64": "…"}. Each
// change is written at once, whole and atomically. A file that cannot be understood is kept aside under
// another name before anything is written; where nothing can be written the values last until the end of the
// process. Values of kinds unknown here are kept as they are.
class JsonUserDefaults final : public UserDefaults {
public:
    // Links are followed: they stay links, whatever happens to the file that they lead to.
    explicit JsonUserDefaults(const QString &path);

    [[nodiscard]] bool contains(const QString &key) const override;
    [[nodiscard]] std::optional<bool> boolean(const QString &key) const override;
    [[nodiscard]] std::optional<qint64> integer(const QString &key) const override;
    [[nodiscard]] std::optional<QString> string(const QString &key) const override;
    [[nodiscard]] std::optional<QByteArray> data(const QString &key) const override;
    [[nodiscard]] std::optional<QStringList> stringArray(const QString &key) const override;
    [[nodiscard]] std::optional<QList<QByteArray>> dataArray(const QString &key) const override;
    [[nodiscard]] std::optional<QList<double>> numberArray(const QString &key) const override;

    void setBoolean(const QString &key, bool value) override;
    void setInteger(const QString &key, qint64 value) override;
    void setString(const QString &key, const QString &value) override;
    void setData(const QString &key, const QByteArray &value) override;
    void setStringArray(const QString &key, const QStringList &value) override;
    void setDataArray(const QString &key, const QList<QByteArray> &value) override;
    void setNumberArray(const QString &key, const QList<double> &value) override;
    void remove(const QString &key) override;

private:
    void load();
    void keepAside(const QString &reason);
    void set(const QString &key, const QJsonValue &value);
    void save();

    const QString m_path;
    QJsonObject m_values;
    // False when a file that is not ours to overwrite is in the way.
    bool m_mayWrite = true;
    bool m_saveFailed = false;
};

} // namespace tembra
