#include "editor/canvas/AnnotationCommands.h"

#include "editor/canvas/AnnotationEditing.h"
#include "editor/model/EditorObjectClipboard.h"

#include <QCoreApplication>
#include <QLineF>

#include <algorithm>
#include <cmath>
#include <ranges>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("ScreenshotEdit", source);
}

// What a change of style is called.
QString restyleName(const std::vector<ScreenshotAnnotation> &annotations, const EditorStyleChange &change) {
    using Kind = ScreenshotAnnotation::Kind;
    const auto areAll = [&](Kind kind) {
        return std::ranges::all_of(annotations, [kind](const auto &one) { return one.kind == kind; });
    };
    if (change.straightens)
        return text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Straighten"));
    if (change.number)
        return text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Change number"));
    if (areAll(Kind::text))
        return text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Change text style"));
    if (areAll(Kind::number) && (change.size || change.sizeSteps != 0))
        return text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Change number size"));
    return text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Change style"));
}

QRectF boundsOf(const std::vector<ScreenshotAnnotation> &annotations) {
    QRectF bounds;
    for (const ScreenshotAnnotation &annotation : annotations)
        bounds |= annotation.path().boundingRect();
    return bounds;
}

std::vector<QPointF> cornersOf(const std::vector<ScreenshotAnnotation> &annotations) {
    std::vector<QPointF> corners;
    for (const ScreenshotAnnotation &annotation : annotations)
        corners.push_back(annotation.path().boundingRect().topLeft());
    return corners;
}

// How far a copy lies from what it is a copy of.
double copyStep(QSizeF image) {
    return std::round(16 * annotationEditing::imageUnit(image));
}

QPointF rounded(QPointF point) {
    return {std::round(point.x()), std::round(point.y())};
}

} // namespace

void AnnotationCommands::put(const Annotations &annotations, const QString &name) {
    Annotations all = m_document.annotations();
    for (const ScreenshotAnnotation &annotation : annotations) {
        const auto known = std::ranges::find(all, annotation.id, &ScreenshotAnnotation::id);
        if (known == all.end())
            all.push_back(annotation);
        else
            *known = annotation;
    }
    if (all != m_document.annotations())
        m_document.apply(std::move(all), m_document.cropRect(), name);
}

// Changes of one kind to the same annotations, right after each other.
QString AnnotationCommands::series(const QString &kind) const {
    QStringList ids;
    for (const QUuid &id : m_document.selectedIDs())
        ids += id.toString();
    ids.sort();
    return kind + u' ' + ids.join(u' ');
}

template <class Change>
void AnnotationCommands::changeSelected(const Change &change, const QString &name, const QString &series) {
    Annotations all = m_document.annotations();
    for (ScreenshotAnnotation &annotation : all) {
        if (m_document.selectedIDs().contains(annotation.id))
            annotation = change(annotation);
    }
    if (all != m_document.annotations())
        m_document.apply(std::move(all), m_document.cropRect(), name, series);
}

void AnnotationCommands::nudge(QPointF delta) {
    const QRectF bounds = boundsOf(m_document.selectedAnnotations());
    const QRectF moved = bounds.translated(delta);
    // Something of them stays in the image; what a crop has left outside may come back.
    const auto distance = [this](QPointF point) { return QLineF(point, m_limits.center()).length(); };
    if (!moved.intersects(m_limits) && distance(moved.center()) >= distance(bounds.center()))
        return;
    changeSelected([delta](const auto &one) { return annotationEditing::moved(one, delta); },
                   text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Move annotations")),
                   series(QStringLiteral("move")));
}

