#pragma once

#include "base/FilePath.h"
#include "platform/linux/LinuxFileCoordinator.h"
#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <vector>

namespace tembra {

// A folder with one screenshot, "shot.png", that holds "old".
class CoordinatorFixture : public testing::Test {
protected:
    using ContentCheck = FileCoordinator::ContentCheck;

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString path(const char *name) const { return path(QString::fromUtf8(name)); }
    [[nodiscard]] QByteArray contentOf(const char *name) const {
        return m_files.read(path(name)).value_or(QByteArrayLiteral("(none)"));
    }
    [[nodiscard]] QStringList names() const {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    // "new" in the place of what is expected, as a save does it.
    [[nodiscard]] Result<void> save(const ContentCheck &isExpected = isOld) const {
        return m_files.writeTemporary(m_temporary, "new", m_shot, {}).and_then([&] {
            return m_files.replace(m_shot, m_temporary, "new", isExpected);
        });
    }
    // The same with others at work: each action runs when the file was looked at for the first, the second
    // time and so on.
    [[nodiscard]] Result<void> saveWhile(std::initializer_list<std::function<void()>> actions) const {
        const std::vector<std::function<void()>> all = actions;
        std::size_t looks = 0;
        return save([&](QByteArrayView content) {
            const bool isExpected = isOld(content);
            if (looks < all.size())
                all.at(looks++)();
            return isExpected;
        });
    }

    static bool isOld(QByteArrayView content) { return content == QByteArrayView("old"); }
    [[nodiscard]] static int codeOf(const auto &result) { return result ? 0 : result.error().code; }

    QTemporaryDir m_folder;
    const LinuxFileCoordinator m_files{};
    const QString m_shot = writeFile(path("shot.png"), "old");
    const QString m_temporary = path(".tembra-edit-1.png");
    const QStringList m_onlyShot{QStringLiteral("shot.png")};
};

} // namespace tembra
