#include "platform/linux/LinuxCaptureMarkers.h"

#include "platform/linux/LinuxCaptureNames.h"
#include "platform/linux/PngText.h"
#include "platform/linux/PosixError.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <string>
#include <sys/xattr.h>

namespace tembra {

namespace {

constexpr auto markerName = "com.apple.metadata:kMDItemIsScreenCapture";

// A binary property list with one object, a boolean: header, object, offset table, and the trailer that tells
// the sizes of offsets and references, the number of objects, the top object and where the offset table
// begins.
constexpr char plistFalse = 0x08;
constexpr char plistTrue = 0x09;

QByteArray propertyList(bool value) {
    QByteArray list("bplist00");
    list.append(value ? plistTrue : plistFalse);
    list.append('\x08');
    list.append(QByteArray::fromHex("0000000000000101"
                                    "0000000000000001"
                                    "0000000000000000"
                                    "0000000000000009"));
    return list;
}

// The programs that sign their PNG files as "Software".
constexpr std::array tools{"gnome-screenshot", "mate-screenshot", "xfce4-screenshooter", "spectacle",
                           "flameshot",        "ksnip",           "deepin-screenshot",   "cosmic-screenshot"};

struct NameParts {
    QStringView base;
    QString extension;
};

NameParts split(QStringView fileName) {
    const qsizetype dot = fileName.lastIndexOf(u'.');
    if (dot <= 0)
        return {fileName, {}};
    return {fileName.first(dot), fileName.sliced(dot + 1).toString().toLower()};
}

} // namespace

std::optional<bool> LinuxCaptureMarkers::marker(const OpenFile &file) const {
    const auto value = file.attribute(markerName);
    if (!value)
        return std::nullopt;
    if (*value == "1" || *value == propertyList(true))
        return true;
    if (*value == "0" || *value == propertyList(false))
        return false;
    return std::nullopt;
}

Result<void> LinuxCaptureMarkers::setMarker(const QString &path, bool isCapture) const {
    const QByteArray value = propertyList(isCapture);
    const std::string name = std::string("user.") + markerName;
    if (::setxattr(QFile::encodeName(path).constData(), name.c_str(), value.constData(),
                   static_cast<std::size_t>(value.size()), 0) != 0)
        return failure(posixError());
    return {};
}

bool LinuxCaptureMarkers::metadataSaysCapture(const OpenFile &file) const {
    const auto software = pngText(file, QByteArrayLiteral("Software"));
    if (!software)
        return false;
    const QByteArray name = software->toLower();
    return std::ranges::any_of(tools, [&name](const char *tool) { return name.startsWith(tool); });
}

bool LinuxCaptureMarkers::nameSaysCapture(QStringView fileName, QStringView customPrefix) const {
    const NameParts name = split(fileName);
    const bool isVideo = name.extension == u"mov" || name.extension == u"mp4" || name.extension == u"m4v" ||
                         isPlatformVideoExtension(name.extension);
    const auto isOfForm = [&](const CaptureNamePattern &pattern) {
        return pattern.matches(name.base) ||
               (!customPrefix.isEmpty() && pattern.matchesAfter(customPrefix, name.base));
    };
    const CaptureNamePattern *wordless = wordlessName(name.extension);
    return (wordless && isOfForm(*wordless)) ||
           std::ranges::any_of(isVideo ? linuxVideoNames() : linuxImageNames(), isOfForm);
}

bool LinuxCaptureMarkers::isPlatformVideoExtension(QStringView extension) const {
    return extension == u"webm" || extension == u"mkv";
}

} // namespace tembra
