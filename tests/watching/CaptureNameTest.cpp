#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "support/Files.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// Classifies names of an empty file without attributes: the name alone speaks.
class CaptureName : public testing::Test {
protected:
    [[nodiscard]] std::optional<CaptureReason> reason(const char *fileName, const char *prefix = "") const {
        return m_detector.classify(QString::fromUtf8(fileName), *m_file, QString::fromUtf8(prefix));
    }

    const QTemporaryDir m_folder;
    const LinuxFileFactsReader m_facts{};
    const LinuxFolderFiles m_files{m_facts};
    const LinuxCaptureMarkers m_markers{};
    const ScreenshotCaptureDetector m_detector{m_markers, m_files};
    const std::unique_ptr<OpenFile> m_file =
        m_files.open(writeFile(m_folder.filePath(QStringLiteral("empty")), {})).value();
};

} // namespace

TEST_F(CaptureName, isAcceptedAsMacWritesIt) {
    for (const char *name : {
             "Screenshot 2024-05-01 at 10.15.22.png",
             "screen shot 2019-01-01 at 9.05.00 pm (2).png",
             "Screenshot 2024-05-01 at 10.15.22\u202fPM.jpeg",
             "Screenshot – 2024.5.1 23:59.PNG",
             "Screen Shot 1-12-2024 10.15 am.heic",
             "Screenshot 2024-05-01 at 10.15.22 (17).tiff",
             "Снимок экрана 2024-05-01 в 10.15.22.png",
             "СНИМОК ЭКРАНА 01.05.2024 в 0.15.jpg",
             "Screen Recording 2024-05-01 at 10.15.22.mov",
             "screen recording 2024-05-01 at 9.15.22am.m4v",
             "Запись экрана 2024-05-01 в 10.15.22.mp4",
         })
        EXPECT_EQ(reason(name), CaptureReason::name) << name;
}

TEST_F(CaptureName, isAcceptedAsTheToolsOfLinuxDesktopsWriteIt) {
    for (const char *name : {
             "Screenshot from 2026-11-21 10-15-22.png",
             "Screenshot From 2026-11-21 10-15-22.png",
             "Screenshot from 2026-11-21 10-15-22-1.png",
             "Screencast from 2026-11-21 10-15-22.webm",
             "Screencast From 2026-11-21 10-15-22.mp4",
             "Screenshot_20261121_101522.png",
             "Screenshot_20261121_101522-1.png",
             "Screenshot_20261121_101522 (3).jpg",
             "Screencast_20261121_101522.webm",
             "Screenshot_2026-11-21_10-15-22.png",
             "2026-11-21_10-15.png",
             "2026-11-21_10-15_12.png",
             "ksnip_20261121-101522.png",
             "2026-11-21-101522_1280x800_scrot.png",
             "20261121_10h15m22s_grim.png",
             "2026-11-21-101522_hyprshot.png",
             "2026-11-21 10-15-22.mkv",
             "2026-11-21 10-15-22.MP4",
             "2026-11-21 10-15-22.mov",
             "Screenshot 2026-11-21 10-15-22.png",
             "Screenshot at 2026-02-28 23-59-59.png",
             // a second one in the same moment
             "Screenshot from 2026-11-21 10-15-22 - 1.png",
             "ksnip_20261121-101522(2).png",
             "2026-11-21-101522_1280x800_scrot_000.png",
             "Screenshot_2026-11-21_10-15-22-1.png",
         })
        EXPECT_EQ(reason(name), CaptureReason::tool) << name;
}

// The words are those of the tools' own catalogues.
TEST_F(CaptureName, isAcceptedInGermanAndRussian) {
    for (const char *name : {
             "Bildschirmfoto vom 2026-11-21 10-15-22.png",
             "Bildschirmfoto vom 2026-11-21 10-15-22 - 1.png",
             "Bildschirmfoto vom 2026-11-21 10-15-22-1.png",
             "Снимок экрана от 2026-11-21 10-15-22.png",
             "Снимок экрана от 2026-11-21 10-15-22 - 12.png",
             "Bildschirmaufzeichnung vom 2026-11-21, 10-15-22.webm",
             "Запись экрана от 2026-11-21 10-15-22.webm",
             "Bildschirmfoto zu 2026-11-21 10-15-22.png",
             "Bildschirmfoto zu 2026-11-21 10-15-22 - 1.png",
             "Снимок экрана в 2026-11-21 10-15-22.png",
             "Снимок экрана в 2026-11-21 10-15-22 — 1.png",
             "Bildschirmfoto_2026-11-21_10-15-22.png",
             "Bildschirmfoto_2026-11-21_10-15-22-1.png",
             "Снимок экрана_2026-11-21_10-15-22.jpg",
             "Bildschirmfoto_20261121_101522.png",
             "Снимок экрана_20261121_101522.png",
         })
        EXPECT_EQ(reason(name), CaptureReason::tool) << name;
}

