#include "platform/linux/tools/RcFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace tembra {

namespace {

// Settings are a few kilobytes: something much larger is not the tool's file.
constexpr qint64 largestFile = 4 << 20;

struct Name {
    QByteArray text;
    QByteArray flags;
};

Error fileError(const QFileDevice &file) {
    return Error{QStringLiteral("Tembra.RcFile"), static_cast<int>(file.error()), file.errorString(),
                 QString()};
}

Error foreignFile(const QString &path) {
    const QString message = QCoreApplication::translate("RcFile", "“%1” is not a settings file.");
    return Error{QStringLiteral("Tembra.RcFile"), 0, message.arg(QDir::toNativeSeparators(path)), QString()};
}

// "name[$e]" without its flags. A name with another suffix, such as a language, is left whole.
Name withoutFlags(QByteArray text) {
    QByteArray flags;
    for (qsizetype start = text.lastIndexOf("[$"); start > 0 && text.endsWith(']');
         start = text.lastIndexOf("[$")) {
        flags.prepend(text.mid(start + 1, text.size() - start - 2));
        text = text.left(start).trimmed();
    }
    return {text, flags};
}

QByteArrayView withoutMark(QByteArrayView text) {
    return text.startsWith("\xEF\xBB\xBF") ? text.sliced(3) : text;
}

std::optional<Name> groupOf(const QByteArray &line) {
    const QByteArray text = withoutMark(line).trimmed().toByteArray();
    if (!text.startsWith('[') || !text.contains(']'))
        return std::nullopt;
    const Name name = withoutFlags(text.left(text.lastIndexOf(']') + 1));
    return Name{name.text.mid(1, name.text.size() - 2), name.flags};
}

std::optional<Name> keyOf(const QByteArray &line) {
    const QByteArrayView text = withoutMark(line).trimmed();
    const qsizetype equals = text.indexOf('=');
    if (equals <= 0 || text.startsWith('#') || text.startsWith(';') || text.startsWith('['))
        return std::nullopt;
    return withoutFlags(text.first(equals).trimmed().toByteArray());
}

} // namespace

Result<RcFile> RcFile::read(const QString &path) {
    RcFile result(path);
    QFile file(path);
    if (!QFileInfo(path).exists())
        return result;
    if (!QFileInfo(path).isFile())
        return failure(foreignFile(path));
    if (!file.open(QIODevice::ReadOnly))
        return failure(fileError(file));
    const QByteArray content = file.read(largestFile + 1);
    if (file.error() != QFileDevice::NoError)
        return failure(fileError(file));
    if (content.size() > largestFile || content.contains('\0'))
        return failure(foreignFile(path));
    result.parse(content);
    return result;
}

void RcFile::parse(const QByteArray &content) {
    m_stored = content;
    for (qsizetype start = 0; start < content.size();) {
        const qsizetype newline = content.indexOf('\n', start);
        const qsizetype end = newline < 0 ? content.size() : newline + 1;
        QByteArray text = content.mid(start, end - start);
        const qsizetype marks = text.endsWith("\r\n") ? 2 : text.endsWith('\n') ? 1 : 0;
        const QByteArray ending = text.right(marks);
        text.chop(marks);
        m_lines.append({text, ending});
        start = end;
    }
    if (!m_lines.isEmpty() && !m_lines.first().ending.isEmpty())
        m_ending = m_lines.first().ending;
}

QByteArray RcFile::content() const {
    QByteArray result;
    for (const Line &line : m_lines)
        result += line.text + line.ending;
    return result;
}

QList<qsizetype> RcFile::linesOf(const QByteArray &group, const QByteArray &key) const {
    QList<qsizetype> result;
    QByteArray current;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        if (const auto header = groupOf(m_lines[i].text)) {
            current = header->text;
        } else if (current == group) {
            const auto name = keyOf(m_lines[i].text);
            if (name && name->text == key)
                result.append(i);
        }
    }
    return result;
}

std::optional<RcFile::Entry> RcFile::entry(const QByteArray &group, const QByteArray &key) const {
    const QList<qsizetype> lines = linesOf(group, key);
    if (lines.isEmpty())
        return std::nullopt;
    QByteArray flags = keyOf(m_lines[lines.last()].text)->flags;
    for (qsizetype i = lines.last(); i >= 0; --i) {
        if (const auto header = groupOf(m_lines[i].text)) {
            flags += header->flags;
            break;
        }
    }
    const QByteArray &text = m_lines[lines.last()].text;
    return Entry{text.mid(text.indexOf('=') + 1).trimmed(), flags};
}

std::optional<QByteArray> RcFile::value(const QByteArray &group, const QByteArray &key) const {
    const auto found = entry(group, key);
    return found ? std::optional(found->value) : std::nullopt;
}

bool RcFile::hasGroup(const QByteArray &group) const {
    return std::ranges::any_of(m_lines, [&](const Line &line) {
        const auto header = groupOf(line.text);
        return header && header->text == group;
    });
}

std::optional<qsizetype> RcFile::endOf(const QByteArray &group) const {
    std::optional<qsizetype> end;
    QByteArray current;
    if (group.isEmpty())
        end = 0;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        if (const auto header = groupOf(m_lines[i].text))
            current = header->text;
        if (current == group && !m_lines[i].text.trimmed().isEmpty())
            end = i + 1;
    }
    return end;
}

void RcFile::insert(qsizetype place, const QByteArray &text) {
    if (place > 0 && m_lines[place - 1].ending.isEmpty())
        m_lines[place - 1].ending = m_ending;
    m_lines.insert(place, {text, m_ending});
}

void RcFile::setValue(const QByteArray &group, const QByteArray &key, const QByteArray &value) {
    const QList<qsizetype> lines = linesOf(group, key);
    if (!lines.isEmpty()) {
        QByteArray &text = m_lines[lines.last()].text;
        const qsizetype equals = text.indexOf('=');
        qsizetype start = equals + 1;
        while (start < text.size() && (text[start] == ' ' || text[start] == '\t'))
            ++start;
        const bool hasFlags = !keyOf(text)->flags.isEmpty();
        // The flags belong to the value that goes.
        text = (hasFlags ? key + '=' : text.left(start)) + value;
        return;
    }
    const auto end = endOf(group);
    if (end) {
        insert(*end, key + '=' + value);
        return;
    }
    if (!m_lines.isEmpty() && !m_lines.last().text.trimmed().isEmpty())
        insert(m_lines.size(), QByteArray());
    insert(m_lines.size(), '[' + group + ']');
    insert(m_lines.size(), key + '=' + value);
}

void RcFile::remove(const QByteArray &group, const QByteArray &key) {
    const QList<qsizetype> lines = linesOf(group, key);
    for (qsizetype i = lines.size() - 1; i >= 0; --i)
        m_lines.removeAt(lines[i]);
}

Result<void> RcFile::save() const {
    const QByteArray content = this->content();
    if (content == m_stored)
        return {};
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        return failure(fileError(file));
    return {};
}

} // namespace tembra
