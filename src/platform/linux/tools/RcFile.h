#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace tembra {

// Another program's settings file of groups and "key=value" lines, edited line by line: what is not asked for
// keeps its bytes, order, comments and line ends. Values are the bytes behind the equals sign; what they mean
// is the program's matter. A value; any one thread at a time.
class RcFile {
public:
    struct Entry {
        QByteArray value;
        // The flags behind the key or its group: "$e" of "key[$e]", "" for most.
        QByteArray flags;

        bool operator==(const Entry &) const = default;
    };

    // Settings without any entry, to be saved to the path.
    explicit RcFile(QString path) : m_path(std::move(path)) {}
    // A file that does not exist is an empty one. Fails on what cannot be read and on what is no text.
    [[nodiscard]] static Result<RcFile> read(const QString &path);

    // The group "" stands for the lines before the first group. Of several entries the last one counts.
    [[nodiscard]] std::optional<Entry> entry(const QByteArray &group, const QByteArray &key) const;
    [[nodiscard]] std::optional<QByteArray> value(const QByteArray &group, const QByteArray &key) const;
    [[nodiscard]] bool hasGroup(const QByteArray &group) const;

    void setValue(const QByteArray &group, const QByteArray &key, const QByteArray &value);
    void remove(const QByteArray &group, const QByteArray &key);

    // Replaces the file at once, at the end of a link if it is one. Writes nothing when nothing changed.
    [[nodiscard]] Result<void> save() const;

private:
    struct Line {
        QByteArray text;
        QByteArray ending;
    };

    void parse(const QByteArray &content);
    [[nodiscard]] QByteArray content() const;
    [[nodiscard]] QList<qsizetype> linesOf(const QByteArray &group, const QByteArray &key) const;
    // The place behind the last line of the group that is not blank; nothing when there is no such group.
    [[nodiscard]] std::optional<qsizetype> endOf(const QByteArray &group) const;
    void insert(qsizetype place, const QByteArray &text);

    QString m_path;
    QByteArray m_stored;
    QByteArray m_ending = QByteArrayLiteral("\n");
    QList<Line> m_lines;
};

} // namespace tembra
