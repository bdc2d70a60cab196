#include "updates/UpdateDownloader.h"

#include "base/Background.h"
#include "updates/UpdateFailure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace tembra {

namespace {

constexpr qsizetype longestName = 120;

// The folder of one user.
constexpr QFileDevice::Permissions ownersAlone =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

// What the server calls the file tells the desktop what opens it, so its end is kept; anything that could
// lead elsewhere is not.
QString nameOf(const AppcastItem &item) {
    QString name;
    for (const QChar character : item.file.fileName()) {
        const bool isPlain = character.unicode() < 0x80 && character.isLetterOrNumber();
        name += isPlain || QStringView(u"._+-").contains(character) ? character : QChar(u'-');
    }
    name = name.right(longestName);
    return name.isEmpty() || name.startsWith(u'.') ? QStringLiteral("tembra") + name : name;
}

tl::unexpected<Error> notWritten() {
    return updateFailure(QCoreApplication::translate("Updates", "The update cannot be saved on this disk."));
}

} // namespace

UpdateDownloader::UpdateDownloader(const Services &services, UpdateSignature publisher, AppcastItem item,
                                   const QString &folder, const QByteArray &authorities)
    : m_services(services),
      m_publisher(std::move(publisher)),
      m_item(std::move(item)),
      m_folder(folder),
      m_transfer(services.network, services.scheduler, {.bytes = m_item.length}, authorities),
      m_file(folder + QStringLiteral("/.download")) {}

UpdateDownloader::~UpdateDownloader() {
    if (m_done)
        m_file.remove();
}

void UpdateDownloader::clear(const QString &folder) {
    if (QFileInfo(folder).isSymLink())
        QFile::remove(folder);
    else
        QDir(folder).removeRecursively();
}

void UpdateDownloader::start(Done done) {
    m_done = std::move(done);
    if (const auto prepared = prepare(); !prepared)
        return finish(failure(prepared.error()));
    m_transfer.start(
        m_item.file, [this](const QByteArray &bytes) { return write(bytes); },
        [this](const Result<void> &transferred) { check(transferred); });
}

Result<void> UpdateDownloader::prepare() {
    clear(m_folder);
    if (!QDir().mkpath(QFileInfo(m_folder).path()) || !QDir().mkdir(m_folder, ownersAlone) ||
        !m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return notWritten();
    return {};
}

Result<void> UpdateDownloader::write(const QByteArray &bytes) {
    if (m_file.write(bytes) != bytes.size())
        return notWritten();
    if (onProgress)
        onProgress(double(m_file.pos()) / double(m_item.length));
    return {};
}

void UpdateDownloader::check(const Result<void> &transferred) {
    if (!transferred)
        return finish(failure(transferred.error()));
    const bool isWritten = m_file.flush();
    m_file.close();
    if (!isWritten)
        return finish(notWritten());
    performInBackground(
        m_services.queue, m_services.scheduler, m_generation.ticket(),
        [publisher = m_publisher, item = m_item, path = m_file.fileName()] {
            return publisher.checkFile(path, item.length, item.signature);
        },
        [this](const Result<void> &checked) { finish(checked ? keep() : failure(checked.error())); });
}

Result<QString> UpdateDownloader::keep() {
    const QString path = m_folder + u'/' + nameOf(m_item);
    if (!m_file.setPermissions(QFileDevice::ReadOwner) || !QFile::rename(m_file.fileName(), path))
        return notWritten();
    return path;
}

void UpdateDownloader::finish(const Result<QString> &result) {
    if (!result)
        m_file.remove();
    const Done done = std::exchange(m_done, nullptr);
    done(result);
}

} // namespace tembra
