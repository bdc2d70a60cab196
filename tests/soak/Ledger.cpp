#include "Ledger.h"

#include "imaging/Sha256.h"

#include <QDirIterator>
#include <QFile>

#include <algorithm>
#include <sys/stat.h>
#include <utility>

namespace tembra {

namespace {

// Of the file's version; empty when there is none.
QByteArray versionOf(const QString &path) {
    struct stat facts {};
    if (::lstat(QFile::encodeName(path).constData(), &facts) != 0 || !S_ISREG(facts.st_mode))
        return {};
    return QByteArray::number(static_cast<qulonglong>(facts.st_dev)) + ' ' +
           QByteArray::number(static_cast<qulonglong>(facts.st_ino)) + ' ' +
           QByteArray::number(static_cast<qlonglong>(facts.st_size)) + ' ' +
           QByteArray::number(static_cast<qlonglong>(facts.st_mtim.tv_sec)) + '.' +
           QByteArray::number(static_cast<qlonglong>(facts.st_mtim.tv_nsec));
}

} // namespace

void Ledger::add(const QByteArray &bytes, const QString &name) {
    Entry &entry = m_entries[sha256Hex(bytes)];
    entry.name = name;
    ++entry.copies;
}

void Ledger::forget(const QByteArray &bytes) {
    const auto entry = m_entries.find(sha256Hex(bytes));
    if (entry != m_entries.end() && --entry->copies == 0)
        m_entries.erase(entry);
}

QStringList Ledger::missing(const QStringList &folders) {
    QHash<QString, int> found;
    for (const QString &folder : folders) {
        QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        while (files.hasNext())
            ++found[digest(files.next())];
    }
    QStringList names;
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
        const int copies = std::exchange(entry->copies, std::min(entry->copies, found.value(entry.key())));
        if (entry->copies < copies)
            names += entry->name;
    }
    m_entries.removeIf(
        [](const QHash<QString, Entry>::iterator &entry) { return entry.value().copies == 0; });
    return names;
}

QString Ledger::digest(const QString &path) {
    const QByteArray version = versionOf(path);
    if (m_digests.contains(version))
        return m_digests[version];
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return m_digests[version] = sha256Hex(file.readAll());
}

} // namespace tembra
