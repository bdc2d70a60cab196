#include "platform/linux/tools/SettingsText.h"

#include <QDir>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QUrl>

namespace tembra {

namespace {

QString fromUtf8OrLatin1(const QByteArray &bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return QString::fromLatin1(bytes);
    return text;
}

bool isHexDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// The characters that a letter behind a backslash stands for, in the same order.
constexpr char plainEscapes[] = "abfnrtv\"\\'";
constexpr char plainMeanings[] = "\a\b\f\n\r\t\v\"\\'";

// Collects bytes that are text in the file's encoding and characters that were escaped.
class Decoded {
public:
    void addByte(char c) { m_bytes += c; }
    void addCharacter(char16_t c) {
        flush();
        m_text += QChar(c);
    }
    QString take() {
        flush();
        return m_text;
    }

private:
    void flush() { m_text += fromUtf8OrLatin1(std::exchange(m_bytes, QByteArray())); }

    QByteArray m_bytes;
    QString m_text;
};

// Reads the escape behind a backslash at `i`; gives the place of its last byte.
qsizetype addQtEscape(const QByteArray &value, qsizetype i, Decoded &decoded) {
    if (i + 1 >= value.size())
        return i;
    const char letter = value[++i];
    const char *plain = std::strchr(plainEscapes, letter);
    if (letter == 'x' || (letter >= '0' && letter <= '7')) {
        const bool isHex = letter == 'x';
        qsizetype end = isHex ? i + 1 : i;
        while (end < value.size() &&
               (isHex ? isHexDigit(value[end]) : value[end] >= '0' && value[end] <= '7'))
            ++end;
        const qsizetype start = isHex ? i + 1 : i;
        const uint code = value.mid(start, end - start).toUInt(nullptr, isHex ? 16 : 8);
        decoded.addCharacter(static_cast<char16_t>(code));
        return end - 1;
    }
    if (plain)
        decoded.addCharacter(static_cast<uchar>(plainMeanings[plain - plainEscapes]));
    return i;
}

// The path of what follows "file:". Tools write such URIs without encoding them all, so "#" and "?" are taken
// for a part of the path, as is a lone "%".
QString pathOfUri(QString rest) {
    if (rest.startsWith(u"//")) {
        const qsizetype slash = rest.indexOf(u'/', 2);
        const QString host = rest.mid(2, slash < 0 ? -1 : slash - 2);
        if (slash < 0 || (!host.isEmpty() && host != u"localhost"))
            return {};
        rest.remove(0, slash);
    }
    QUrl uri;
    uri.setPath(rest, QUrl::TolerantMode);
    return uri.path(QUrl::FullyDecoded);
}

} // namespace

QString fromKConfig(const QByteArray &value) {
    QByteArray bytes;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const char next = value[i] == '\\' && i + 1 < value.size() ? value[i + 1] : '\0';
        const qsizetype known = QByteArrayView("stnr\\;,").indexOf(next);
        if (next == 'x' && i + 3 < value.size() && isHexDigit(value[i + 2]) && isHexDigit(value[i + 3])) {
            bytes += static_cast<char>(value.mid(i + 2, 2).toUInt(nullptr, 16));
            i += 3;
        } else if (next != '\0' && known >= 0) {
            bytes += " \t\n\r\\;,"[known];
            ++i;
        } else {
            bytes += value[i];
        }
    }
    return fromUtf8OrLatin1(bytes);
}

QByteArray toKConfig(const QString &text) {
    QByteArray value;
    const QByteArray bytes = text.toUtf8();
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const char c = bytes[i];
        const bool isAtEdge = i == 0 || i + 1 == bytes.size();
        if (c == '\\')
            value += "\\\\";
        else if (c == '\n')
            value += "\\n";
        else if (c == '\r')
            value += "\\r";
        else if (c == '\t')
            value += "\\t";
        else if (c == ' ' && isAtEdge)
            value += "\\s";
        else
            value += c;
    }
    return value;
}

std::optional<QString> expandedKConfig(const QString &text, const QProcessEnvironment &environment) {
    static const QRegularExpression variable(QStringLiteral("\\G(?:\\{([^}]*)\\}|(\\w+))"));
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'$') {
            result += text[i];
            continue;
        }
        const QStringView rest = QStringView(text).sliced(i + 1);
        if (rest.startsWith(u'('))
            return std::nullopt;
        const auto match = variable.match(text, i + 1);
        if (rest.startsWith(u'$')) {
            result += u'$';
            ++i;
        } else if (match.hasMatch()) {
            result += environment.value(match.captured(1) + match.captured(2));
            i += match.capturedLength();
        } else {
            result += u'$';
        }
    }
    return result;
}

std::optional<QString> fromQtIni(const QByteArray &value) {
    if (value.startsWith('@') && !value.startsWith("@@"))
        return std::nullopt;
    Decoded decoded;
    bool isQuoted = false;
    for (qsizetype i = value.startsWith("@@") ? 1 : 0; i < value.size(); ++i) {
        if (value[i] == '"')
            isQuoted = !isQuoted;
        else if (value[i] == '\\')
            i = addQtEscape(value, i, decoded);
        else if (value[i] == ',' && !isQuoted)
            return std::nullopt;
        else if (value[i] == ';' && !isQuoted)
            break;
        else
            decoded.addByte(value[i]);
    }
    return decoded.take();
}

QByteArray toQtIni(const QString &text) {
    QByteArray value;
    bool needsQuotes = text.startsWith(u' ') || text.endsWith(u' ');
    bool followsNumber = false;
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        const bool isAscii = code >= 0x20 && code < 0x7f;
        // A digit behind a number would be read as a part of it.
        if (!isAscii || (followsNumber && isHexDigit(static_cast<char>(code)))) {
            value += "\\x" + QByteArray::number(code, 16);
            followsNumber = true;
            continue;
        }
        followsNumber = false;
        needsQuotes = needsQuotes || code == u';' || code == u',' || code == u'=';
        if (code == u'"' || code == u'\\')
            value += '\\';
        value += static_cast<char>(code);
    }
    if (text.startsWith(u'@'))
        value.prepend('@');
    return needsQuotes ? '"' + value + '"' : value;
}

std::optional<QString> folderPath(const QString &pathOrUri) {
    if (pathOrUri == u"~" || pathOrUri.startsWith(u"~/"))
        return pathOrUri;
    const QString path = pathOrUri.startsWith(u"file:") ? pathOfUri(pathOrUri.mid(5)) : pathOrUri;
    return path.startsWith(u'/') ? std::optional(QDir::cleanPath(path)) : std::nullopt;
}

QByteArray folderUri(const QString &path) {
    return QUrl::fromLocalFile(path).toEncoded();
}

std::optional<QString> fixedBeginning(const QString &nameTemplate, QChar mark) {
    const QString name = nameTemplate.mid(nameTemplate.lastIndexOf(u'/') + 1);
    QString beginning = name.left(name.indexOf(mark));
    while (!beginning.isEmpty() && QStringView(u" _-.").contains(beginning.back()))
        beginning.chop(1);
    return beginning.isEmpty() ? std::nullopt : std::optional(beginning);
}

} // namespace tembra
