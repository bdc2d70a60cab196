#include "platform/linux/LinuxCaptureNames.h"

namespace tembra {

namespace {

constexpr QStringView spaced = u"YYYY-MM-DD HH-II-SS";
constexpr QStringView underscored = u"YYYY-MM-DD_HH-II-SS";
constexpr QStringView compact = u"YYYYMMDD_HHIISS";
constexpr QStringView compactDashed = u"YYYYMMDD-HHIISS";
constexpr QStringView dated = u"YYYY-MM-DD-HHIISS";

constexpr CaptureNamePattern imageNames[]{
    // GNOME, gnome-screenshot, niri
    {u"Screenshot from ", spaced},
    // Spectacle
    {u"Screenshot_", compact},
    // xfce4-screenshooter, COSMIC
    {u"Screenshot_", underscored},
    // mate-screenshot
    {u"Screenshot at ", spaced},
    // the same in German and Russian; Spectacle translates its names since version 24
    {u"Bildschirmfoto vom ", spaced},
    {u"Снимок экрана от ", spaced},
    {u"Bildschirmfoto_", compact},
    {u"Снимок экрана_", compact},
    {u"Bildschirmfoto_", underscored},
    {u"Снимок экрана_", underscored},
    {u"Bildschirmfoto zu ", spaced},
    {u"Снимок экрана в ", spaced},
    // OBS Studio
    {u"Screenshot ", spaced},
    {u"ksnip_", compactDashed},
    {u"", u"YYYYMMDD_HHhIImSSs", u"_grim"},
    {u"", u"YYYY-MM-DD-HHIISS_#x#", u"_scrot"},
    {u"", dated, u"_hyprshot"},
    // what sway's own documentation and its users' configurations let grim and maim write
    {u"screenshot_", dated},
    {u"screenshot-", dated},
    {u"screenshot_", compactDashed},
    {u"screenshot-", compactDashed},
    {u"screenshot-", underscored},
    {u"grim_", underscored},
    {u"maim_", underscored},
    {u"swappy-", compactDashed},
    {u"wayshot-", u"YYYY_MM_DD-HH_II_SS"},
    {u"DeepinScreenshot_select-area_", u"YYYYMMDDHHIISS"},
};

constexpr CaptureNamePattern videoNames[]{
    // GNOME
    {u"Screencast from ", spaced},
    {u"Bildschirmaufzeichnung vom ", u"YYYY-MM-DD, HH-II-SS"},
    {u"Запись экрана от ", spaced},
    // Spectacle
    {u"Screencast_", compact},
    {u"Screencast_", underscored},
    {u"Kooha-", u"YYYY-MM-DD-HH-II-SS"},
    {u"simplescreenrecorder-", u"YYYY-MM-DD_HH.II.SS"},
    {u"vokoscreenNG-", underscored},
    {u"Peek ", u"YYYY-MM-DD HH-II"},
};

// Flameshot writes PNG files under the first, OBS Studio recordings under the second.
constexpr CaptureNamePattern wordlessImage{u"", u"YYYY-MM-DD_HH-II"};
constexpr CaptureNamePattern wordlessVideo{u"", spaced};

} // namespace

std::span<const CaptureNamePattern> linuxImageNames() {
    return imageNames;
}

std::span<const CaptureNamePattern> linuxVideoNames() {
    return videoNames;
}

const CaptureNamePattern *wordlessName(QStringView lowerCaseExtension) {
    if (lowerCaseExtension == u"png")
        return &wordlessImage;
    const bool isRecording =
        lowerCaseExtension == u"mkv" || lowerCaseExtension == u"mp4" || lowerCaseExtension == u"mov";
    return isRecording ? &wordlessVideo : nullptr;
}

} // namespace tembra
