#pragma once

#include "platform/linux/LinuxTrash.h"
#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace tembra {

// A user's Trash and a folder with screenshots, with a hook into every step of a move.
class TrashFixture : public testing::Test {
protected:
    TrashFixture() { QDir().mkpath(path("shots/sub")); }

    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] Trash::Guard guard() const { return {.root = path("shots")}; }
    // Runs once, when that step was done.
    void at(const char *step, std::function<void()> action) {
        m_onStep = [this, name = QByteArray(step), action = std::move(action)](const char *done) {
            if (name != done)
                return;
            const auto run = action;
            m_onStep = nullptr;
            run();
        };
    }

    [[nodiscard]] static QByteArray contentOf(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(missing)");
    }
    [[nodiscard]] static QStringList namesIn(const QString &folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    [[nodiscard]] static int codeOf(const auto &result) { return result ? 0 : result.error().code; }

    QTemporaryDir m_folder;
    const LinuxFileFactsReader m_reader;
    std::function<void(const char *)> m_onStep;
    // 2021-03-04 05:06:07 in UTC, which tests run in.
    LinuxTrash m_trash{m_reader, path("data/Trash"),
                       [] { return Instant(std::chrono::seconds(1'614'834'367)); },
                       [this](const char *step) {
                           if (m_onStep)
                               m_onStep(step);
                       }};
};

} // namespace tembra
