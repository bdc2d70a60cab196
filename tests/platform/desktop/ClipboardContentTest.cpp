#include "platform/linux/desktop/ClipboardContent.h"

#include "support/Pictures.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

const QStringList fileFormats{QStringLiteral("text/uri-list"),
                              QStringLiteral("x-special/gnome-copied-files")};
const QString png = QStringLiteral("image/png");
const QString tiff = QStringLiteral("image/tiff");
const QString pngType = QStringLiteral("public.png");
const QString tiffType = QStringLiteral("public.tiff");

Pasteboard::Item item(const QString &type, const QByteArray &data) {
    return {QStringLiteral("/a"), type, data};
}

} // namespace

TEST(ClipboardContent, offersEveryFileInOrder) {
    struct Case {
        QString name;
        QByteArray url;
    };
    const Case cases[]{
        {QStringLiteral("/a b/c"), "file:///a%20b/c"},
        {QStringLiteral("/100%/%41"), "file:///100%25/%2541"},
        {QStringLiteral("/two\nlines\r"), "file:///two%0Alines%0D"},
        {QStringLiteral("/🌄"), "file:///%F0%9F%8C%84"},
        {QStringLiteral("/für später"), "file:///f%C3%BCr%20sp%C3%A4ter"},
        {QStringLiteral("/a#b?c"), "file:///a%23b%3Fc"},
        {QStringLiteral("/it's (1);x"), "file:///it's%20(1)%3Bx"},
        {QStringLiteral("//host/x"), "file:////host/x"},
    };
    std::vector<Pasteboard::Item> items;
    QList<QByteArray> urls;
    for (const Case &c : cases) {
        items.push_back({c.name, {}, {}});
        urls.append(c.url);
    }
    const ClipboardContent content(items);
    EXPECT_EQ(content.formats(), fileFormats);
    EXPECT_EQ(content.data(fileFormats[0]), urls.join("\r\n") + "\r\n");
    EXPECT_EQ(content.data(fileFormats[1]), "copy\n" + urls.join('\n'));
    EXPECT_EQ(ClipboardContent().formats(), QStringList());
}

TEST(ClipboardContent, offersTheLastImageInBothFormats) {
    const QByteArray pngBytes = pictureBytes("png");
    const QByteArray tiffBytes = pictureBytes("tiff");
    struct Case {
        const char *name;
        std::vector<Pasteboard::Item> items;
        QString stored;
        QString converted;
    };
    const Case cases[]{
        {"png", {item(pngType, pngBytes)}, png, tiff},
        {"tiff", {item(tiffType, tiffBytes)}, tiff, png},
        {"the last", {item(tiffType, tiffBytes), item(pngType, pngBytes)}, png, tiff},
        {"without data behind", {item(pngType, pngBytes), item({}, {}), item(tiffType, {})}, png, tiff},
        {"of no use behind", {item(pngType, pngBytes), item(QStringLiteral("public.jpeg"), "x")}, png, tiff},
    };
    for (const Case &c : cases) {
        const ClipboardContent content(c.items);
        EXPECT_EQ(content.formats(), fileFormats + QStringList({png, tiff})) << c.name;
        EXPECT_EQ(content.data(c.stored), c.stored == png ? pngBytes : tiffBytes) << c.name;
        const QByteArray converted = content.data(c.converted);
        const QByteArray codec = c.converted == png ? "png" : "tiff";
        EXPECT_EQ(QImage::fromData(converted, codec).convertToFormat(QImage::Format_RGB32),
                  QImage::fromData(pngBytes))
            << c.name;
        EXPECT_EQ(ClipboardContent(content).data(c.converted).constData(), converted.constData()) << c.name;
    }
}

TEST(ClipboardContent, offersDataOfTheProgramsOwnTypesAlone) {
    const QString own = QStringLiteral("app.example.thing");
    const ClipboardContent content({{.type = own, .data = "thing"}});
    EXPECT_EQ(content.formats(), QStringList(own));
    EXPECT_EQ(content.data(own), "thing");
}

TEST(ClipboardContent, aBrokenImageHasNoOtherFormat) {
    const ClipboardContent content({item(pngType, "broken")});
    EXPECT_EQ(content.data(png), "broken");
    EXPECT_EQ(content.data(tiff), QByteArray());
    EXPECT_EQ(content.data(QStringLiteral("text/plain")), QByteArray());
}
