#include "platform/linux/desktop/PortalShortcutSession.h"

#include "platform/linux/desktop/HotKeyErrors.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QHash>

#include <utility>

namespace tembra {

// As the portal passes shortcuts.
struct PortalShortcut {
    QString identifier;
    QVariantMap properties;
};

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut) {
    argument.beginStructure();
    argument << shortcut.identifier << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut) {
    argument.beginStructure();
    argument >> shortcut.identifier >> shortcut.properties;
    argument.endStructure();
    return argument;
}

} // namespace tembra

Q_DECLARE_METATYPE(tembra::PortalShortcut)

namespace tembra {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString sessionInterface = QStringLiteral("org.freedesktop.portal.Session");

// The portal's objects for this connection.
QString objectPath(const QString &kind, const QString &token) {
    QString sender = QDBusConnection::sessionBus().baseService().mid(1);
    sender.replace(u'.', u'_');
    return QStringLiteral("%1/%2/%3/%4").arg(portalPath, kind, sender, token);
}

QString newToken() {
    static int count = 0;
    return QStringLiteral("tembra%1").arg(++count);
}

// The names of keys that are no letters (xkbcommon-keysyms.h), by virtual key code.
QString specialKeyName(std::uint32_t keyCode) {
    static const QHash<std::uint32_t, QString> names{
        {36, QStringLiteral("Return")},     {48, QStringLiteral("Tab")},     {49, QStringLiteral("space")},
        {51, QStringLiteral("BackSpace")},  {53, QStringLiteral("Escape")},  {117, QStringLiteral("Delete")},
        {115, QStringLiteral("Home")},      {119, QStringLiteral("End")},    {116, QStringLiteral("Page_Up")},
        {121, QStringLiteral("Page_Down")}, {114, QStringLiteral("Insert")}, {123, QStringLiteral("Left")},
        {124, QStringLiteral("Right")},     {125, QStringLiteral("Down")},   {126, QStringLiteral("Up")},
        {122, QStringLiteral("F1")},        {120, QStringLiteral("F2")},     {99, QStringLiteral("F3")},
        {118, QStringLiteral("F4")},        {96, QStringLiteral("F5")},      {97, QStringLiteral("F6")},
        {98, QStringLiteral("F7")},         {100, QStringLiteral("F8")},     {101, QStringLiteral("F9")},
        {109, QStringLiteral("F10")},       {103, QStringLiteral("F11")},    {111, QStringLiteral("F12")}};
    return names.value(keyCode);
}

QString keyName(const HotKeys::HotKey &key) {
    if (const QString special = specialKeyName(key.keyCode); !special.isEmpty())
        return special;
    const QList<uint> characters = key.keyLabel.toLower().toUcs4();
    if (characters.size() != 1)
        return {};
    const uint character = characters.first();
    const bool isPlain = character < 0x80 && QChar(character).isLetterOrNumber();
    return isPlain ? QString(QChar(character))
                   : QStringLiteral("U%1").arg(character, 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace

PortalShortcutSession::PortalShortcutSession(const HotKeys::HotKey &key, HotKeys::Callbacks callbacks)
    : m_key(key),
      m_callbacks(std::move(callbacks)),
      // Desktops remember the key that a shortcut was given: another one is another shortcut.
      m_identifier(QStringLiteral("open-shelf-%1-%2").arg(key.modifiers).arg(key.keyCode)),
      m_token(newToken()),
      m_session(objectPath(QStringLiteral("session"), m_token)) {
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    introduceProgram();
    createSession();
}

PortalShortcutSession::~PortalShortcutSession() {
    QDBusMessage close =
        QDBusMessage::createMethodCall(service, m_session, sessionInterface, QStringLiteral("Close"));
    close.setAutoStartService(false);
    QDBusConnection::sessionBus().send(close);
}

QString PortalShortcutSession::trigger(const HotKeys::HotKey &key) {
    constexpr std::pair<std::uint32_t, const char *> modifiers[]{
        {0x1000, "CTRL"}, {0x0800, "ALT"}, {0x0100, "LOGO"}, {0x0200, "SHIFT"}};
    const QString name = keyName(key);
    if (name.isEmpty())
        return {};
    QStringList parts;
    for (const auto &[bit, word] : modifiers) {
        if (key.modifiers & bit)
            parts.append(QString::fromLatin1(word));
    }
    return (parts << name).join(u'+');
}

// Newer portals want to know which program asks, before anything else is asked; older ones find out by
// themselves.
void PortalShortcutSession::introduceProgram() {
    QDBusMessage registration = QDBusMessage::createMethodCall(
        service, portalPath, QStringLiteral("org.freedesktop.host.portal.Registry"),
        QStringLiteral("Register"));
    registration << QStringLiteral("app.tembra.Tembra") << QVariantMap();
    QDBusConnection::sessionBus().send(registration);
}

void PortalShortcutSession::createSession() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, portalPath, interface, QStringLiteral("Activated"), this,
                SLOT(activated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    bus.connect(service, m_session, sessionInterface, QStringLiteral("Closed"), this, SLOT(sessionClosed()));
    const QString token = expectAnswer(SLOT(sessionAnswered(uint, QVariantMap)));
    call(QStringLiteral("CreateSession"), {QVariantMap{{QStringLiteral("handle_token"), token},
                                                       {QStringLiteral("session_handle_token"), m_token}}});
}

void PortalShortcutSession::sessionAnswered(uint response, const QVariantMap &) {
    if (response != 0)
        return lose(hotKeyTaken());
    bind();
}

void PortalShortcutSession::bind() {
    PortalShortcut shortcut{
        m_identifier,
        {{QStringLiteral("description"), QCoreApplication::translate("HotKeys", "Open or close the shelf")}}};
    if (const QString wanted = trigger(m_key); !wanted.isEmpty())
        shortcut.properties.insert(QStringLiteral("preferred_trigger"), wanted);
    const QString token = expectAnswer(SLOT(bindingAnswered(uint, QVariantMap)));
    call(QStringLiteral("BindShortcuts"), {QVariant::fromValue(QDBusObjectPath(m_session)),
                                           QVariant::fromValue(QList<PortalShortcut>{std::move(shortcut)}),
                                           QString(), QVariantMap{{QStringLiteral("handle_token"), token}}});
}

void PortalShortcutSession::bindingAnswered(uint response, const QVariantMap &results) {
    const auto bound = qdbus_cast<QList<PortalShortcut>>(results.value(QStringLiteral("shortcuts")));
    if (response != 0 || bound.isEmpty())
        lose(hotKeyTaken());
}

void PortalShortcutSession::activated(const QDBusObjectPath &session, const QString &shortcut, qulonglong,
                                      const QVariantMap &) {
    if (m_isLost || session.path() != m_session || shortcut != m_identifier)
        return;
    // It may drop this.
    const auto onPressed = m_callbacks.onPressed;
    onPressed();
}

void PortalShortcutSession::sessionClosed() {
    lose(hotKeyLost());
}

QString PortalShortcutSession::expectAnswer(const char *slot) {
    const QString token = newToken();
    QDBusConnection::sessionBus().connect(service, objectPath(QStringLiteral("request"), token),
                                          QStringLiteral("org.freedesktop.portal.Request"),
                                          QStringLiteral("Response"), this, slot);
    return token;
}

void PortalShortcutSession::call(const QString &method, const QVariantList &arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, portalPath, interface, method);
    message.setArguments(arguments);
    auto *const answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        if (!answer->isError())
            return;
        const QDBusError::ErrorType error = answer->error().type();
        const bool isUnknown = error == QDBusError::UnknownMethod || error == QDBusError::UnknownInterface ||
                               error == QDBusError::ServiceUnknown;
        lose(isUnknown ? hotKeysUnavailable() : hotKeyLost());
    });
}

void PortalShortcutSession::lose(const Error &error) {
    if (std::exchange(m_isLost, true))
        return;
    // It may drop this.
    const auto onLost = m_callbacks.onLost;
    onLost(error);
}

} // namespace tembra
