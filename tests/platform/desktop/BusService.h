#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QVariant>

namespace tembra {

// A program on the message bus of its own accord.
class BusService final : public QDBusVirtualObject {
public:
    BusService(const QString &name, const QString &path)
        : m_name(name), m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)) {
        m_bus.registerVirtualObject(path, this);
        m_bus.registerService(name);
    }
    ~BusService() override { QDBusConnection::disconnectFromBus(m_name); }

    [[nodiscard]] QDBusConnection &bus() { return m_bus; }
    [[nodiscard]] const QList<QDBusMessage> &calls() const { return m_calls; }
    void answerFromNowOn(const QVariant &answer) { m_answer = {answer}; }
    void failFromNowOn() { m_isFailing = true; }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override {
        m_calls.append(message);
        bus.send(m_isFailing ? message.createErrorReply(QDBusError::Failed, QStringLiteral("no"))
                             : message.createReply(m_answer));
        return true;
    }

private:
    const QString m_name;
    QDBusConnection m_bus;
    QList<QDBusMessage> m_calls;
    QList<QVariant> m_answer;
    bool m_isFailing = false;
};

} // namespace tembra