void AnnotationCommands::grow(QPointF delta) {
    changeSelected([&](const auto &one) { return annotationEditing::grownBy(one, delta, m_limits); },
                   text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Resize")), series(QStringLiteral("grow")));
}

void AnnotationCommands::order(Order order) {
    Annotations all = m_document.annotations();
    const auto isSelected = [this](const ScreenshotAnnotation &one) {
        return m_document.selectedIDs().contains(one.id);
    };
    const auto isNot = [&](const ScreenshotAnnotation &one) { return !isSelected(one); };
    switch (order) {
    case Order::front:
        std::ranges::stable_partition(all, isNot);
        break;
    case Order::back:
        std::ranges::stable_partition(all, isSelected);
        break;
    case Order::forward:
        for (std::size_t at = all.size(); at-- > 1;) {
            if (isSelected(all[at - 1]) && isNot(all[at]))
                std::swap(all[at - 1], all[at]);
        }
        break;
    case Order::backward:
        for (std::size_t at = 1; at < all.size(); ++at) {
            if (isSelected(all[at]) && isNot(all[at - 1]))
                std::swap(all[at - 1], all[at]);
        }
        break;
    }
    if (all != m_document.annotations())
        m_document.apply(std::move(all), m_document.cropRect(),
                         text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Change order")));
}

void AnnotationCommands::restyle(const EditorStyleChange &change) {
    const bool isGradual = !change.color && (change.size || change.sizeSteps != 0);
    changeSelected([&](const auto &one) { return annotationEditing::restyled(one, change, m_limits); },
                   restyleName(m_document.selectedAnnotations(), change),
                   isGradual ? series(QStringLiteral("size")) : QString());
}

bool AnnotationCommands::insertCopies(const Annotations &originals, QPointF delta, const QString &name) {
    if (originals.empty() || !m_document.canNumberCopies(originals))
        return false;
    Annotations all = m_document.annotations();
    QSet<QUuid> ids;
    for (const ScreenshotAnnotation &copy : m_document.numberedCopies(originals)) {
        all.push_back(annotationEditing::moved(copy, delta));
        ids.insert(copy.id);
    }
    m_document.apply(std::move(all), m_document.cropRect(), name);
    m_document.setSelectedIDs(ids);
    return true;
}

void AnnotationCommands::duplicate() {
    const Annotations originals = m_document.selectedAnnotations();
    const double step = copyStep(m_document.originalSize());
    const QRectF bounds = boundsOf(originals);
    const auto way = [step](double high, double most) { return high + step <= most ? step : -step; };
    insertCopies(originals, {way(bounds.right(), m_limits.right()), way(bounds.bottom(), m_limits.bottom())},
                 text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Duplicate")));
}

Result<void> AnnotationCommands::copy(Pasteboard &pasteboard) const {
    return EditorObjectClipboard::write(m_document.selectedAnnotations(), pasteboard);
}

Result<void> AnnotationCommands::cut(Pasteboard &pasteboard) {
    return copy(pasteboard).map([this] { m_document.deleteSelection(); });
}

bool AnnotationCommands::canPaste(Pasteboard &pasteboard) const {
    const auto read = EditorObjectClipboard::read(pasteboard);
    return !read || m_document.canNumberCopies(*read);
}

bool AnnotationCommands::paste(Pasteboard &pasteboard, QPointF middle) {
    const auto read = EditorObjectClipboard::read(pasteboard);
    if (!read || read->empty())
        return false;
    const QRectF bounds = boundsOf(*read);
    QPointF delta;
    if (!m_limits.contains(bounds))
        delta = rounded(middle - bounds.center());
    // Copies do not hide what they are copies of.
    const std::vector<QPointF> taken = cornersOf(m_document.annotations());
    const std::vector<QPointF> copied = cornersOf(*read);
    const auto covers = [&](const QPointF &way) {
        return std::ranges::any_of(
            copied, [&](QPointF corner) { return std::ranges::count(taken, corner + way) > 0; });
    };
    const double step = copyStep(m_document.originalSize());
    for (int tries = 0; covers(delta) && tries < 100; ++tries)
        delta += QPointF(step, step);
    return insertCopies(*read, delta, text(QT_TRANSLATE_NOOP("ScreenshotEdit", "Paste")));
}

void AnnotationCommands::selectAll() {
    QSet<QUuid> ids;
    for (const ScreenshotAnnotation &annotation : m_document.annotations())
        ids.insert(annotation.id);
    m_document.setSelectedIDs(ids);
}

bool AnnotationCommands::selectNext(bool isBackward) {
    const Annotations &all = m_document.annotations();
    const auto isSelected = [this](const ScreenshotAnnotation &one) {
        return m_document.selectedIDs().contains(one.id);
    };
    const auto last = isBackward ? std::ranges::find_if(all, isSelected)
                                 : std::ranges::find_if(std::views::reverse(all), isSelected).base();
    // `last` is the first selected one going back, and what follows the last selected one going on.
    const auto none = m_document.selectedIDs().isEmpty();
    if (all.empty() || (isBackward && last == all.begin()) || (!isBackward && !none && last == all.end()))
        return false;
    const auto next =
        none ? (isBackward ? std::prev(all.end()) : all.begin()) : (isBackward ? std::prev(last) : last);
    m_document.setSelectedIDs({next->id});
    return true;
}

} // namespace tembra
