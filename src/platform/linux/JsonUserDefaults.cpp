#include "platform/linux/JsonUserDefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

const QString base64Key = QStringLiteral("base64");

QJsonValue dataValue(const QByteArray &data) {
    return QJsonObject{{base64Key, QString::fromLatin1(data.toBase64())}};
}

std::optional<QByteArray> dataOf(const QJsonValue &value) {
    const QJsonValue text = value.toObject().value(base64Key);
    if (!text.isString())
        return std::nullopt;
    auto decoded =
        QByteArray::fromBase64Encoding(text.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(std::move(decoded.decoded)) : std::nullopt;
}

// Of an array, each understood by `elementOf`; nothing when one is not.
template <class Element, class ElementOf>
std::optional<QList<Element>> elements(const QJsonValue &value, ElementOf elementOf) {
    if (!value.isArray())
        return std::nullopt;
    QList<Element> list;
    for (const QJsonValue element : value.toArray()) {
        const std::optional<Element> understood = elementOf(element);
        if (!understood)
            return std::nullopt;
        list.append(*understood);
    }
    return list;
}

// The file that links lead to, also when it is not there yet. A ring of links is given up.
QString behindLinks(QString path) {
    constexpr int mostLinks = 40;
    for (int link = 0; link < mostLinks && QFileInfo(path).isSymLink(); ++link)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

} // namespace

JsonUserDefaults::JsonUserDefaults(const QString &path) : m_path(behindLinks(path)) {
    load();
}

void JsonUserDefaults::load() {
    QFile file(m_path);
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly))
        return keepAside(file.errorString());
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError)
        return keepAside(error.errorString());
    if (!document.isObject())
        return keepAside(QStringLiteral("not a JSON object"));
    m_values = document.object();
}

void JsonUserDefaults::keepAside(const QString &reason) {
    QString aside = m_path + QStringLiteral(".unreadable");
    for (int number = 2; QFileInfo::exists(aside); ++number)
        aside = QStringLiteral("%1.unreadable-%2").arg(m_path).arg(number);
    m_mayWrite = QFile::rename(m_path, aside);
    if (m_mayWrite)
        qWarning("Settings file cannot be used (%s); it is kept as %s", qUtf8Printable(reason),
                 qUtf8Printable(aside));
    else
        qWarning("Settings file %s cannot be used (%s) nor moved aside; settings are not saved",
                 qUtf8Printable(m_path), qUtf8Printable(reason));
}

void JsonUserDefaults::save() {
    if (!m_mayWrite)
        return;
    QDir().mkpath(QFileInfo(m_path).path());
    QSaveFile file(m_path);
    const QByteArray text = QJsonDocument(m_values).toJson(QJsonDocument::Indented);
    const bool saved = file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
    if (!saved && !m_saveFailed)
        qWarning("Settings cannot be saved to %s: %s", qUtf8Printable(m_path),
                 qUtf8Printable(file.errorString()));
    m_saveFailed = !saved;
}

bool JsonUserDefaults::contains(const QString &key) const {
    return m_values.contains(key);
}

std::optional<bool> JsonUserDefaults::boolean(const QString &key) const {
    const QJsonValue value = m_values.value(key);
    return value.isBool() ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<qint64> JsonUserDefaults::integer(const QString &key) const {
    const QJsonValue value = m_values.value(key);
    // A number beyond the range, or with a fraction, gives one default or the other.
    if (!value.isDouble() || value.toInteger(0) != value.toInteger(1))
        return std::nullopt;
    return value.toInteger();
}

std::optional<QString> JsonUserDefaults::string(const QString &key) const {
    const QJsonValue value = m_values.value(key);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

std::optional<QByteArray> JsonUserDefaults::data(const QString &key) const {
    return dataOf(m_values.value(key));
}

std::optional<QStringList> JsonUserDefaults::stringArray(const QString &key) const {
    return elements<QString>(m_values.value(key), [](const QJsonValue &element) {
        return element.isString() ? std::optional(element.toString()) : std::nullopt;
    });
}

std::optional<QList<QByteArray>> JsonUserDefaults::dataArray(const QString &key) const {
    return elements<QByteArray>(m_values.value(key), dataOf);
}

std::optional<QList<double>> JsonUserDefaults::numberArray(const QString &key) const {
    return elements<double>(m_values.value(key), [](const QJsonValue &element) {
        return element.isDouble() ? std::optional(element.toDouble()) : std::nullopt;
    });
}

void JsonUserDefaults::set(const QString &key, const QJsonValue &value) {
    m_values.insert(key, value);
    save();
}

void JsonUserDefaults::setBoolean(const QString &key, bool value) {
    set(key, value);
}

void JsonUserDefaults::setInteger(const QString &key, qint64 value) {
    set(key, value);
}

void JsonUserDefaults::setString(const QString &key, const QString &value) {
    set(key, value);
}

void JsonUserDefaults::setData(const QString &key, const QByteArray &value) {
    set(key, dataValue(value));
}

void JsonUserDefaults::setStringArray(const QString &key, const QStringList &value) {
    set(key, QJsonArray::fromStringList(value));
}

void JsonUserDefaults::setDataArray(const QString &key, const QList<QByteArray> &value) {
    QJsonArray array;
    for (const QByteArray &data : value)
        array.append(dataValue(data));
    set(key, array);
}

void JsonUserDefaults::setNumberArray(const QString &key, const QList<double> &value) {
    QJsonArray array;
    for (const double number : value)
        array.append(number);
    set(key, array);
}

void JsonUserDefaults::remove(const QString &key) {
    if (!m_values.contains(key))
        return;
    m_values.remove(key);
    save();
}

} // namespace tembra
