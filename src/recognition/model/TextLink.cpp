#include "recognition/model/TextLink.h"

#include <QRegularExpression>

#include <map>
#include <optional>
#include <utility>

namespace tembra {

namespace {

// Scripts that are written without spaces go on right after an address, which is seldom written in them.
const QRegularExpression &addresses() {
    static const QRegularExpression expression(
        QStringLiteral(R"((?<![\p{Latin}\p{Greek}\p{Cyrillic}\p{M}\d_.+@%-])(?:)"
                       R"((?<page>(?:https?://|(?<!/)www\.)[^\s\p{Z}\p{C}\p{Han}\p{Hiragana}\p{Katakana})"
                       R"(<>"`|\\^«»“”„‘…、。，；：！？（）「」『』【】]+))"
                       R"(|[A-Za-z0-9._%+-]++@(?:[A-Za-z0-9-]++\.)+[A-Za-z]{2,}+)"
                       R"((?![\p{Latin}\p{Greek}\p{Cyrillic}\p{M}\d_-])))"),
        QRegularExpression::CaseInsensitiveOption);
    return expression;
}

// The opening bracket of a closing one.
std::optional<QChar> opening(QChar letter) {
    switch (letter.unicode()) {
    case u')':
        return u'(';
    case u']':
        return u'[';
    case u'}':
        return u'{';
    default:
        return std::nullopt;
    }
}

// Without what belongs to the sentence around it: punctuation, and brackets that were opened before it.
QStringView withoutSentence(QStringView address) {
    constexpr QStringView punctuation = u".,;:!?'’*_~";
    std::map<QChar, qsizetype> counts;
    for (const QChar letter : address)
        ++counts[letter];
    while (!address.isEmpty()) {
        const QChar last = address.back();
        const std::optional<QChar> bracket = opening(last);
        const bool isUnopened = bracket && counts[last] > counts[*bracket];
        if (!isUnopened && !punctuation.contains(last))
            break;
        --counts[last];
        address.chop(1);
    }
    return address;
}

QUrl pageAt(QStringView address) {
    const bool isBare = address.startsWith(u"www.", Qt::CaseInsensitive);
    const QUrl url((isBare ? QStringLiteral("https://") : QString()) + address.toString());
    const QString host = url.host();
    // "www." alone makes no address: it has a name and an ending after it.
    return !url.isValid() || host.isEmpty() || (isBare && host.count(u'.') < 2) ? QUrl() : url;
}

} // namespace

std::vector<TextLink> TextLink::find(QStringView text) {
    std::vector<TextLink> links;
    auto matches = addresses().globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const bool isPage = match.hasCaptured(QStringLiteral("page"));
        const QStringView address = withoutSentence(match.capturedView());
        QUrl url = isPage ? pageAt(address) : QUrl(QStringLiteral("mailto:") + address.toString());
        if (!url.isEmpty())
            links.push_back({match.capturedStart(), address.size(), std::move(url)});
    }
    return links;
}

} // namespace tembra
