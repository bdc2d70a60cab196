#include "editor/model/ScreenshotEditStore.h"

#include "base/Background.h"
#include "base/MainThread.h"
#include "editor/model/EditorCropSession.h"
#include "editor/model/ScreenshotEditError.h"
#include "editor/model/ScreenshotRenderer.h"
#include "editor/model/UuidText.h"
#include "imaging/PictureHeader.h"
#include "imaging/Sha256.h"
#include "settings/CocoaError.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tembra {

namespace {

using Code = ScreenshotEditError::Code;

const QString pngType = QStringLiteral("public.png");

bool isCode(const Error &error, FileCoordinator::ErrorCode code) {
    return error.domain == FileCoordinator::errorDomain && error.code == code;
}

// Somebody else wrote the file, put something else in its place or took it away.
bool tellsOfChange(const Error &error) {
    return isCode(error, FileCoordinator::changed) || isCode(error, FileCoordinator::notRegular) ||
           (error.domain == posixErrorDomain && error.code == ENOENT);
}

FileCoordinator::ContentCheck contentOf(const QString &hash) {
    return [hash](QByteArrayView bytes) { return sha256Hex(bytes) == hash; };
}

QString extensionOf(const QString &path) {
    const QString suffix = QFileInfo(path).suffix();
    return suffix.isEmpty() ? QString() : u'.' + suffix;
}

// Names have an end, and some files have very long ones.
QString shortExtensionOf(const QString &path) {
    constexpr int longest = 16;
    const QString extension = extensionOf(path);
    return extension.toUtf8().size() <= longest ? extension : QString();
}

// A folder that is not for looking at, such as the Trash.
bool isHidden(const QString &path) {
    return path.contains(QStringLiteral("/."));
}

Result<void> check(const ScreenshotEditRecord &record, QSize size) {
    if (!std::ranges::all_of(record.annotations, &ScreenshotAnnotation::hasValidPayload))
        return editFailure(Code::unreadableAnnotation);
    if (record.cropRect && !EditorCropSession::valid(*record.cropRect, QRectF(QPointF(), size)))
        return editFailure(Code::unreadableCrop);
    return {};
}

bool isForbidden(const QString &name) {
    return name.startsWith(u'.') || std::ranges::any_of(name, [](QChar character) {
               return character == u'/' || character == u':' || character.category() == QChar::Other_Control;
           });
}

} // namespace

ScreenshotEditStore::ScreenshotEditStore(const QString &root, Services services)
    : m_services(services),
      m_folder(root, m_services.coordinator),
      m_records(m_folder, m_services),
      m_recovery(m_folder, m_records, m_services) {}

Result<ScreenshotEditLoaded> ScreenshotEditStore::load(const QString &path,
                                                       const std::optional<PreviewRequest> &preview) {
    const std::lock_guard lock(m_mutex);
    const auto facts = m_services.files.facts(path);
    if (!facts)
        return failure(facts.error());
    if (facts->kind != FileKind::regular)
        return editFailure(Code::notEditable);
    const auto bytes = m_services.coordinator.read(path);
    if (!bytes)
        return isCode(bytes.error(), FileCoordinator::notRegular) ? editFailure(Code::notEditable)
                                                                  : failure(bytes.error());
    const auto header = readPictureHeader(*bytes);
    if (!header || !header->isSingleImage)
        return editFailure(Code::unsupportedType);
    const QString hash = sha256Hex(*bytes);
    auto match = m_recovery.settle(path, hash).and_then([&] { return m_records.match(path, *facts, hash); });
    if (!match)
        return failure(match.error());

    const auto originalHeader = match->original ? readPictureHeader(*match->original) : header;
    const QByteArray original = std::move(match->original).value_or(*bytes);
    if (!originalHeader)
        return editFailure(Code::unreadableOriginal);
    const bool isNew = !match->record;
    Loaded loaded{.path = path,
                  .identity = ScreenshotFileIdentity::of(path, *facts),
                  .reference = m_services.references.hold(path),
                  .expectedHash = hash,
                  .original = original,
                  .size = originalHeader->uprightSize(),
                  .type = pictureTypeIdentifier(header->type),
                  .createdAt = facts->createdAt,
                  .record =
                      std::move(match->record)
                          .value_or(Record{.id = QUuid::createUuid(), .path = path, .fingerprint = hash})};
    const int side = preview.value_or(PreviewRequest()).maximumPixelSize(loaded.size, loaded.record.cropRect);
    return check(loaded.record, loaded.size)
        .and_then([&] { return ScreenshotRenderer::image(original, side); })
        .and_then([&](const QImage &image) -> Result<Loaded> {
            loaded.preview = image;
            // Written last, so that what cannot be opened leaves nothing behind.
            if (const auto written = isNew ? m_folder.writeRecord(loaded.record) : Result<void>(); !written)
                return failure(written.error());
            return std::move(loaded);
        });
}

