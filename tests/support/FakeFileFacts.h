#pragma once

#include "platform/FileFacts.h"

#include <QHash>

#include <cerrno>

namespace tembra {

// Files that are what the test says they are.
class FakeFileFacts final : public FileFactsReader {
public:
    void set(const QString &path, const FileFacts &facts) { m_files.insert(path, facts); }
    void remove(const QString &path) { m_files.remove(path); }

    [[nodiscard]] Result<FileFacts> facts(const QString &path) const override {
        const auto file = m_files.constFind(path);
        if (file == m_files.constEnd())
            return failure({.domain = posixErrorDomain, .code = ENOENT});
        return *file;
    }
    [[nodiscard]] Result<FileFacts> targetFacts(const QString &path) const override { return facts(path); }
    [[nodiscard]] Result<void> canReadFolder(const QString &path, bool) const override {
        return facts(path).map([](const FileFacts &) {});
    }
    Result<void> recordCreationDate(const QString &, Instant) const override { return {}; }

private:
    QHash<QString, FileFacts> m_files;
};

} // namespace tembra
