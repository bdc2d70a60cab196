#pragma once

#include "base/Generation.h"
#include "editor/documents/EditorDocumentList.h"
#include "editor/documents/EditorDocumentsServices.h"
#include "editor/documents/EditorDraggedImage.h"
#include "editor/documents/EditorFailure.h"
#include "editor/documents/EditorFileTasks.h"

#include <functional>

namespace tembra {

// Gives away what is drawn on a document, as it is when that is asked for: as a file, over the clipboard and
// by dragging. The document stays as it is. Main thread; owned by EditorDocuments.
class EditorExports {
public:
    using Completion = std::function<void(const Result<void> &)>;
    using SaveCompletion = std::function<void(const Result<QString> &path)>;
    using DragCompletion = std::function<void(const Result<EditorDraggedImage> &)>;

    EditorExports(EditorDocumentList &documents, EditorFileTasks &tasks,
                  const EditorDocumentsServices &services);

    std::function<void(const EditorFailure &)> onFailure;
    // Something that was under way has ended.
    std::function<void()> onFinished;

    // In the type of the path's extension; with none that can be written the document's own is appended. The
    // path as it was given may be taken: that was agreed to.
    void saveCopy(const EditorDocument &document, const QString &path, SaveCompletion completion);
    void copy(const EditorDocument &document, Completion completion);
    void drag(const EditorDocument &document, DragCompletion completion);

    // What these edits look like.
    void remember(EditorDocumentId document, const ScreenshotEdits &edits, const QByteArray &png);
    // Nothing is being rendered or copied.
    [[nodiscard]] bool isIdle() const { return m_underWay == 0; }

private:
    struct Target {
        QString path;
        QString type;
        bool mayReplace;
    };

    [[nodiscard]] static Target target(const EditorDocument &document, const QString &path);
    void writeCopy(const Shot &shot, EditorDocumentId id, const Target &target, const QByteArray &bytes,
                   SaveCompletion done);
    [[nodiscard]] EditorFileTasks::Write copyOf(const Shot &shot, EditorDocumentId id, const Target &target,
                                                const QByteArray &bytes);
    void withPng(const EditorDocument &document, std::function<void(const Result<QByteArray> &)> then);
    [[nodiscard]] bool isRemembered(const EditorDocument &document) const;
    // Wraps what is to happen when something that began now has ended.
    template <class Value>
    [[nodiscard]] std::function<void(const Result<Value> &)>
    underWay(EditorDocumentId id, std::function<void(const Result<Value> &)> completion);
    void report(EditorDocumentId id, const Error &error);

    EditorDocumentList &m_documents;
    EditorFileTasks &m_tasks;
    const EditorDocumentsServices m_services;
    // The last image that was rendered, and of what.
    EditorDocumentId m_rendered = EditorDocumentId::none;
    ScreenshotEdits m_renderedEdits;
    QByteArray m_png;
    int m_underWay = 0;
    // Of what is to be on the clipboard.
    Generation m_copies;
    Generation m_life;
};

} // namespace tembra
