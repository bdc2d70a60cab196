#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <optional>

namespace tembra {

// Finds an item by what is typed of its name: letters that follow each other closely are one search.
class TypeAhead {
public:
    static constexpr std::chrono::milliseconds pause{1000};

    // What is searched for after this text was typed; `time` is that of the key event.
    [[nodiscard]] const QString &append(const QString &text, std::chrono::milliseconds time);
    // The first item from `start` on, round to it again, whose name begins with the text, else one whose name
    // holds it.
    [[nodiscard]] static std::optional<int> find(QStringView text, int count, int start,
                                                 const std::function<QString(int)> &nameOf);

private:
    QString m_text;
    std::chrono::milliseconds m_last{0};
};

} // namespace tembra
