#include "editor/canvas/WordsGesture.h"

#include "editor/canvas/WordAreas.h"

#include <QCoreApplication>

namespace tembra {

WordsGesture::WordsGesture(ScreenshotAnnotation prototype, QPointF start, std::vector<QRectF> words,
                           const QRectF &limits, double tolerance)
    : m_prototype(std::move(prototype)),
      m_start(start),
      m_words(std::move(words)),
      m_limits(limits),
      m_tolerance(tolerance) {}

CanvasDraft WordsGesture::drag(QPointF point, Qt::KeyboardModifiers) {
    std::vector<QRectF> touched = WordAreas::wordsIn(QRectF(m_start, point).normalized(), m_words);
    if (touched.empty()) {
        if (const auto word = WordAreas::wordAt(m_start, m_words, m_tolerance))
            touched.push_back(*word);
    }
    CanvasDraft draft;
    const std::vector<QRectF> areas = WordAreas::hiding(touched, m_limits);
    for (std::size_t index = 0; index < areas.size(); ++index)
        draft.annotations.push_back(blurOver(index, areas[index]));
    draft.words = std::move(touched);
    return draft;
}

ScreenshotAnnotation WordsGesture::blurOver(std::size_t index, const QRectF &area) {
    while (m_ids.size() <= index)
        m_ids.push_back(QUuid::createUuid());
    ScreenshotAnnotation blur = m_prototype;
    blur.id = m_ids[index];
    blur.points = {EditorPoint::from(area.topLeft()), EditorPoint::from(area.bottomRight())};
    return blur;
}

QString WordsGesture::actionName() const {
    return QCoreApplication::translate("ScreenshotEdit", "Blur words");
}

} // namespace tembra
