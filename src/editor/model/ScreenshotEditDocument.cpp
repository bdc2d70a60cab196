#include "editor/model/ScreenshotEditDocument.h"

#include "base/MainThread.h"
#include "editor/model/EditsChange.h"

#include <QCoreApplication>
#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace tembra {

// Replaces annotations and crop together, forth and back.
class ScreenshotEditDocument::Change final : public QUndoCommand {
public:
    Change(ScreenshotEditDocument &document, const ScreenshotEdits &after, const QString &name,
           QString series)
        : QUndoCommand(name),
          m_document(document),
          m_change(EditsChange::between(document.m_edits, after)),
          m_series(std::move(series)) {}

    void undo() override { m_document.set(m_change.undone(m_document.m_edits)); }
    void redo() override { m_document.set(m_change.done(m_document.m_edits)); }

    int id() const override { return m_series.isEmpty() ? -1 : 1; }
    bool mergeWith(const QUndoCommand *next) override {
        const auto &later = static_cast<const Change &>(*next);
        if (later.m_series != m_series)
            return false;
        // The later one is done already.
        const ScreenshotEdits between = later.m_change.undone(m_document.m_edits);
        const ScreenshotEdits before = m_change.undone(between);
        m_change = EditsChange::between(before, m_document.m_edits);
        setObsolete(before == m_document.m_edits);
        return true;
    }

private:
    ScreenshotEditDocument &m_document;
    EditsChange m_change;
    const QString m_series;
};

namespace {

// No badge shows a zero.
std::int64_t following(std::int64_t number) {
    return number == -1 ? 1 : number + 1;
}

QSet<QUuid> idsOf(const std::vector<ScreenshotAnnotation> &annotations) {
    QSet<QUuid> ids;
    for (const ScreenshotAnnotation &annotation : annotations)
        ids.insert(annotation.id);
    return ids;
}

} // namespace

ScreenshotEditDocument::ScreenshotEditDocument(const ScreenshotEditLoaded &loaded)
    : m_savedRecord(loaded.record),
      m_openingAnnotations(loaded.record.annotations),
      m_openingCropRect(loaded.record.cropRect),
      m_savedFingerprint(loaded.expectedHash),
      m_originalSize(loaded.size),
      m_edits{loaded.record.annotations, loaded.record.cropRect} {}

void ScreenshotEditDocument::setSelectedIDs(const QSet<QUuid> &ids) {
    requireMainThread();
    if (m_selectedIDs == ids)
        return;
    m_selectedIDs = ids;
    if (onChange)
        onChange();
}

std::vector<ScreenshotAnnotation> ScreenshotEditDocument::selectedAnnotations() const {
    std::vector<ScreenshotAnnotation> selected;
    std::ranges::copy_if(annotations(), std::back_inserter(selected),
                         [this](const ScreenshotAnnotation &one) { return m_selectedIDs.contains(one.id); });
    return selected;
}

bool ScreenshotEditDocument::isDirty() const {
    return annotations() != m_savedRecord.annotations || cropRect() != m_savedRecord.cropRect;
}

bool ScreenshotEditDocument::matchesSavedImage(const ScreenshotEditLoaded &loaded) const {
    return loaded.expectedHash == m_savedFingerprint && loaded.record.annotations == annotations() &&
           loaded.record.cropRect == cropRect();
}

void ScreenshotEditDocument::refreshBaseline(const ScreenshotEditLoaded &loaded) {
    requireMainThread();
    m_savedRecord = loaded.record;
    m_savedFingerprint = loaded.expectedHash;
    ++m_baselines;
}

std::int64_t ScreenshotEditDocument::nextNumber() const {
    std::optional<std::int64_t> largest;
    for (const ScreenshotAnnotation &annotation : annotations()) {
        if (annotation.number)
            largest = std::max(largest.value_or(annotation.number->value), annotation.number->value);
    }
    return largest ? following(*largest) : 1;
}

std::vector<std::int64_t>
ScreenshotEditDocument::numbersFor(const std::vector<ScreenshotAnnotation> &originals) const {
    std::vector<std::int64_t> numbers;
    std::int64_t next = nextNumber();
    for (const ScreenshotAnnotation &original : originals) {
        if (original.number)
            numbers.push_back(std::exchange(next, following(next)));
    }
    return numbers;
}

bool ScreenshotEditDocument::canNumberCopies(const std::vector<ScreenshotAnnotation> &originals) const {
    const auto numbers = numbersFor(originals);
    return numbers.empty() || numbers.back() <= EditorNumber::largest;
}

std::vector<ScreenshotAnnotation>
ScreenshotEditDocument::numberedCopies(const std::vector<ScreenshotAnnotation> &originals) const {
    std::vector<ScreenshotAnnotation> copies = originals;
    const auto numbers = numbersFor(originals);
    auto number = numbers.begin();
    for (ScreenshotAnnotation &copy : copies) {
        copy.id = QUuid::createUuid();
        if (copy.number)
            copy.number->value = *number++;
    }
    return copies;
}

void ScreenshotEditDocument::deleteSelection() {
    std::vector<ScreenshotAnnotation> remaining;
    std::ranges::copy_if(annotations(), std::back_inserter(remaining),
                         [this](const ScreenshotAnnotation &one) { return !m_selectedIDs.contains(one.id); });
    const std::size_t count = annotations().size() - remaining.size();
    if (count == 0)
        return;
    apply(std::move(remaining), cropRect(),
          count == 1 ? QCoreApplication::translate("ScreenshotEdit", "Delete annotation")
                     : QCoreApplication::translate("ScreenshotEdit", "Delete annotations"));
}

void ScreenshotEditDocument::applyCrop(const std::optional<QRectF> &crop) {
    apply(annotations(), crop, QCoreApplication::translate("ScreenshotEdit", "Crop"));
}

void ScreenshotEditDocument::apply(std::vector<ScreenshotAnnotation> annotations, std::optional<QRectF> crop,
                                   const QString &name, const QString &series) {
    requireMainThread();
    m_editingBegan = true;
    // Pushing does the change.
    // What was saved can be gone back to.
    const QString mergeable = series.isEmpty() ? series : series + QString::number(m_baselines);
    m_history.push(new Change(*this, {std::move(annotations), crop}, name, mergeable));
}

void ScreenshotEditDocument::set(ScreenshotEdits edits) {
    m_edits = std::move(edits);
    m_selectedIDs.intersect(idsOf(annotations()));
    if (onChange)
        onChange();
}

} // namespace tembra