Result<ScreenshotEditSaved> ScreenshotEditStore::save(const Loaded &loaded,
                                                      const std::vector<ScreenshotAnnotation> &annotations,
                                                      const std::optional<QRectF> &cropRect) {
    const std::lock_guard lock(m_mutex);
    const QString path = whereItIs(loaded).path;
    const auto kept = m_recovery.settle(loaded.record.id, path).and_then([&] {
        return m_folder.keepOriginal(loaded.record.id, loaded.original);
    });
    if (!kept)
        return failure(kept.error());
    const auto rendered = ScreenshotRenderer::render(loaded.original, annotations, cropRect);
    if (!rendered)
        return failure(rendered.error());
    const auto header = readPictureHeader(loaded.original);
    const PictureMetadata metadata = header ? header->metadata : PictureMetadata();
    const auto bytes = ScreenshotRenderer::encode(*rendered, loaded.type, metadata);
    if (!bytes)
        return failure(bytes.error());

    const QString temporary =
        ScreenshotEditFolder::temporaryPrefix + uuidText(QUuid::createUuid()) + shortExtensionOf(path);
    Record record = loaded.record;
    record.path = path;
    record.fingerprint = sha256Hex(*bytes);
    record.annotations = annotations;
    record.cropRect = cropRect;
    record.fileSize = bytes->size();
    record.modifiedAt.reset();
    const auto replaced = m_folder.writePending(record, temporary).and_then([&] {
        return replace(loaded, path, QFileInfo(path).path() + u'/' + temporary, *bytes);
    });
    if (!replaced) {
        m_recovery.settleFailure(record.id, path);
        return failure(replaced.error());
    }
    // The screenshot is saved: should the record not be written now, it is by the next load.
    record = m_records.finished(std::move(record), path);
    if (m_folder.writeRecord(record))
        m_folder.removePending(record.id);
    m_services.thumbnails.renew(path, *rendered);
    return Saved{.path = path,
                 .record = record,
                 .clipboardPNG = loaded.type == pngType
                                     ? bytes
                                     : ScreenshotRenderer::encode(*rendered, pngType, metadata),
                 .loaded = reloaded(loaded, record, path)};
}

// A file that was moved since is followed; what took its place is for whoever writes to notice.
ScreenshotEditLoaded ScreenshotEditStore::whereItIs(Loaded loaded) const {
    const auto facts = m_services.files.facts(loaded.path);
    const bool isGone = !facts && facts.error().domain == posixErrorDomain && facts.error().code == ENOENT;
    const auto found = isGone && loaded.reference ? loaded.reference->path() : std::nullopt;
    // Nobody would find again what is saved into the Trash.
    if (found && (isHidden(loaded.path) || !isHidden(*found)))
        loaded.path = *found;
    return loaded;
}

Result<void> ScreenshotEditStore::replace(const Loaded &loaded, const QString &path, const QString &temporary,
                                          const QByteArray &bytes) const {
    auto replaced =
        m_services.coordinator.writeTemporary(temporary, bytes, path, loaded.createdAt).and_then([&] {
            return m_services.coordinator.replace(path, temporary, bytes, contentOf(loaded.expectedHash));
        });
    if (!replaced && tellsOfChange(replaced.error()))
        return editFailure(Code::changedBeforeSaving);
    return replaced;
}

