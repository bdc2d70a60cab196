#pragma once

#include "platform/Pasteboard.h"
#include "platform/linux/desktop/X11ClipboardWatch.h"

#include <QObject>

#include <memory>

namespace tembra {

class X11Connection;
class X11DragAnswers;

// The clipboard as Qt shares it. Where a clipboard manager runs, Qt hands it what is there when the program
// ends.
class QtPasteboard final : public Pasteboard {
public:
    // Without a connection to an X server changes are counted as Qt tells of them.
    explicit QtPasteboard(std::shared_ptr<X11Connection> connection);
    ~QtPasteboard() override;
    QtPasteboard(const QtPasteboard &) = delete;
    QtPasteboard &operator=(const QtPasteboard &) = delete;

    [[nodiscard]] std::int64_t changeCount() override;
    [[nodiscard]] const QMimeData *content() override;
    [[nodiscard]] Result<void> writeObjects(const std::vector<Item> &items) override;

private:
    [[nodiscard]] bool isOwner() const;
    void tellOfChange();

    const std::shared_ptr<X11Connection> m_connection;
    std::unique_ptr<X11ClipboardWatch> m_watch;
    // What is dragged is shared as the clipboard is.
    std::unique_ptr<X11DragAnswers> m_dragAnswers;
    QObject m_context;
    std::int64_t m_changeCount = 0;
};

} // namespace tembra
