#include "platform/linux/JsonUserDefaults.h"

#include "support/Files.h"
#include "support/Unprivileged.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sys/stat.h>

using namespace tembra;

namespace {

const QString key = QStringLiteral("key");

QByteArray readFile(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class JsonDefaults : public testing::Test {
protected:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] QJsonObject stored() const { return QJsonDocument::fromJson(readFile(m_file)).object(); }
    [[nodiscard]] QStringList names() const { return QDir(m_folder.path()).entryList(QDir::Files); }

    QTemporaryDir m_folder;
    const QString m_file = path("settings.json");
};

} // namespace

TEST_F(JsonDefaults, everyTypeComesBackAsItselfAndAsNoOther) {
    const QString file = path("new/folders/settings.json");
    const QByteArray bytes("\x00\xff{}", 4);
    const QString text = QStringLiteral("a\"\\\n ’ü\U0001F4F7");
    {
        JsonUserDefaults defaults(file);
        EXPECT_FALSE(defaults.contains(key));
        defaults.setBoolean(QStringLiteral("yes"), true);
        defaults.setInteger(QStringLiteral("one"), 1);
        defaults.setInteger(QStringLiteral("least"), std::numeric_limits<qint64>::min());
        defaults.setInteger(QStringLiteral("greatest"), std::numeric_limits<qint64>::max());
        defaults.setString(QStringLiteral("text"), text);
        defaults.setData(QStringLiteral("bytes"), bytes);
        defaults.setData(QStringLiteral("nothing"), {});
        defaults.setStringArray(QStringLiteral("texts"), {text, QString()});
        defaults.setDataArray(QStringLiteral("many"), {bytes, {}});
        defaults.setString(key, text);
        defaults.remove(key);
    }
    const JsonUserDefaults defaults(file);
    EXPECT_FALSE(defaults.contains(key));
    EXPECT_EQ(defaults.boolean(QStringLiteral("yes")), true);
    EXPECT_EQ(defaults.integer(QStringLiteral("one")), 1);
    EXPECT_EQ(defaults.integer(QStringLiteral("least")), std::numeric_limits<qint64>::min());
    EXPECT_EQ(defaults.integer(QStringLiteral("greatest")), std::numeric_limits<qint64>::max());
    EXPECT_EQ(defaults.string(QStringLiteral("text")), text);
    EXPECT_EQ(defaults.data(QStringLiteral("bytes")), bytes);
    EXPECT_EQ(defaults.data(QStringLiteral("nothing")), QByteArray());
    EXPECT_EQ(defaults.stringArray(QStringLiteral("texts")), (QStringList{text, QString()}));
    EXPECT_EQ(defaults.dataArray(QStringLiteral("many")), (QList<QByteArray>{bytes, {}}));

    for (const char *name :
         {"yes", "one", "least", "greatest", "text", "bytes", "nothing", "texts", "many"}) {
        const QString value = QString::fromUtf8(name);
        const int readable =
            int(defaults.boolean(value).has_value()) + int(defaults.integer(value).has_value()) +
            int(defaults.string(value).has_value()) + int(defaults.data(value).has_value()) +
            int(defaults.stringArray(value).has_value()) + int(defaults.dataArray(value).has_value());
        EXPECT_EQ(readable, 1) << name;
    }
}

TEST_F(JsonDefaults, foreignValuesGiveNothing) {
    for (const char *value :
         {"null", "0.5", "1e300", "9223372036854775808", "{}", R"({"base64":1})", R"({"base64":"*"})",
          R"({"base64":"ü"})", R"({"text":"YQ=="})", R"(["a",1])", R"([{"base64":"YQ=="},"a"])", "[[]]"}) {
        writeFile(m_file, QByteArray(R"({"key":)") + value + "}");
        const JsonUserDefaults defaults(m_file);
        EXPECT_TRUE(defaults.contains(key)) << value;
        EXPECT_FALSE(defaults.boolean(key) || defaults.integer(key) || defaults.string(key) ||
                     defaults.data(key) || defaults.stringArray(key) || defaults.dataArray(key))
            << value;
    }
}

TEST_F(JsonDefaults, valuesUnknownHereSurviveAChange) {
    const QByteArray object =
        R"({"later":{"a":[1,null,{"b":0.25}]},"none":null,"big":9007199254740993,"key":1})";
    writeFile(m_file, object);
    JsonUserDefaults defaults(m_file);
    defaults.setString(key, QStringLiteral("new"));
    QJsonObject expected = QJsonDocument::fromJson(object).object();
    expected.insert(key, QStringLiteral("new"));
    EXPECT_EQ(stored(), expected);
    EXPECT_EQ(JsonUserDefaults(m_file).integer(QStringLiteral("big")), 9007199254740993);
}

