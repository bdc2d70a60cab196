#include "platform/linux/tools/RcFilePreferences.h"

#include <utility>

namespace tembra {

RcFile RcFilePreferences::settings() const {
    RcFile file = RcFile::read(m_path).value_or(RcFile(m_path));
    applyChanges(file);
    return file;
}

void RcFilePreferences::change(const QByteArray &group, const QByteArray &key,
                               const std::optional<QByteArray> &value) {
    m_changes.append({group, key, value});
}

void RcFilePreferences::synchronize() {
    if (auto file = RcFile::read(m_path); file && !m_changes.isEmpty()) {
        applyChanges(*file);
        // A file that cannot be written keeps what it says, which is what is read from now on.
        [[maybe_unused]] const Result<void> saved = file->save();
    }
    m_changes.clear();
}

void RcFilePreferences::applyChanges(RcFile &file) const {
    for (const Change &change : m_changes) {
        if (change.value)
            file.setValue(change.group, change.key, *change.value);
        else
            file.remove(change.group, change.key);
    }
}

} // namespace tembra
