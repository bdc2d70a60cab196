#pragma once

#include "base/Generation.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/TextRecognizer.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QUuid>

#include <functional>
#include <optional>

namespace tembra {

// The rectangles of all words of the image that an editor's canvas shows, for the blur that works on words.
// Image space: pixels of the original, origin top left. Main thread; recognition runs on the queue
// "Tembra.Editor.WordRecognition", one at a time. What is handed in outlives it and the jobs on the queue.
class EditorWordRecognition {
public:
    enum class State { idle, loading, ready, failed };

    EditorWordRecognition(const TextRecognizer &recognizer, SerialQueue &queue, Scheduler &scheduler);
    ~EditorWordRecognition();
    EditorWordRecognition(const EditorWordRecognition &) = delete;
    EditorWordRecognition &operator=(const EditorWordRecognition &) = delete;

    // State or regions have changed.
    std::function<void()> onChange;

    // The words of this image are wanted now, and no others. The last few images are remembered by their id.
    void start(const QUuid &id, const QByteArray &original);
    void cancel();

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] const std::vector<QRectF> &regions() const { return m_regions; }
    // Why it failed, while it is in that state.
    [[nodiscard]] const std::optional<Error> &error() const { return m_error; }

    // In the order of the lines and of the words in each, within an image of that size.
    [[nodiscard]] static std::vector<QRectF> regions(const std::vector<TextRecognizer::Line> &lines,
                                                     const QSize &size);

private:
    using Regions = std::vector<QRectF>;

    // Ends what is under way; what comes of it is dropped.
    void abandon();
    void finish(const QUuid &id, Result<Regions> result);
    void remember(const QUuid &id, const Regions &regions);

    const TextRecognizer &m_recognizer;
    SerialQueue &m_queue;
    Scheduler &m_scheduler;

    State m_state = State::idle;
    Regions m_regions;
    std::optional<Error> m_error;
    // The recognition in flight.
    std::optional<Cancellation> m_work;
    Generation m_generation;
    std::optional<QUuid> m_activeID;
    QHash<QUuid, Regions> m_cache;
    // The cached images, oldest first.
    QList<QUuid> m_recent;
};

} // namespace tembra
