#include "platform/linux/tools/SettingsText.h"

#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tembra;

TEST(SettingsText, readsAndWritesKdesNotation) {
    struct Case {
        QByteArray value;
        QString text;
    };
    const Case cases[]{
        {"/srv/a b", QStringLiteral("/srv/a b")},
        {"\\sx\\s", QStringLiteral(" x ")},
        {"a\\\\b\\tc\\nd", QStringLiteral("a\\b\tc\nd")},
        {"für später", QStringLiteral("für später")},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(fromKConfig(c.value), c.text) << c.value.constData();
        EXPECT_EQ(toKConfig(c.text), c.value) << c.value.constData();
    }
    EXPECT_EQ(fromKConfig("\\x41\\xc3\\xa4\\x4"), QStringLiteral("Aä\\x4"));
    EXPECT_EQ(fromKConfig("caf\xe9"), QStringLiteral("café"));
    EXPECT_EQ(fromKConfig("end\\"), QStringLiteral("end\\"));
}

TEST(SettingsText, replacesVariablesOfTheEnvironment) {
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("HOME"), QStringLiteral("/home/ada"));
    struct Case {
        QString text;
        std::optional<QString> expanded;
    };
    const Case cases[]{
        {QStringLiteral("file://$HOME/x"), QStringLiteral("file:///home/ada/x")},
        {QStringLiteral("${HOME}x/$NONE"), QStringLiteral("/home/adax/")},
        {QStringLiteral("$$HOME 5$ $"), QStringLiteral("$HOME 5$ $")},
        {QStringLiteral("${HOME"), QStringLiteral("${HOME")},
        {QStringLiteral("/x/$(rm -rf /)"), std::nullopt},
    };
    for (const Case &c : cases)
        EXPECT_EQ(expandedKConfig(c.text, environment), c.expanded) << c.text.toStdString();
}

// The other side of this notation is QSettings itself.
TEST(SettingsText, agreesWithQSettings) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("settings.ini"));
    const QString texts[]{
        QStringLiteral("/srv/shots"),  QStringLiteral("/srv/a, b; c=d"),
        QStringLiteral(" edge "),      QStringLiteral("/srv/für später"),
        QStringLiteral("@at"),         QStringLiteral("quote\" back\\slash\t"),
        QStringLiteral("ſabc 文件 𝄞"),
    };
    const auto rawValue = [&] {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        return content.mid(content.indexOf('=') + 1).trimmed();
    };
    for (const QString &text : texts) {
        {
            QSettings settings(path, QSettings::IniFormat);
            settings.setValue(QStringLiteral("k"), text);
        }
        EXPECT_EQ(fromQtIni(rawValue()), text) << text.toStdString();
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[General]\nk=" + toQtIni(text) + "\n");
        file.close();
        EXPECT_EQ(QSettings(path, QSettings::IniFormat).value(QStringLiteral("k")).toString(), text)
            << text.toStdString();
    }
}

TEST(SettingsText, takesNoListOrOtherTypeForText) {
    for (const char *value : {"a, b", "@Variant(\\0\\0)", "@ByteArray(x)"})
        EXPECT_EQ(fromQtIni(value), std::nullopt) << value;
    EXPECT_EQ(fromQtIni("\"open"), QStringLiteral("open"));
    EXPECT_EQ(fromQtIni("end\\"), QStringLiteral("end"));
}

TEST(SettingsText, findsTheFolderThatASettingMeans) {
    struct Case {
        QString setting;
        std::optional<QString> path;
    };
    const Case cases[]{
        {QStringLiteral("file:///srv/a%20b/"), QStringLiteral("/srv/a b")},
        {QStringLiteral("file:///srv/a b"), QStringLiteral("/srv/a b")},
        {QStringLiteral("file:///srv/a#b?c%23"), QStringLiteral("/srv/a#b?c#")},
        {QStringLiteral("file:/srv/für später, 50%"), QStringLiteral("/srv/für später, 50%")},
        {QStringLiteral("file:/srv"), QStringLiteral("/srv")},
        {QStringLiteral("file://localhost/srv"), QStringLiteral("/srv")},
        {QStringLiteral("/srv//100%"), QStringLiteral("/srv/100%")},
        {QStringLiteral("~/x"), QStringLiteral("~/x")},
        {QStringLiteral("sftp://host/srv"), std::nullopt},
        {QStringLiteral("file://server/share"), std::nullopt},
        {QStringLiteral("file://server"), std::nullopt},
        {QStringLiteral("file:"), std::nullopt},
        {QStringLiteral("relative"), std::nullopt},
        {QString(), std::nullopt},
    };
    for (const Case &c : cases)
        EXPECT_EQ(folderPath(c.setting), c.path) << c.setting.toStdString();
    const QString odd = QStringLiteral("/srv/für 100% #1?");
    EXPECT_EQ(folderPath(QString::fromUtf8(folderUri(odd))), odd);
}
