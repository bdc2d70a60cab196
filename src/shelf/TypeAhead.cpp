#include "shelf/TypeAhead.h"

namespace tembra {

const QString &TypeAhead::append(const QString &text, std::chrono::milliseconds time) {
    if (time - m_last > pause)
        m_text.clear();
    m_last = time;
    m_text += text;
    return m_text;
}

std::optional<int> TypeAhead::find(QStringView text, int count, int start,
                                   const std::function<QString(int)> &nameOf) {
    std::optional<int> holding;
    for (int i = 0; i < count; ++i) {
        const int index = (start + i) % count;
        const QString name = nameOf(index);
        if (name.startsWith(text, Qt::CaseInsensitive))
            return index;
        if (!holding && name.contains(text, Qt::CaseInsensitive))
            holding = index;
    }
    return holding;
}

} // namespace tembra
