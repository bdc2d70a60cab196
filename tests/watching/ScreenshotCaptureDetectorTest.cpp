#include "screenshots/ScreenshotCaptureDetector.h"

#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <sys/xattr.h>

using namespace tembra;

namespace {

// A PNG that says what made it, ahead of its picture.
QByteArray signedPng(const QByteArray &type, const QByteArray &text) {
    QByteArray chunk(4, '\0');
    qToBigEndian(static_cast<quint32>(text.size()), chunk.data());
    chunk += type + text + QByteArray(4, '\0');
    constexpr qsizetype endOfHeader = 33;
    return pictureBytes("png").insert(endOfHeader, chunk);
}

class ScreenshotCaptureDetectorTest : public testing::Test {
protected:
    ScreenshotCaptureDetectorTest() : m_folder(QDir::current().filePath(QStringLiteral("captures-XXXXXX"))) {}

    [[nodiscard]] QString write(const char *name, const QByteArray &content = QByteArrayLiteral("x")) const {
        return writeFile(m_folder.filePath(QString::fromUtf8(name)), content);
    }
    [[nodiscard]] bool isCapture(const QString &path) const { return m_detector.isCapture(path); }
    [[nodiscard]] static bool mark(const QString &path, const QByteArray &value) {
        return ::setxattr(QFile::encodeName(path).constData(),
                          "user.com.apple.metadata:kMDItemIsScreenCapture", value.constData(),
                          static_cast<std::size_t>(value.size()), 0) == 0;
    }

    const QTemporaryDir m_folder;
    const LinuxFileFactsReader m_facts{};
    const LinuxFolderFiles m_files{m_facts};
    const LinuxCaptureMarkers m_markers{};
    const ScreenshotCaptureDetector m_detector{m_markers, m_files};
};

constexpr auto namedLikeOne = "Screenshot 2024-05-01 at 10.15.22.png";

} // namespace

TEST_F(ScreenshotCaptureDetectorTest, aMarkerDecidesEitherWayBeforeAnythingElse) {
    // Binary property lists as macOS writes them, "1" and "0", and what says nothing.
    const QByteArray yes = QByteArray::fromHex("62706c6973743030"
                                               "0908000000000000010100000000000000010000000000000000"
                                               "0000000000000009");
    QByteArray no = yes;
    no[8] = '\x08';
    const struct {
        QByteArray value;
        bool ofNamed;
        bool ofUnnamed;
    } cases[]{{yes, true, true},
              {"1", true, true},
              {no, false, false},
              {"0", false, false},
              {"maybe", true, false},
              {QByteArray(), true, false},
              {yes.chopped(1), true, false},
              {QByteArray(4000, '1'), true, false}};
    const QString named =
        write(namedLikeOne, signedPng("tEXt", QByteArray("Software\0gnome-screenshot", 25)));
    const QString unnamed = write("a.png");
    if (!mark(named, "1"))
        GTEST_SKIP() << "no extended attributes here";
    for (const auto &[value, ofNamed, ofUnnamed] : cases) {
        if (!mark(named, value) || !mark(unnamed, value))
            continue; // longer than this file system takes
        EXPECT_EQ(isCapture(named), ofNamed) << value.toHex().constData();
        EXPECT_EQ(isCapture(unnamed), ofUnnamed) << value.toHex().constData();
    }
}

TEST_F(ScreenshotCaptureDetectorTest, neitherMarkerNorNameMakesAnotherKindOfFileACapture) {
    for (const char *name :
         {"Screenshot 2024-05-01 at 10.15.22.gif", "Screenshot_20261121_101522", "a.txt"}) {
        const QString path = write(name);
        if (!m_markers.setMarker(path, true))
            GTEST_SKIP() << "no extended attributes here";
        EXPECT_FALSE(isCapture(path)) << name;
    }
}

TEST_F(ScreenshotCaptureDetectorTest, aPngSignedByAScreenshotToolIsACapture) {
    using namespace std::string_literals;
    const auto bytes = [](const std::string &text) { return QByteArray::fromStdString(text); };
    const struct {
        const char *what;
        QByteArray content;
        bool expected;
    } cases[]{
        {"text", signedPng("tEXt", bytes("Software\0gnome-screenshot"s)), true},
        {"text in capitals", signedPng("tEXt", bytes("Software\0Flameshot 12.1"s)), true},
        {"international text", signedPng("iTXt", bytes("Software\0\0\0en\0\0Spectacle"s)), true},
        {"compressed text", signedPng("iTXt", bytes("Software\0\1\0\0\0ksnip"s)), false},
        {"text that ends too soon", signedPng("iTXt", bytes("Software\0\0\0en"s)), false},
        {"an image editor", signedPng("tEXt", bytes("Software\0GIMP gnome-screenshot"s)), false},
        {"another keyword", signedPng("tEXt", bytes("Comment\0gnome-screenshot"s)), false},
        {"a longer keyword", signedPng("tEXt", bytes("Software2\0ksnip"s)), false},
        {"no end of the keyword", signedPng("tEXt", "Software"), false},
        {"nothing", pictureBytes("png"), false},
        {"cut off", signedPng("tEXt", bytes("Software\0gnome-screenshot"s)).first(50), false},
        {"a chunk longer than the file", pictureBytes("png").replace(8, 4, "\xff\xff\xff\xff"), false},
        {"no PNG", bytes("Software\0gnome-screenshot"s), false},
    };
    for (const auto &[what, content, expected] : cases)
        EXPECT_EQ(isCapture(write("a.png", content)), expected) << what;
}

TEST_F(ScreenshotCaptureDetectorTest, whatCannotBeOpenedAsAFileIsNoCapture) {
    const QString file = write(namedLikeOne);
    const QString link = m_folder.filePath(QStringLiteral("Screenshot_20261121_101522.png"));
    const QString folder = m_folder.filePath(QStringLiteral("Screenshot_20261121_101523.png"));
    ASSERT_TRUE(isCapture(file) && QFile::link(file, link) && QDir().mkdir(folder));
    EXPECT_FALSE(isCapture(link));
    EXPECT_FALSE(isCapture(folder));
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_FALSE(isCapture(file));
}

TEST_F(ScreenshotCaptureDetectorTest, classificationGoesOverToACopy) {
    const QString capture = write(namedLikeOne);
    const QString photo = write("photo.png");
    const QString refused = write("Screenshot_20261121_101522.png");
    const QString custom = write("Bild 2024-05-01 at 10.15.22.png");
    if (!m_markers.setMarker(refused, false))
        GTEST_SKIP() << "no extended attributes here";
    const auto isCopyCapture = [this](const QString &original, const char *copyName,
                                      const QString &prefix = {}) {
        const QString copy = write(copyName);
        EXPECT_TRUE(m_detector.preserveClassification(original, copy, prefix).has_value());
        return isCapture(copy);
    };
    EXPECT_TRUE(isCopyCapture(capture, "copy.png"));
    EXPECT_TRUE(isCopyCapture(m_folder.filePath(QStringLiteral("copy.png")), "copy of the copy.png"));
    EXPECT_TRUE(isCopyCapture(custom, "copy of the user's.png", QStringLiteral("Bild")));
    EXPECT_FALSE(isCopyCapture(photo, "copy of the photo.png"));
    EXPECT_FALSE(isCopyCapture(refused, "Screenshot 2024-05-01 at 11.00.00.png"));

    const QString none = m_folder.filePath(QStringLiteral("none.png"));
    EXPECT_EQ(m_detector.preserveClassification(none, photo).error().code, ENOENT);
    EXPECT_EQ(m_detector.preserveClassification(capture, none).error().code, ENOENT);
}