ScreenshotEditLoaded ScreenshotEditStore::reloaded(Loaded loaded, const Record &record,
                                                   const QString &path) const {
    loaded.path = path;
    if (const auto facts = m_services.files.facts(path))
        loaded.identity = ScreenshotFileIdentity::of(path, *facts);
    loaded.reference = m_services.references.hold(path);
    loaded.expectedHash = record.fingerprint;
    loaded.record = record;
    return loaded;
}

Result<QString> ScreenshotEditStore::renamedPath(const Loaded &loaded, const QString &name) {
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return editFailure(Code::emptyName);
    if (isForbidden(trimmed))
        return editFailure(Code::forbiddenName);
    return QFileInfo(loaded.path).path() + u'/' + trimmed + extensionOf(loaded.path);
}

bool ScreenshotEditStore::isNameCollision(const Error &error) {
    return error.domain == CocoaError::domain && error.code == CocoaError::fileWriteFileExists;
}

Result<ScreenshotEditLoaded> ScreenshotEditStore::rename(const Loaded &loaded, const QString &name) {
    const std::lock_guard lock(m_mutex);
    const Loaded found = whereItIs(loaded);
    return renamedPath(found, name).and_then([&](const QString &target) { return moveTo(found, target); });
}

Result<ScreenshotEditLoaded> ScreenshotEditStore::renameKeepingBoth(const Loaded &loaded,
                                                                    const QString &name) {
    const std::lock_guard lock(m_mutex);
    const Loaded found = whereItIs(loaded);
    const auto wanted = renamedPath(found, name);
    if (!wanted)
        return failure(wanted.error());
    const QString extension = extensionOf(found.path);
    const QString stem = wanted->chopped(extension.size()) + QStringLiteral(" copy");
    auto renamed = moveTo(found, stem + extension);
    for (int number = 1; !renamed && isNameCollision(renamed.error()); ++number)
        renamed = moveTo(found, QStringLiteral("%1 %2").arg(stem).arg(number) + extension);
    return renamed;
}

Result<ScreenshotEditLoaded> ScreenshotEditStore::moveTo(const Loaded &loaded, const QString &target) {
    if (loaded.path == target)
        return loaded;
    const auto moved =
        m_services.coordinator.moveIfUnchanged(loaded.path, target, contentOf(loaded.expectedHash));
    if (!moved && isCode(moved.error(), FileCoordinator::exists))
        return cocoaFailure(
            CocoaError::fileWriteFileExists,
            QCoreApplication::translate("ScreenshotEdit", "“%1” already exists in this folder.")
                .arg(QFileInfo(target).fileName()));
    if (!moved)
        return tellsOfChange(moved.error()) ? editFailure(Code::changedBeforeRenaming)
                                            : failure(moved.error());
    m_services.thumbnails.forget(loaded.path);
    Record record = loaded.record;
    record.path = target;
    if (const auto bookmark = m_services.bookmarks.create(target))
        record.bookmark = *bookmark;
    // The file has its name: a record that still tells the old one finds it by its bookmark.
    static_cast<void>(m_folder.writeRecord(record));
    return reloaded(loaded, record, target);
}

void ScreenshotEditStore::loadBadges(std::function<void()> completion) {
    requireMainThread();
    performInBackground(
        m_services.queue, m_services.scheduler, m_generation.ticket(),
        [this] {
            const std::lock_guard lock(m_mutex);
            m_recovery.settleAll();
            return m_records.revisions();
        },
        [this, completion = std::move(completion)](const QHash<ScreenshotFileIdentity, QString> &revisions) {
            m_badges = revisions;
            if (onBadgesChanged)
                onBadgesChanged();
            if (completion)
                completion();
        });
}

void ScreenshotEditStore::updateBadge(const Loaded &loaded,
                                      const std::optional<ScreenshotFileIdentity> &previous) {
    requireMainThread();
    if (previous)
        m_badges.remove(*previous);
    m_badges.remove(loaded.identity);
    if (const auto revision = ScreenshotEditRecords::revision(loaded.record))
        m_badges.insert(loaded.identity, *revision);
    if (onBadgesChanged)
        onBadgesChanged();
}

} // namespace tembra
