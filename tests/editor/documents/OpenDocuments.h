#pragma once

#include "editor/documents/EditorDocuments.h"
#include "support/Annotations.h"
#include "support/EditStore.h"
#include "support/FakePasteboard.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tembra {

// The documents of a window on the real platform, with what they told it.
class OpenDocuments : public testing::Test {
protected:
    using Kind = ScreenshotAnnotation::Kind;
    using Offer = EditorFailure::Offer;

    OpenDocuments() {
        make();
        open(QStringLiteral("a.png"));
    }

    void make() {
        documents = std::make_unique<EditorDocuments>(
            EditorDocuments::Services{store.store, copies, *platform.fileCoordinator, *platform.fileFacts,
                                      store.queue, images, store.scheduler},
            EditorDocuments::Hooks{
                .beginSave = [this](const Shot &shot) { told << u"begin "_qs + nameOf(shot.location); },
                .finishWrite =
                    [this](const std::optional<QString> &path) {
                        told << u"finish "_qs + nameOf(path.value_or(QStringLiteral("nothing")));
                    },
                .trash = [this](const QString &path,
                                const ScreenshotFileIdentity &identity) { return trash(path, identity); }});
        documents->onCurrentChanged = [this] { ++switches; };
        documents->onFullImage = [this](const QImage &image) { fullSize = image.size(); };
        documents->onError = [this](const EditorFailure &failure) { failures.push_back(failure); };
        documents->onChangedOutside = [this](bool canReload) {
            told << (canReload ? QStringLiteral("can be reloaded") : QStringLiteral("changed"));
        };
        documents->onFileGone = [this] { told << QStringLiteral("gone"); };
        documents->onFileRestored = [this] { told << QStringLiteral("restored"); };
        documents->onRemoved = [this](const Shot &shot) { told << u"removed "_qs + nameOf(shot.location); };
    }

    static QString nameOf(const QString &path) { return path.mid(path.lastIndexOf(u'/') + 1); }
    [[nodiscard]] QString path(const QString &name) const { return store.path(name); }
    [[nodiscard]] Shot shot(const QString &name) {
        if (!QFile::exists(path(name)))
            writeFile(path(name), pictureBytes(name.endsWith(u"jpg") ? "jpg" : "png", QSize(80, 60)));
        const auto facts = platform.fileFacts->facts(path(name));
        return {.location = path(name), .identity = ScreenshotFileIdentity::of(path(name), *facts)};
    }
    static QByteArray contentOf(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] QStringList files() const {
        return QDir(path({})).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    // Until nothing more happens.
    void settle() {
        while (store.queue.count() + images.count() > 0) {
            store.queue.runAll();
            images.runAll();
            store.scheduler.settle();
        }
        store.scheduler.settle();
    }
    void open(const QString &name) {
        documents->open(shot(name), {});
        settle();
    }
    ScreenshotEditDocument &edits() { return documents->current()->edits; }
    void draw(Kind kind = Kind::line) {
        auto annotations = edits().annotations();
        annotations.push_back(annotationOfKind(kind));
        annotations.back().id = QUuid::createUuid();
        edits().apply(annotations, edits().cropRect(), QStringLiteral("Draw"));
    }
    [[nodiscard]] QStringList unsaved() const {
        QStringList names;
        for (const EditorUnsavedDocument &document : documents->unsavedDocuments())
            names << document.fileName;
        return names;
    }
    // Another program replaces the file.
    QByteArray writeOutside(const QString &name) {
        const QByteArray bytes = pictureBytes("png", QSize(20 + ++m_outsideWrites, 20));
        writeFile(path(QStringLiteral("other.tmp")), bytes);
        QFile::remove(path(name));
        QFile::rename(path(QStringLiteral("other.tmp")), path(name));
        return bytes;
    }

    const QTemporaryDir folder;
    EditStore store{folder.path()};
    ManualQueue images;
    Platform platform = makeHeadlessPlatform(store.scheduler);
    FakePasteboard pasteboard;
    EditorImageCopies copies{path(QStringLiteral("copies")),
                             {pasteboard, *platform.fileCoordinator, store.queue, store.scheduler}};

    std::function<Result<void>(const QString &, const ScreenshotFileIdentity &)> trash =
        [](const QString &, const ScreenshotFileIdentity &) { return Result<void>(); };
    QStringList told;
    std::vector<EditorFailure> failures;
    int switches = 0;
    std::optional<QSize> fullSize;
    std::unique_ptr<EditorDocuments> documents;

private:
    int m_outsideWrites = 0;
};

} // namespace tembra
