#pragma once

#include <QByteArray>
#include <QString>

namespace tembra {

// Where updates come from and what they must fit. A value.
struct UpdateConfiguration {
    // Over HTTPS.
    QString feedUrl;
    // The publisher's Ed25519 key in base64.
    QString publicKey;
    QString currentVersion;
    // The system updates the program: nothing is looked for.
    bool isPackageManaged = false;
    // The program's own; updates lie in a folder in it.
    QString cacheFolder;
    QString architecture;
    // The kernel's.
    QString systemVersion;
    // Certificates in PEM that are trusted besides the system's.
    QByteArray extraAuthorities;
};

} // namespace tembra
