#pragma once

#include "platform/HotKeys.h"

#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

namespace tembra {

// One session with the desktop's portal for shortcuts, and the one key bound in it: a session's keys are
// bound once and for all. It ends with this object. Main thread.
class PortalShortcutSession final : public QObject, public HotKeys::Registration {
    Q_OBJECT

public:
    PortalShortcutSession(const HotKeys::HotKey &key, HotKeys::Callbacks callbacks);
    ~PortalShortcutSession() override;

    // What the portal is asked to bind, as freedesktop writes shortcuts ("LOGO+SHIFT+w"); empty
    // for a key that it has no word for.
    [[nodiscard]] static QString trigger(const HotKeys::HotKey &key);

private Q_SLOTS:
    void sessionAnswered(uint response, const QVariantMap &results);
    void bindingAnswered(uint response, const QVariantMap &results);
    void activated(const QDBusObjectPath &session, const QString &shortcut, qulonglong time,
                   const QVariantMap &options);
    void sessionClosed();

private:
    void introduceProgram();
    void createSession();
    void bind();
    // The portal answers by a signal of an object that is named before it is asked.
    [[nodiscard]] QString expectAnswer(const char *slot);
    void call(const QString &method, const QVariantList &arguments);
    void lose(const Error &error);

    const HotKeys::HotKey m_key;
    const HotKeys::Callbacks m_callbacks;
    const QString m_identifier;
    const QString m_token;
    const QString m_session;
    bool m_isLost = false;
};

} // namespace tembra
