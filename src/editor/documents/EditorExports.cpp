#include "editor/documents/EditorExports.h"

#include "base/Background.h"
#include "editor/documents/ImageFile.h"
#include "editor/documents/RenderedImage.h"

#include <QCoreApplication>

#include <utility>

namespace tembra {

namespace {

Error isOpenError() {
    return {QStringLiteral("Tembra.EditorDocuments"),
            1,
            QCoreApplication::translate(
                "EditorDocuments",
                "This is the screenshot that you are editing. Save it, or choose another name for the copy."),
            {}};
}

bool isSameFile(const QString &path, const QString &other, const FileFactsReader &files) {
    const auto facts = files.facts(path);
    const auto otherFacts = files.facts(other);
    return facts && otherFacts && facts->resource && facts->resource == otherFacts->resource;
}

} // namespace

EditorExports::EditorExports(EditorDocumentList &documents, EditorFileTasks &tasks,
                             const EditorDocumentsServices &services)
    : m_documents(documents), m_tasks(tasks), m_services(services) {}

EditorExports::Target EditorExports::target(const EditorDocument &document, const QString &path) {
    const QString type = RenderedImage::typeOf(path);
    if (!type.isEmpty())
        return {path, type, true};
    return {path + document.extension(), document.loaded.type, document.extension().isEmpty()};
}

void EditorExports::saveCopy(const EditorDocument &document, const QString &path, SaveCompletion completion) {
    const EditorDocumentId id = document.id;
    const Target target = EditorExports::target(document, path);
    auto done = underWay(id, std::move(completion));
    performInBackground(
        m_services.images, m_services.scheduler, m_life.ticket(),
        [original = document.loaded.original, edits = document.currentEdits(), type = target.type] {
            return RenderedImage::encoded(original, edits, type);
        },
        [this, id, target, shot = document.shot(),
         done = std::move(done)](const Result<QByteArray> &bytes) mutable {
            if (bytes)
                writeCopy(shot, id, target, *bytes, std::move(done));
            else
                done(failure(bytes.error()));
        });
}

void EditorExports::writeCopy(const Shot &shot, EditorDocumentId id, const Target &target,
                              const QByteArray &bytes, SaveCompletion done) {
    m_tasks.add(
        id, [this, shot, id, target, bytes] { return copyOf(shot, id, target, bytes); },
        [target, done = std::move(done)](const EditorFileTasks::Outcome &outcome) {
            done(outcome->map([](const EditorWritten &written) { return written.path; }));
        });
}

// The screenshot may have got another name since.
EditorFileTasks::Write EditorExports::copyOf(const Shot &shot, EditorDocumentId id, const Target &target,
                                             const QByteArray &bytes) {
    const EditorDocument *document = m_documents.find(id);
    const Shot now = document ? document->shot() : shot;
    return {now,
            [&files = m_services.files, &coordinator = m_services.coordinator, target, bytes,
             original = now.location]() -> Result<EditorWritten> {
                if (isSameFile(target.path, original, files))
                    return failure(isOpenError());
                return ImageFile(files, coordinator)
                    .write(target.path, bytes, original, target.mayReplace)
                    .map([&] { return EditorWritten{.path = target.path}; });
            }};
}

void EditorExports::copy(const EditorDocument &document, Completion completion) {
    auto done = underWay(document.id, std::move(completion));
    m_copies.advance();
    withPng(document, [this, source = document.loaded.path, request = m_copies.ticket(),
                       done = std::move(done)](const Result<QByteArray> &png) {
        if (!png)
            return done(failure(png.error()));
        // What was copied later is on the clipboard already.
        if (!request.isCurrent())
            return done({});
        m_services.copies.copy(*png, source, [life = m_life.ticket(), done](const Result<void> &copied) {
            if (life.isCurrent())
                done(copied);
        });
    });
}

void EditorExports::drag(const EditorDocument &document, DragCompletion completion) {
    auto done = underWay(document.id, std::move(completion));
    withPng(document, [this, source = document.loaded.path,
                       done = std::move(done)](const Result<QByteArray> &png) {
        if (!png)
            return done(failure(png.error()));
        m_services.copies.prepareDrag(
            *png, source, [life = m_life.ticket(), done, png = *png](const Result<QString> &file) {
                if (life.isCurrent())
                    done(file.map([&](const QString &path) { return EditorDraggedImage{png, path}; }));
            });
    });
}

void EditorExports::remember(EditorDocumentId document, const ScreenshotEdits &edits, const QByteArray &png) {
    m_rendered = document;
    m_renderedEdits = edits;
    m_png = png;
}

bool EditorExports::isRemembered(const EditorDocument &document) const {
    return !m_png.isEmpty() && m_rendered == document.id && m_renderedEdits == document.currentEdits();
}

void EditorExports::withPng(const EditorDocument &document,
                            std::function<void(const Result<QByteArray> &)> then) {
    if (isRemembered(document))
        return then(m_png);
    const ScreenshotEdits edits = document.currentEdits();
    performInBackground(
        m_services.images, m_services.scheduler, m_life.ticket(),
        [original = document.loaded.original, edits] {
            return RenderedImage::encoded(original, edits, RenderedImage::png);
        },
        [this, id = document.id, edits, then = std::move(then)](const Result<QByteArray> &png) {
            if (png)
                remember(id, edits, *png);
            then(png);
        });
}

template <class Value>
std::function<void(const Result<Value> &)>
EditorExports::underWay(EditorDocumentId id, std::function<void(const Result<Value> &)> completion) {
    ++m_underWay;
    return [this, id, completion = std::move(completion)](const Result<Value> &result) {
        --m_underWay;
        // Whoever is told may end this.
        const auto life = m_life.ticket();
        if (!result)
            report(id, result.error());
        if (life.isCurrent() && completion)
            completion(result);
        if (life.isCurrent() && onFinished)
            onFinished();
    };
}

void EditorExports::report(EditorDocumentId id, const Error &error) {
    const EditorDocument *document = m_documents.find(id);
    if (onFailure)
        onFailure({.error = error, .document = id, .fileName = document ? document->fileName() : QString()});
}

} // namespace tembra
