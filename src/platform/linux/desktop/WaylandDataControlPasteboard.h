#pragma once

#include "base/Generation.h"
#include "base/Scheduler.h"
#include "base/ThreadQueue.h"
#include "platform/Pasteboard.h"
#include "platform/linux/desktop/DataControlProtocol.h"
#include "platform/linux/desktop/WaylandConnection.h"

#include <QObject>

namespace tembra {

class ClipboardContent;

// The clipboard of a Wayland compositor that lets programs without the keyboard's focus own it. What was put
// there goes with the program, unless a clipboard manager keeps it. Main thread.
class WaylandDataControlPasteboard final : public Pasteboard {
public:
    // Nothing without a Wayland compositor or on one that does not let us. The scheduler must outlive it.
    [[nodiscard]] static std::unique_ptr<WaylandDataControlPasteboard> open(Scheduler &scheduler);
    ~WaylandDataControlPasteboard() override;
    WaylandDataControlPasteboard(const WaylandDataControlPasteboard &) = delete;
    WaylandDataControlPasteboard &operator=(const WaylandDataControlPasteboard &) = delete;

    [[nodiscard]] std::int64_t changeCount() override;
    [[nodiscard]] const QMimeData *content() override;
    [[nodiscard]] Result<void> writeObjects(const std::vector<Item> &items) override;

private:
    class OfferedContent;

    WaylandDataControlPasteboard(Scheduler &scheduler, std::unique_ptr<WaylandConnection> connection,
                                 const DataControlProtocol &protocol, DataControlProtocol::Manager manager);
    // Whether there is a seat whose clipboard is ours to see.
    [[nodiscard]] bool watch();
    void selectionChanged(wl_proxy *offer);
    void send(const ClipboardContent &content, const QString &format, int descriptor);
    void drop(const OfferedContent *content);

    Scheduler &m_scheduler;
    const std::unique_ptr<WaylandConnection> m_connection;
    const DataControlProtocol &m_protocol;
    const DataControlProtocol::Manager m_manager;
    DataControlProtocol::Device m_device;
    // Another program's or our own, kept for as long as it is the current one.
    DataControlProtocol::Offer m_offer;
    std::int64_t m_changeCount = 0;
    // What programs may still ask for: the last one, and those before it until the compositor says otherwise.
    std::vector<std::unique_ptr<OfferedContent>> m_contents;
    // The parent of what is being written.
    QObject m_transfers;
    Generation m_generation;
    // Converts images.
    ThreadQueue m_queue{QStringLiteral("Tembra.Clipboard.Send")};
};

} // namespace tembra
