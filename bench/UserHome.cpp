#include "UserHome.h"

#include "CaptureFolder.h"
#include "Require.h"
#include "Scratch.h"

#include <QDir>
#include <QFile>

namespace tembra::bench {

UserHome::UserHome(int captures) : m_folder(scratchTemplate("home")) {
    const QDir home(m_folder.path());
    for (const auto &[variable, folder] : {std::pair{"HOME", "."},
                                           {"TEMBRA_HOME", "tembra"},
                                           {"XDG_CONFIG_HOME", "config"},
                                           {"XDG_DATA_HOME", "data"},
                                           {"XDG_CACHE_HOME", "cache"}})
        qputenv(variable, QFile::encodeName(QDir::cleanPath(home.filePath(QLatin1StringView(folder)))));
    // Whatever screenshot tools are installed.
    qputenv("TEMBRA_SCREENSHOT_TOOL", "generic");
    require(fillWithCaptures(this->captures(), captures), "cannot write captures");
    QFile settings(home.filePath(QStringLiteral("tembra/config/settings.json")));
    require(home.mkpath(QStringLiteral("tembra/config")) && settings.open(QIODevice::WriteOnly) &&
                settings.write(R"({"hasCompletedOnboarding": true})") > 0,
            "cannot write settings");
}

QString UserHome::captures() const {
    return m_folder.filePath(QStringLiteral("Pictures/Screenshots"));
}

} // namespace tembra::bench
