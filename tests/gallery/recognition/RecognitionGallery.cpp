#include "RecognitionGallery.h"

#include "support/RecognizedText.h"

#include <QFont>
#include <QPainter>

namespace tembra {

namespace {

constexpr QSize compact{744, 212};
constexpr QSize expanded{744, 540};
constexpr QSize narrow{480, 212};
constexpr QSize narrowest{400, 212};

const QStringList report{
    QStringLiteral("Quarterly report"),
    QStringLiteral("Revenue rose by 12 % in the third quarter, led by the northern region."),
    QStringLiteral("Costs stayed flat at 4.1 million, and two new sites opened in September."),
    QString(),
    QStringLiteral("Next steps"),
    QStringLiteral("1. Confirm the budget with finance"),
    QStringLiteral("2. Publish the schedule on Monday"),
    QStringLiteral("3. Book the room for the review")};

const QStringList addresses{
    QStringLiteral("Questions? Write to help@example.com or see https://example.com/support."),
    QStringLiteral("The paper (www.example.org/papers/(2026)) explains the rest."), QString(),
    QStringLiteral("שלום עולם, זה טקסט מימין לשמאל."),
    QStringLiteral("日本語のテキスト https://example.jp/案内 と続き")};

QStringList longText() {
    QStringList lines;
    for (int number = 1; number <= 5000; ++number)
        lines += QStringLiteral("%1  a line of a long log").arg(number);
    return lines;
}

OCRState state(const QStringList &lines, bool isExpanded, OCRTextLayout layout = OCRTextLayout::lines) {
    return {OCRState::Text{recognizedText(lines)}, isExpanded, layout};
}

QImage picture(const QSize &size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(244, 244, 247));
    QPainter painter(&image);
    painter.fillRect(0, 0, size.width(), 36, QColor(58, 92, 204));
    for (int y = 70; y < size.height() - 30; y += 34)
        painter.fillRect(30, y, size.width() - 60 - y % 90, 12, QColor(120, 122, 130));
    return image;
}

} // namespace

std::vector<RecognitionGalleryState> recognitionGalleryStates() {
    const QImage wide = picture({480, 300});
    const QImage tall = picture({200, 480});
    const auto named = [](const char *name) { return QString::fromLatin1(name); };
    return {{named("idle"), {}, {}, compact},
            {named("highlighted"), {}, {}, compact, true},
            {named("loading"), {OCRState::Loading{}, false, {}}, {}, compact},
            {named("result"), state(report, false), wide, compact},
            {named("held"), state(report, false), wide, compact, true},
            {named("expanded"), state(report, true), {}, expanded},
            {named("pictured"), state(report, true), tall, expanded},
            {named("links"), state(addresses, true), wide, expanded},
            {named("paragraphs"), state(report, true, OCRTextLayout::paragraphs), wide, expanded},
            {named("one-line"), state(report, false, OCRTextLayout::oneLine), wide, compact},
            {named("word"), state({QStringLiteral("Tembra")}, false), picture({64, 40}), compact},
            {named("long"), state(longText(), true), wide, expanded},
            {named("error"),
             {OCRState::Error{QStringLiteral("No text found. Try another image.")}, false, {}},
             {},
             compact},
            {named("narrow"), state(report, false), wide, narrow},
            {named("narrowest"), state(report, false), wide, narrowest}};
}

} // namespace tembra