TEST_F(JsonDefaults, aFileThatCannotBeUnderstoodIsKeptAside) {
    const QByteArray deep = QByteArray(100'000, '[') + QByteArray(100'000, ']');
    QByteArrayList kept;
    for (const QByteArray &content :
         {QByteArray(), QByteArray(R"({"key": tr)"), QByteArray("not JSON"), QByteArray("[1]"),
          QByteArray("\xff\xfe{\x00}\x00", 6), QByteArray(4096, '\0'), deep}) {
        writeFile(m_file, content);
        {
            JsonUserDefaults defaults(m_file);
            EXPECT_FALSE(defaults.contains(key));
            EXPECT_FALSE(QFileInfo::exists(m_file));
            defaults.setInteger(key, 7);
        }
        EXPECT_EQ(JsonUserDefaults(m_file).integer(key), 7);
        kept.append(content);
    }
    // None of those kept earlier was written over.
    QByteArrayList found;
    for (const QString &name : names().filter(QStringLiteral("unreadable")))
        found.append(readFile(m_folder.filePath(name)));
    std::ranges::sort(kept);
    std::ranges::sort(found);
    EXPECT_EQ(found, kept);
}

TEST_F(JsonDefaults, whereNothingCanBeWrittenTheValuesLastUntilTheEnd) {
    writeFile(path("file"));
    JsonUserDefaults defaults(path("file/settings.json"));
    defaults.setInteger(key, 1);
    defaults.setInteger(key, 2);
    EXPECT_EQ(defaults.integer(key), 2);
    EXPECT_EQ(names(), QStringList{QStringLiteral("file")});
}

TEST_F(JsonDefaults, aFileThatCanNeitherBeUsedNorMovedIsNotWrittenOver) {
    const QByteArray folder = QFile::encodeName(m_folder.path());
    for (const QByteArray content : {"broken", R"({"key":1})"}) {
        writeFile(m_file, content);
        const bool isReadable = content == "broken";
        ASSERT_EQ(::chmod(QFile::encodeName(m_file).constData(), isReadable ? 0666 : 0), 0);
        ASSERT_EQ(::chmod(folder.constData(), 0555), 0);
        {
            const Unprivileged unprivileged;
            JsonUserDefaults defaults(m_file);
            defaults.setInteger(key, 7);
            EXPECT_EQ(defaults.integer(key), 7);
        }
        ASSERT_EQ(::chmod(folder.constData(), 0700), 0);
        ASSERT_EQ(::chmod(QFile::encodeName(m_file).constData(), 0600), 0);
        EXPECT_EQ(readFile(m_file), content);
        EXPECT_EQ(names(), QStringList{QStringLiteral("settings.json")});
    }
}

TEST_F(JsonDefaults, aLinkStaysALinkAndTheFileItLeadsToIsWritten) {
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("elsewhere")));
    const QString target = path("elsewhere/target.json");
    // Each leads to the next, the last to the target.
    const QStringList links{m_file, path("second"), path("elsewhere/third"), path("fourth")};
    for (qsizetype length = 1; length <= links.size(); ++length) {
        for (const bool exists : {true, false}) {
            QFile::remove(target);
            if (exists)
                writeFile(target, R"({"old":true})");
            for (qsizetype i = 0; i < length; ++i) {
                QFile::remove(links[i]);
                ASSERT_TRUE(QFile::link(i + 1 < length ? links[i + 1] : target, links[i]));
            }
            JsonUserDefaults defaults(m_file);
            EXPECT_EQ(defaults.contains(QStringLiteral("old")), exists);
            defaults.setInteger(key, 7);
            for (qsizetype i = 0; i < length; ++i)
                EXPECT_TRUE(QFileInfo(links[i]).isSymLink()) << length << " " << exists << " " << i;
            EXPECT_FALSE(QFileInfo(target).isSymLink());
            EXPECT_EQ(JsonUserDefaults(target).integer(key), 7) << length << " " << exists;
        }
    }
}

TEST_F(JsonDefaults, aBrokenFileBehindALinkIsKeptAsideWhereItIs) {
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("elsewhere")));
    const QString target = writeFile(path("elsewhere/target.json"), "broken");
    ASSERT_TRUE(QFile::link(target, m_file));
    JsonUserDefaults(m_file).setInteger(key, 7);
    EXPECT_EQ(QFileInfo(m_file).symLinkTarget(), target);
    EXPECT_EQ(JsonUserDefaults(target).integer(key), 7);
    EXPECT_EQ(readFile(target + QStringLiteral(".unreadable")), "broken");
}

TEST_F(JsonDefaults, aRingOfLinksIsNotFollowedForever) {
    ASSERT_TRUE(QFile::link(path("second"), m_file) && QFile::link(m_file, path("second")));
    JsonUserDefaults defaults(m_file);
    defaults.setInteger(key, 7);
    EXPECT_EQ(defaults.integer(key), 7);
}
