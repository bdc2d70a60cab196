#include "editor/documents/ImageFile.h"

#include "settings/CocoaError.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>

namespace tembra {

namespace {

bool always(QByteArrayView) {
    return true;
}

bool isTaken(const Error &error) {
    return error.domain == FileCoordinator::errorDomain && error.code == FileCoordinator::exists;
}

} // namespace

bool ImageFile::isFile(const QString &path) const {
    const auto facts = m_files.facts(path);
    return facts && facts->kind == FileKind::regular;
}

// Beside `path`; gives its path.
Result<QString> ImageFile::writeTemporary(const QString &path, QByteArrayView bytes,
                                          const QStringList &models) const {
    QString temporary = QFileInfo(path).path() + u'/' + FileCoordinator::temporaryPrefix +
                        QUuid::createUuid().toString(QUuid::WithoutBraces);
    const auto model =
        std::ranges::find_if(models, [this](const QString &candidate) { return isFile(candidate); });
    const auto written = model == models.end() ? m_coordinator.writeAtomically(temporary, bytes)
                                               : m_coordinator.writeTemporary(temporary, bytes, *model, {});
    return written.map([&] { return temporary; });
}

Result<void> ImageFile::write(const QString &path, QByteArrayView bytes, const QString &like,
                              bool mayReplace) const {
    const auto temporary =
        writeTemporary(path, bytes, mayReplace ? QStringList{path, like} : QStringList{like});
    if (!temporary)
        return failure(temporary.error());
    auto placed = m_coordinator.moveIfUnchanged(*temporary, path, always);
    if (!placed && isTaken(placed.error()) && mayReplace)
        return m_coordinator.replace(path, *temporary, bytes, always);
    if (placed)
        return {};
    static_cast<void>(m_coordinator.remove(*temporary));
    if (isTaken(placed.error()))
        return cocoaFailure(
            CocoaError::fileWriteFileExists,
            QCoreApplication::translate("ScreenshotEdit", "“%1” already exists in this folder.")
                .arg(QFileInfo(path).fileName()));
    return placed;
}

Result<QString> ImageFile::copyBeside(const QString &path) const {
    const auto bytes = m_coordinator.read(path);
    if (!bytes)
        return failure(bytes.error());
    const auto temporary = writeTemporary(path, *bytes, {path});
    if (!temporary)
        return failure(temporary.error());
    const QString suffix = QFileInfo(path).suffix();
    const QString extension = suffix.isEmpty() ? QString() : u'.' + suffix;
    const QString stem = path.chopped(extension.size()) + QStringLiteral(" copy");
    QString copy = stem + extension;
    auto placed = m_coordinator.moveIfUnchanged(*temporary, copy, always);
    for (int number = 1; !placed && isTaken(placed.error()); ++number) {
        copy = QStringLiteral("%1 %2").arg(stem).arg(number) + extension;
        placed = m_coordinator.moveIfUnchanged(*temporary, copy, always);
    }
    if (placed)
        return copy;
    static_cast<void>(m_coordinator.remove(*temporary));
    return failure(placed.error());
}

} // namespace tembra
