#pragma once

#include <QString>

#include <filesystem>

namespace tembra::bench {

// For QTemporaryDir: a folder beside the benchmark itself, so on a real disk, and among what was built should
// the run be cut off.
inline QString scratchTemplate(const char *name) {
    const auto folder = std::filesystem::canonical("/proc/self/exe").parent_path();
    return QString::fromStdString((folder / name).string()) + QStringLiteral("-XXXXXX");
}

} // namespace tembra::bench
