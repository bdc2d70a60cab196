#include "recognition/model/EditorWordRecognition.h"

#include "base/Background.h"
#include "base/MainThread.h"
#include "editor/model/ScreenshotRenderer.h"

namespace tembra {

namespace {

constexpr qsizetype mostCached = 4;

Result<std::vector<QRectF>> wordsOf(const TextRecognizer &recognizer, const QByteArray &original,
                                    const Cancellation &work) {
    if (work.isCancelled())
        return std::vector<QRectF>();
    const auto image = ScreenshotRenderer::image(original);
    if (!image)
        return failure(image.error());
    if (work.isCancelled())
        return std::vector<QRectF>();
    const auto lines = recognizer.recognize(*image, work);
    if (!lines)
        return failure(lines.error());
    return EditorWordRecognition::regions(*lines, image->size());
}

} // namespace

EditorWordRecognition::EditorWordRecognition(const TextRecognizer &recognizer, SerialQueue &queue,
                                             Scheduler &scheduler)
    : m_recognizer(recognizer), m_queue(queue), m_scheduler(scheduler) {}

EditorWordRecognition::~EditorWordRecognition() {
    abandon();
}

void EditorWordRecognition::start(const QUuid &id, const QByteArray &original) {
    requireMainThread();
    abandon();
    m_activeID = id;
    m_error.reset();
    if (const auto known = m_cache.constFind(id); known != m_cache.constEnd()) {
        m_regions = *known;
        m_state = State::ready;
    } else {
        m_regions.clear();
        m_state = State::loading;
        const Cancellation work = m_work.emplace();
        performInBackground(
            m_queue, m_scheduler, m_generation.ticket(),
            [&recognizer = m_recognizer, original, work] { return wordsOf(recognizer, original, work); },
            [this, id](Result<Regions> result) { finish(id, std::move(result)); });
    }
    if (onChange)
        onChange();
}

void EditorWordRecognition::cancel() {
    requireMainThread();
    abandon();
    m_error.reset();
    if (std::exchange(m_state, State::idle) != State::idle && onChange)
        onChange();
}

std::vector<QRectF> EditorWordRecognition::regions(const std::vector<TextRecognizer::Line> &lines,
                                                   const QSize &size) {
    const QRectF bounds(QRect(QPoint(), size));
    std::vector<QRectF> result;
    for (const TextRecognizer::Line &line : lines) {
        for (const TextRecognizer::Word &word : line.words) {
            const QRectF region = word.box & bounds;
            if (!region.isEmpty())
                result.push_back(region);
        }
    }
    return result;
}

void EditorWordRecognition::abandon() {
    if (m_work)
        m_work->cancel();
    m_work.reset();
    m_generation.advance();
}

void EditorWordRecognition::finish(const QUuid &id, Result<Regions> result) {
    m_work.reset();
    if (result)
        remember(id, *result);
    if (m_activeID != id)
        return;
    m_state = result ? State::ready : State::failed;
    if (result)
        m_regions = std::move(*result);
    else
        m_error = std::move(result.error());
    if (onChange)
        onChange();
}

void EditorWordRecognition::remember(const QUuid &id, const Regions &regions) {
    m_cache.insert(id, regions);
    m_recent.append(id);
    while (m_recent.size() > mostCached)
        m_cache.remove(m_recent.takeFirst());
}

} // namespace tembra
