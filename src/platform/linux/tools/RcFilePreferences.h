#pragma once

#include "platform/linux/tools/RcFile.h"
#include "platform/linux/tools/ToolPreferences.h"

namespace tembra {

// The preferences of a tool that keeps them in a settings file. What is set waits for `synchronize` and is
// then written into the file as it is at that time; reading tells what the file says together with what
// waits.
class RcFilePreferences : public ToolPreferences {
public:
    void synchronize() override;

protected:
    RcFilePreferences(QString path, StandardFolders folders)
        : ToolPreferences(std::move(folders)), m_path(std::move(path)) {}

    // An empty one when the file cannot be read.
    [[nodiscard]] RcFile settings() const;
    // No value removes the entry.
    void change(const QByteArray &group, const QByteArray &key, const std::optional<QByteArray> &value);

private:
    struct Change {
        QByteArray group;
        QByteArray key;
        std::optional<QByteArray> value;
    };

    void applyChanges(RcFile &file) const;

    const QString m_path;
    QList<Change> m_changes;
};

} // namespace tembra
