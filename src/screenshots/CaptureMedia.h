#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <string_view>

namespace tembra {

// The extensions of screenshots and recordings, lower case, known on every platform.
struct CaptureMedia {
    static constexpr std::array<QStringView, 5> imageExtensions{u"png", u"jpg", u"jpeg", u"heic", u"tiff"};
    static constexpr std::array<QStringView, 3> videoExtensions{u"mov", u"mp4", u"m4v"};

    // The extension of a file name in lower case; empty when there is none.
    [[nodiscard]] static QString extension(QStringView fileName);
    [[nodiscard]] static bool isImageExtension(QStringView extension);
    [[nodiscard]] static bool isVideoExtension(QStringView extension);
    // Narrower than what counts as an image: what the editor opens, by the file's name.
    [[nodiscard]] static bool isEditable(QStringView fileName);
    // Whether the ending of a name, in the file system's bytes, is as long as those of images and recordings
    // are: most other files need no closer look.
    [[nodiscard]] static bool mayBeMedia(std::string_view fileName);
};

} // namespace tembra
