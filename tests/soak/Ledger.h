#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

namespace tembra {

// Every file that was made, by its content: each must be somewhere until it was deleted by whoever made it.
class Ledger {
public:
    // A content, and what to call it when it is missing.
    void add(const QByteArray &bytes, const QString &name);
    // One file of that content was deleted or overwritten for good. Others than ours need not be known.
    void forget(const QByteArray &bytes);
    [[nodiscard]] int size() const { return static_cast<int>(m_entries.size()); }

    // The names of those that lie nowhere below these folders, hidden files included. Tells of each once.
    [[nodiscard]] QStringList missing(const QStringList &folders);

private:
    struct Entry {
        QString name;
        int copies = 0;
    };
    [[nodiscard]] QString digest(const QString &path);

    QHash<QString, Entry> m_entries;
    // By what changes with a file's content, so that each is read once.
    QHash<QByteArray, QString> m_digests;
};

} // namespace tembra
