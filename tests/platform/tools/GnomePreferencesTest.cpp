#define G_SETTINGS_ENABLE_BACKEND
#include "platform/linux/tools/DesktopDatabasePreferences.h"
#include "platform/linux/tools/GnomeShellPreferences.h"
#include "platform/tools/Session.h"

#include <gio/gio.h>
#include <gio/gsettingsbackend.h>
#include <gtest/gtest.h>

#include <clocale>

using namespace tembra;

namespace {

QString untranslated(const char *, const char *text) {
    return QString::fromUtf8(text);
}

QString inGerman(const char *catalogue, const char *text) {
    const QHash<QByteArray, QString> german{
        {"gnome-shell:Screenshots", QStringLiteral("Bildschirmfotos")},
        {"gnome-shell:Screenshot from %s", QStringLiteral("Bildschirmfoto vom %s")},
    };
    return german.value(QByteArray(catalogue) + ':' + text, QString::fromUtf8(text));
}

// GNOME's settings in a file of the test's own, read by a database that nothing is remembered from.
class GnomeScreenshot : public testing::Test {
protected:
    using Backend = std::unique_ptr<GSettingsBackend, void (*)(void *)>;

    [[nodiscard]] std::unique_ptr<DesktopDatabasePreferences> preferences() {
        const QByteArray path = QFile::encodeName(session.path(file));
        m_backend = Backend(g_keyfile_settings_backend_new(path.constData(), "/", nullptr), g_object_unref);
        return std::make_unique<DesktopDatabasePreferences>(gnomeScreenshotTool, session.folders,
                                                            untranslated, m_backend.get());
    }
    void store(const QByteArray &value) const {
        session.write(file, "[org/gnome/gnome-screenshot]\nauto-save-directory='" + value + "'\n");
    }

    const Session session;
    const QString file = QStringLiteral("keyfile");

private:
    Backend m_backend{nullptr, g_object_unref};
};

} // namespace

TEST_F(GnomeScreenshot, readsItsFolder) {
    struct Case {
        QByteArray stored;
        QString location;
    };
    const Case cases[]{
        {"", session.folders.pictures},
        {"file:///srv/f%C3%BCr%20sp%C3%A4ter", QStringLiteral("/srv/für später")},
        {"/srv/shots/", QStringLiteral("/srv/shots")},
        {"~/Bilder", QStringLiteral("~/Bilder")},
        {"sftp://host/x", session.folders.pictures},
        {"shots", session.folders.pictures},
    };
    EXPECT_EQ(preferences()->location(), session.folders.pictures);
    for (const Case &c : cases) {
        store(c.stored);
        EXPECT_EQ(preferences()->location(), c.location) << c.stored.constData();
    }
}

TEST_F(GnomeScreenshot, takesAFolder) {
    store("/srv/before");
    session.write(file, session.read(file) + "include-pointer=true\n");
    const auto preferences = this->preferences();
    preferences->setLocation(QStringLiteral("~/für später"));
    preferences->synchronize();
    EXPECT_EQ(preferences->location(), QStringLiteral("/home/ada/für später"));
    EXPECT_EQ(this->preferences()->location(), QStringLiteral("/home/ada/für später"));
    EXPECT_TRUE(session.read(file).contains("include-pointer=true"));

    const auto again = this->preferences();
    again->setLocation(QStringLiteral("shots"));
    again->synchronize();
    EXPECT_EQ(again->location(), QStringLiteral("/home/ada/für später"));
    again->setLocation(std::nullopt);
    again->synchronize();
    EXPECT_EQ(this->preferences()->location(), session.folders.pictures);
}

TEST_F(GnomeScreenshot, livesWithoutItsSchema) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto withoutSchema = [&] {
        qputenv("XDG_DATA_DIRS", "/nonexistent");
        qputenv("XDG_DATA_HOME", "/nonexistent");
        DesktopDatabasePreferences preferences(gnomeScreenshotTool, session.folders, untranslated);
        preferences.setLocation(QStringLiteral("/srv/shots"));
        preferences.synchronize();
        std::exit(preferences.location() == session.folders.pictures ? 0 : 1);
    };
    EXPECT_EXIT(withoutSchema(), testing::ExitedWithCode(0), "");
}

TEST(DesktopDatabase, toolsNameTheirFilesInTheLanguageOfTheSession) {
    struct Case {
        const DesktopDatabaseTool &tool;
        const char *language;
        QString name;
    };
    const Case cases[]{
        {gnomeScreenshotTool, "de", QStringLiteral("Bildschirmfoto vom")},
        {gnomeScreenshotTool, "ru", QStringLiteral("Снимок экрана от")},
        {mateScreenshotTool, "de", QStringLiteral("Bildschirmfoto zu")},
        {mateScreenshotTool, "ru", QStringLiteral("Снимок экрана в")},
    };
    // Catalogues are looked up anew after the locale was set.
    const auto setLanguage = [](const char *language) {
        qputenv("LANGUAGE", language);
        std::setlocale(LC_ALL, "C");
        std::setlocale(LC_ALL, "C.UTF-8");
    };
    for (const Case &c : cases) {
        const DesktopDatabasePreferences preferences(c.tool, StandardFolders());
        setLanguage("");
        EXPECT_EQ(preferences.name(), std::nullopt) << c.tool.name;
        const QString catalogue = QStringLiteral("/usr/share/locale/%1/LC_MESSAGES/%2.mo");
        if (!QFileInfo::exists(
                catalogue.arg(QLatin1StringView(c.language), QLatin1StringView(c.tool.catalogue))))
            continue;
        setLanguage(c.language);
        EXPECT_EQ(preferences.name(), c.name) << c.tool.name << ' ' << c.language;
    }
    qunsetenv("LANGUAGE");
}

TEST(GnomeShell, savesIntoItsOwnFolder) {
    const QString english = QStringLiteral("Screenshots");
    const QString german = QStringLiteral("Bildschirmfotos");
    struct Case {
        const char *name;
        Translations translations;
        QStringList existing;
        QString folder;
    };
    const Case cases[]{
        {"English", untranslated, {}, english},
        {"German", inGerman, {}, german},
        {"German, made", inGerman, {german}, german},
        {"German, both made", inGerman, {german, english}, german},
        {"German, English made", inGerman, {english}, english},
        {"English, German made", untranslated, {german}, english},
    };
    for (const Case &c : cases) {
        const Session session;
        for (const QString &folder : c.existing)
            QDir().mkpath(session.folders.pictures + u'/' + folder);
        GnomeShellPreferences preferences(session.folders, c.translations);
        const QString expected = session.folders.pictures + u'/' + c.folder;
        EXPECT_EQ(preferences.location(), expected) << c.name;
        preferences.setLocation(QStringLiteral("/srv/shots"));
        preferences.synchronize();
        EXPECT_EQ(preferences.location(), expected) << c.name;
    }
}

TEST(GnomeShell, namesItsFilesInTheLanguageOfTheSession) {
    const StandardFolders folders;
    EXPECT_EQ(GnomeShellPreferences(folders, untranslated).name(), std::nullopt);
    EXPECT_EQ(GnomeShellPreferences(folders, inGerman).name(), QStringLiteral("Bildschirmfoto vom"));
}
