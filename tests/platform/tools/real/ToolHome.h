#pragma once

#include "platform/ScreenCapturePreferences.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

#include <memory>

namespace tembra {

// A user's home for this process and the screenshot tools it starts, on the private desktop: settings, data
// and a Pictures folder with another name. The environment is as the user's session has it.
class ToolHome {
public:
    ToolHome();

    [[nodiscard]] QString path(const QString &name) const { return m_root.filePath(name); }
    // The folders of the user's with which the session began, below the home folder.
    static inline const QString desktop = QStringLiteral("Arbeitsfläche");
    static inline const QString pictures = QStringLiteral("Meine Bilder");
    // An empty folder of that name.
    [[nodiscard]] QString emptyFolder(const QString &name) const;
    // The language that programs started from now on have; empty for English.
    void setLanguage(const QByteArray &language) const;

    // What Tembra reads and sets where the user has chosen that tool.
    [[nodiscard]] std::unique_ptr<ScreenCapturePreferences> preferences(const QString &tool) const;
    // What `tembra scan` tells of a folder, when the session's tool is the given one.
    [[nodiscard]] QJsonObject scan(const QString &folder, const QString &tool) const;

private:
    const QTemporaryDir m_root;
};

// Runs a tool in a folder until it ends; gives what it said and how it ended when that was not well. Where it
// shows a window of the class, Return is pressed in it.
[[nodiscard]] QString takeCapture(const QString &program, const QStringList &arguments, const QString &folder,
                                  const QString &windowClass = {});

} // namespace tembra
