#pragma once

#include "base/Clocks.h"
#include "base/Generation.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/Pasteboard.h"
#include "screenshots/ScreenshotImageData.h"
#include "screenshots/Shot.h"

#include <QSet>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tembra {

// Puts new screenshots on the clipboard: each by itself, or all of a series together. What the user copies
// meanwhile is never overwritten. Main thread, the files are read on a queue; owned by ShelfSession.
class ScreenshotAutoCopy {
public:
    using Payload = ScreenshotImageData;

    enum class Outcome {
        // Other programs are offered the series.
        copied,
        // The desktop lets only the focused program copy: `writePostponed` is to be called when this one is.
        postponed,
    };

    struct Services {
        Pasteboard &pasteboard;
        // The queue "local.dova.Tembra.screenshot-copy".
        SerialQueue &queue;
        Scheduler &scheduler;
        // Reads a screenshot on the queue; nothing when that fails.
        std::function<std::optional<Payload>(const QString &path)> prepare;
        // Looks at the file again.
        std::function<bool(const QString &path)> isCapture;
    };

    // The services must outlive this.
    explicit ScreenshotAutoCopy(Services services);

    // What became of a series, after its last image was loaded.
    std::function<void(Outcome)> onFinished;

    // Nothing made before the moment of a change is copied; the same configuration again changes nothing.
    void configure(bool enabled, const std::optional<QString> &folder, Instant now);
    // New captures, in the order they are to be pasted in. With `continuingSeries` they join those before.
    void receive(const std::vector<Shot> &shots, bool continuingSeries);
    // Copies what had to wait for the focus, unless the clipboard has changed since.
    void writePostponed();

private:
    struct Image {
        QString path;
        std::optional<Payload> payload;
    };

    [[nodiscard]] bool qualifies(const Shot &shot) const;
    void load(const QString &path);
    void received(const QString &path, std::optional<Payload> payload);
    void write();
    void keepLastData();

    const Services m_services;
    Instant m_enabledSince{};
    // Without links; nothing while it is not enabled.
    std::optional<QString> m_folder;
    Generation m_generation;
    // Handled files: path and version, so that another file of the same name counts.
    QSet<QString> m_received;
    std::vector<Image> m_series;
    int m_outstanding = 0;
    bool m_isPostponed = false;
    // Of the clipboard as this left or found it.
    std::int64_t m_changeCount = 0;
};

} // namespace tembra
