#include "AccessibleTree.h"

#include <QDBusArgument>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusReply>

#include <utility>

namespace tembra {

namespace {

const QString connectionName = QStringLiteral("accessibility");
const QString accessible = QStringLiteral("org.a11y.atspi.Accessible");
// Bits of the state set.
constexpr int checkedBit = 4;
constexpr int enabledBit = 8;
constexpr int focusableBit = 11;
constexpr int focusedBit = 12;
constexpr int selectedBit = 23;
constexpr int showingBit = 25;

QDBusConnection connectToTree() {
    QDBusInterface bus(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                       QStringLiteral("org.a11y.Bus"));
    const QDBusReply<QString> address = bus.call(QStringLiteral("GetAddress"));
    return QDBusConnection::connectToBus(address.value(), connectionName);
}

QDBusMessage call(const QDBusConnection &bus, const AccessibleTree::Node &node, const QString &interface,
                  const QString &method, const QVariantList &arguments = {}) {
    QDBusMessage message = QDBusMessage::createMethodCall(node.service, node.path.path(), interface, method);
    message.setArguments(arguments);
    const QDBusMessage reply = bus.call(message, QDBus::Block, 2000);
    // What was shown a moment ago may be gone.
    return reply.type() == QDBusMessage::ReplyMessage ? reply : QDBusMessage();
}

} // namespace

AccessibleTree::AccessibleTree() : m_bus(connectToTree()) {}

AccessibleTree::~AccessibleTree() {
    QDBusConnection::disconnectFromBus(connectionName);
}

std::vector<AccessibleTree::Node> AccessibleTree::children(const Node &node) const {
    std::vector<Node> found;
    const QDBusMessage reply = call(m_bus, node, accessible, QStringLiteral("GetChildren"));
    if (reply.arguments().isEmpty())
        return found;
    const auto list = reply.arguments().first().value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        Node child;
        list.beginStructure();
        list >> child.service >> child.path;
        list.endStructure();
        found.push_back(child);
    }
    list.endArray();
    return found;
}

QString AccessibleTree::property(const Node &node, const QString &name) const {
    const QDBusMessage answer = call(m_bus, node, QStringLiteral("org.freedesktop.DBus.Properties"),
                                     QStringLiteral("Get"), {accessible, name});
    return answer.arguments().value(0).value<QDBusVariant>().variant().toString();
}

void AccessibleTree::collect(const Node &node, std::vector<Node> &found) const {
    for (Node &child : children(node)) {
        const QDBusMessage states = call(m_bus, child, accessible, QStringLiteral("GetState"));
        if (states.arguments().isEmpty())
            continue;
        const auto words = qdbus_cast<QList<uint>>(states.arguments().first());
        const auto has = [&words](int bit) { return !words.isEmpty() && (words[0] >> bit & 1U) != 0; };
        child.isSelected = has(selectedBit);
        child.isShowing = has(showingBit);
        child.isFocusable = has(focusableBit);
        child.isFocused = has(focusedBit);
        child.isChecked = has(checkedBit);
        child.isEnabled = has(enabledBit);
        child.name = property(child, QStringLiteral("Name"));
        child.description = property(child, QStringLiteral("Description"));
        child.role =
            call(m_bus, child, accessible, QStringLiteral("GetRoleName")).arguments().value(0).toString();
        if (child.isShowing)
            found.push_back(child);
        collect(child, found);
    }
}

std::vector<AccessibleTree::Node> AccessibleTree::shown(const QString &program) const {
    const Node desktop{.service = QStringLiteral("org.a11y.atspi.Registry"),
                       .path = QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"))};
    std::vector<Node> found;
    for (const Node &application : children(desktop)) {
        if (property(application, QStringLiteral("Name")) == program)
            collect(application, found);
    }
    return found;
}

std::optional<AccessibleTree::Node> AccessibleTree::find(const QString &program, const QString &name,
                                                         const QString &role) const {
    for (const Node &node : shown(program)) {
        if (node.name == name && node.role == role)
            return node;
    }
    return std::nullopt;
}

QRect AccessibleTree::extents(const Node &node) const {
    constexpr uint screenCoordinates = 0;
    const QDBusMessage answer = call(m_bus, node, QStringLiteral("org.a11y.atspi.Component"),
                                     QStringLiteral("GetExtents"), {screenCoordinates});
    return answer.arguments().isEmpty() ? QRect() : qdbus_cast<QRect>(answer.arguments().first());
}

bool AccessibleTree::act(const Node &node, const QString &action) const {
    const auto index = action.isEmpty() ? 0 : static_cast<int>(actions(node).indexOf(action));
    if (index < 0)
        return false;
    const QDBusMessage done =
        call(m_bus, node, QStringLiteral("org.a11y.atspi.Action"), QStringLiteral("DoAction"), {index});
    return done.arguments().value(0).toBool();
}

QStringList AccessibleTree::actions(const Node &node) const {
    const QDBusMessage answer =
        call(m_bus, node, QStringLiteral("org.a11y.atspi.Action"), QStringLiteral("GetActions"));
    QStringList names;
    if (answer.arguments().isEmpty())
        return names;
    const auto list = answer.arguments().first().value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        QString name;
        QString description;
        QString keys;
        list.beginStructure();
        list >> name >> description >> keys;
        list.endStructure();
        names += name;
    }
    list.endArray();
    return names;
}

QString AccessibleTree::content(const Node &node) const {
    return call(m_bus, node, QStringLiteral("org.a11y.atspi.Text"), QStringLiteral("GetText"), {0, -1})
        .arguments()
        .value(0)
        .toString();
}

} // namespace tembra