TEST_F(CaptureName, ofAnyOtherFileIsNotAccepted) {
    for (const char *name : {
             // pictures that are no captures
             "20261121_101522.jpg",
             "IMG_1234.jpg",
             "IMG_20261121_101522.png",
             "2026-11-21 10-15-22.png",
             "2026-11-21_10-15.jpg",
             "2026-11-21_10-15.webm",
             "2026-11-21 10-15-22.m4v",
             "WhatsApp Image 2024-05-01 at 10.15.22.jpeg",
             "photo Screenshot 2024-05-01 at 10.15.22.png",
             // beginnings without a moment
             "Screenshot.png",
             "Screenshot notes.png",
             "Screenshot notes 2024-05-01 at 10.15.22.png",
             "Screenshot 2024-05-01.png",
             "Screenshot_20261121.png",
             "ksnip_20261121.png",
             "Screen Recording.mov",
             // something behind the moment
             "Screenshot 2024-05-01 at 10.15.22 copy.png",
             "Screenshot 2024-05-01 at 10.15.22 (2) (3).png",
             "Screenshot 2024-05-01 at quarter past 10.15.png",
             "Screenshot_20261121_101522-.png",
             "Screenshot_20261121_101522().png",
             "Screenshot_20261121_1015221).png",
             "Screenshot_20261121_101522 - .png",
             "Screenshot_20261121_101522_edited.png",
             "Screenshot_20261121_1015220.png",
             "2026-11-21-101522_1280x_scrot.png",
             // moments that never were
             "Screenshot 2024-05-01 at 24.15.22.png",
             "Screenshot 2024-05-01 at 10.60.22.png",
             "Screenshot 24-05-01 at 10.15.22.png",
             "Screenshot_20261321_101522.png",
             "Screenshot_20261100_101522.png",
             "Screenshot_20261132_101522.png",
             "Screenshot_20261121_241522.png",
             "Screenshot from 2026-11-21 10-61-22.png",
             "2026-00-21 10-15-22.mkv",
             // the beginning of the other kind
             "Screenshot 2024-05-01 at 10.15.22.mov",
             "Screenshot_20261121_101522.webm",
             "Screen Recording 2024-05-01 at 10.15.22.png",
             "Screencast_20261121_101522.png",
             // other extensions
             "Screenshot 2024-05-01 at 10.15.22.gif",
             "Screenshot 2024-05-01 at 10.15.22.png.part",
             "Screenshot 2024-05-01 at 10.15.22",
             "Screenshot_20261121_101522.tif",
             ".png",
             "png",
             "",
         })
        EXPECT_EQ(reason(name), std::nullopt) << name;
}

TEST_F(CaptureName, mayBeginAsTheUserSetItBesideTheUsualWays) {
    using Reason = std::optional<CaptureReason>;
    const struct {
        const char *name;
        const char *prefix;
        Reason expected;
    } cases[]{
        {"Bild 2024-05-01 at 10.15.22.png", "", std::nullopt},
        {"Bild 2024-05-01 at 10.15.22.png", "Bild", CaptureReason::name},
        {"bild 2024-05-01 at 10.15.22.mov", "Bild", CaptureReason::name},
        {"Bild (neu) 2024-05-01 at 10.15.22.png", "Bild (neu)", CaptureReason::name},
        {"Bildnis 2024-05-01 at 10.15.22.png", "Bild", std::nullopt},
        {"Foto_20261121_101522.png", "Foto_", CaptureReason::tool},
        {"Foto_20261121_101522.png", "Foto", CaptureReason::tool},
        {"Capture d’écran du 2026-11-21 10-15-22.png", "Capture d’écran du", CaptureReason::tool},
        {"Bild_2026-11-21_10-15_1.png", "Bild", CaptureReason::tool},
        {"Bild_2026-11-21_10-15.jpg", "Bild", std::nullopt},
        {"Foto_Urlaub.png", "Foto", std::nullopt},
        {"Screenshot 2024-05-01 at 10.15.22.png", "Bild", CaptureReason::name},
        {"Screenshot_20261121_101522.png", "Bild", CaptureReason::tool},
    };
    for (const auto &[name, prefix, expected] : cases)
        EXPECT_EQ(reason(name, prefix), expected) << name << " with " << prefix;
}
