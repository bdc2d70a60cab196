#include "updates/Appcast.h"

#include "updates/UpdateFailure.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QXmlStreamReader>

namespace tembra {

namespace {

constexpr std::size_t mostItems = 1000;
constexpr int deepest = 32;
constexpr qint64 longestFile = qint64(1024) * 1024 * 1024;

// The name under which appcasts have their own elements and attributes.
constexpr QStringView appcastNamespace = u"http://www.andymatuschak.org/xml-namespaces/sparkle";

// An item as it stands in the feed; older feeds have the version at the file.
struct RawItem {
    QString version;
    QString shownVersion;
    QString minimumSystemVersion;
    QString releaseNotes;
    std::vector<QXmlStreamAttributes> files;
};

QString appcastAttribute(const QXmlStreamAttributes &attributes, QStringView name) {
    return attributes.value(appcastNamespace.toString(), name.toString()).trimmed().toString();
}

bool isSecure(const QUrl &url) {
    return url.isValid() && url.scheme() == u"https" && !url.host().isEmpty();
}

std::optional<AppcastItem> itemOf(const RawItem &raw, const QXmlStreamAttributes &file) {
    const auto given = [&file](const QString &ofItem, QStringView name) {
        return ofItem.isEmpty() ? appcastAttribute(file, name) : ofItem;
    };
    const QString shown = given(raw.shownVersion, u"shortVersionString");
    const QString number = given(raw.version, u"version");
    const auto version = UpdateVersion::parse(number.isEmpty() ? shown : number);
    AppcastItem item{.version = version.value_or(UpdateVersion()),
                     .shownVersion = shown.isEmpty() ? number : shown,
                     .file = QUrl(file.value(QStringLiteral("url")).trimmed().toString(), QUrl::StrictMode),
                     .length = file.value(QStringLiteral("length")).trimmed().toLongLong(),
                     .signature = appcastAttribute(file, u"edSignature").toLatin1(),
                     .system = appcastAttribute(file, u"os"),
                     .releaseNotes = QUrl(raw.releaseNotes, QUrl::StrictMode),
                     .minimumSystemVersion = raw.minimumSystemVersion};
    constexpr qsizetype signatureBytes = 64;
    const bool isSigned = QByteArray::fromBase64(item.signature).size() == signatureBytes;
    if (!isSigned || !version || item.length <= 0 || item.length > longestFile || !isSecure(item.file))
        return std::nullopt;
    if (!isSecure(item.releaseNotes))
        item.releaseNotes.clear();
    return item;
}

std::optional<Instant> instantOf(const QString &text) {
    const QDateTime date = QDateTime::fromString(text, Qt::RFC2822Date);
    return date.isValid() ? std::optional(Instant(std::chrono::seconds(date.toSecsSinceEpoch())))
                          : std::nullopt;
}

// Walks through the feed. Everything that feeds have no use for, such as entities of their own, ends it.
class Reader {
public:
    explicit Reader(const QByteArray &feed) : m_xml(feed) {}

    std::optional<Appcast> read() {
        while (!m_xml.atEnd() && m_items.size() <= mostItems) {
            m_xml.readNext();
            if (m_xml.isDTD() || m_xml.isEntityReference() || m_depth > deepest)
                return std::nullopt;
            if (m_xml.isStartElement())
                startElement();
            else if (m_xml.isEndElement())
                endElement();
            else if (m_xml.isCharacters())
                m_text += m_xml.text();
        }
        if (m_xml.hasError() || !m_isFeed || m_items.size() > mostItems)
            return std::nullopt;
        return Appcast{std::move(m_items), m_publishedAt};
    }

private:
    void startElement() {
        ++m_depth;
        m_text.clear();
        if (m_depth == 1)
            m_isFeed = m_xml.name() == u"rss";
        else if (m_depth == itemDepth && m_xml.name() == u"item")
            m_item = RawItem();
        else if (m_item && m_depth == itemDepth + 1 && m_xml.name() == u"enclosure")
            m_item->files.push_back(m_xml.attributes());
    }

    void endElement() {
        if (m_item && m_depth == itemDepth + 1 && m_xml.namespaceUri() == appcastNamespace)
            setField(m_xml.name(), m_text.trimmed());
        if (!m_item && m_depth == itemDepth && m_xml.name() == u"pubDate")
            m_publishedAt = instantOf(m_text.trimmed());
        if (m_item && m_depth == itemDepth) {
            for (const QXmlStreamAttributes &file : m_item->files) {
                if (auto item = itemOf(*m_item, file))
                    m_items.push_back(std::move(*item));
            }
            m_item.reset();
        }
        --m_depth;
        m_text.clear();
    }

    void setField(QStringView name, const QString &text) {
        if (name == u"version")
            m_item->version = text;
        else if (name == u"shortVersionString")
            m_item->shownVersion = text;
        else if (name == u"minimumSystemVersion")
            m_item->minimumSystemVersion = text;
        else if (name == u"releaseNotesLink")
            m_item->releaseNotes = text;
    }

    // Below "rss" and "channel".
    static constexpr int itemDepth = 3;

    QXmlStreamReader m_xml;
    int m_depth = 0;
    bool m_isFeed = false;
    QString m_text;
    std::optional<RawItem> m_item;
    std::vector<AppcastItem> m_items;
    std::optional<Instant> m_publishedAt;
};

bool fits(const AppcastItem &item, const UpdateTarget &target) {
    const QString system = QStringLiteral("linux");
    if (item.system != system && item.system != system + u'-' + target.architecture)
        return false;
    if (item.minimumSystemVersion.isEmpty())
        return true;
    const auto minimum = UpdateVersion::parseNumbers(item.minimumSystemVersion);
    const auto present = UpdateVersion::parseNumbers(target.systemVersion);
    return minimum && present && *present >= *minimum;
}

} // namespace

Result<Appcast> Appcast::parse(const QByteArray &feed) {
    auto list = feed.size() <= mostBytes ? Reader(feed).read() : std::nullopt;
    if (!list)
        return updateFailure(QCoreApplication::translate("Updates", "The list of updates cannot be read."));
    return std::move(*list);
}

std::optional<AppcastItem> Appcast::bestFor(const UpdateTarget &target) const {
    const AppcastItem *best = nullptr;
    for (const AppcastItem &item : items) {
        if (item.version > (best ? best->version : target.current) && fits(item, target))
            best = &item;
    }
    return best ? std::optional(*best) : std::nullopt;
}

} // namespace tembra
