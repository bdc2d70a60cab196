#pragma once

#include "editor/model/ScreenshotEditLoaded.h"
#include "editor/model/ScreenshotEdits.h"
#include "screenshots/Shot.h"

#include <QSet>
#include <QSizeF>
#include <QUndoStack>

#include <functional>
#include <optional>
#include <vector>

namespace tembra {

// The edits of one open image, with their undo. Image space. Main thread; owned by the editor's window.
class ScreenshotEditDocument {
public:
    explicit ScreenshotEditDocument(const ScreenshotEditLoaded &loaded);
    ScreenshotEditDocument(const ScreenshotEditDocument &) = delete;
    ScreenshotEditDocument &operator=(const ScreenshotEditDocument &) = delete;

    // The screenshot that is being edited.
    std::optional<Shot> residentImage;
    // After every change of annotations, crop or selection.
    std::function<void()> onChange;

    [[nodiscard]] const std::vector<ScreenshotAnnotation> &annotations() const { return m_edits.annotations; }
    [[nodiscard]] const std::optional<QRectF> &cropRect() const { return m_edits.cropRect; }
    [[nodiscard]] const std::vector<ScreenshotAnnotation> &openingAnnotations() const {
        return m_openingAnnotations;
    }
    [[nodiscard]] const std::optional<QRectF> &openingCropRect() const { return m_openingCropRect; }
    [[nodiscard]] const ScreenshotEditRecord &savedRecord() const { return m_savedRecord; }
    [[nodiscard]] const QString &savedFingerprint() const { return m_savedFingerprint; }
    [[nodiscard]] QSizeF originalSize() const { return m_originalSize; }
    // Something was changed since the document was opened, be it undone since.
    [[nodiscard]] bool editingBegan() const { return m_editingBegan; }
    [[nodiscard]] QUndoStack &history() { return m_history; }

    [[nodiscard]] const QSet<QUuid> &selectedIDs() const { return m_selectedIDs; }
    void setSelectedIDs(const QSet<QUuid> &ids);
    // In drawing order.
    [[nodiscard]] std::vector<ScreenshotAnnotation> selectedAnnotations() const;

    // Annotations or crop differ from what was saved.
    [[nodiscard]] bool isDirty() const;
    // A state loaded anew is what this document holds, so nobody else wrote the file.
    [[nodiscard]] bool matchesSavedImage(const ScreenshotEditLoaded &loaded) const;
    // After a save or a reload: what was loaded is saved; the annotations stay.
    void refreshBaseline(const ScreenshotEditLoaded &loaded);

    // The number of the next badge.
    [[nodiscard]] std::int64_t nextNumber() const;
    // Whether there are numbers left for the badges among them.
    [[nodiscard]] bool canNumberCopies(const std::vector<ScreenshotAnnotation> &originals) const;
    // With ids of their own, and their badges numbered on.
    [[nodiscard]] std::vector<ScreenshotAnnotation>
    numberedCopies(const std::vector<ScreenshotAnnotation> &originals) const;

    void deleteSelection();
    void applyCrop(const std::optional<QRectF> &crop);
    // Every change goes through this and can be undone under its name. Changes of the same series that follow
    // each other are one step. The selection keeps what remains.
    void apply(std::vector<ScreenshotAnnotation> annotations, std::optional<QRectF> crop, const QString &name,
               const QString &series = {});

private:
    class Change;

    void set(ScreenshotEdits edits);
    [[nodiscard]] std::vector<std::int64_t>
    numbersFor(const std::vector<ScreenshotAnnotation> &originals) const;

    ScreenshotEditRecord m_savedRecord;
    const std::vector<ScreenshotAnnotation> m_openingAnnotations;
    const std::optional<QRectF> m_openingCropRect;
    QString m_savedFingerprint;
    const QSizeF m_originalSize;
    ScreenshotEdits m_edits;
    bool m_editingBegan = false;
    // How often what is saved has changed.
    int m_baselines = 0;
    QSet<QUuid> m_selectedIDs;
    QUndoStack m_history;
};

} // namespace tembra
