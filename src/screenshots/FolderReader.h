#pragma once

#include "platform/FolderFiles.h"
#include "screenshots/FolderScan.h"
#include "screenshots/ScreenshotCaptureDetector.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tembra {

// Reads a folder's captures and remembers what it found out: each version of a file is judged once, and
// listing the folder again costs little more than the listing. Used by one thread at a time, the scan
// queue's; it belongs to nobody else.
class FolderReader {
public:
    // How often a capture that is not whole is looked at again without having changed.
    static constexpr int retryBudget = 20;

    // `customPrefix` is asked once a scan for the beginning of names that the user has set in the screenshot
    // tool.
    FolderReader(const FolderFiles &files, const ScreenshotCaptureDetector &detector,
                 std::function<QString()> customPrefix);

    [[nodiscard]] FolderScanResult readFolder(const FolderScanRequest &request);

private:
    enum class Verdict : std::uint8_t { notCapture, complete, unfinishedImage, unfinishedVideo };

    struct Entry {
        FileVersion version;
        Verdict verdict = Verdict::notCapture;
        bool isFresh = false;
        // Some version of it was whole in an earlier scan: it is no arrival any more, however it is
        // rewritten.
        bool wasComplete = false;
        std::uint16_t retries = 0;
        std::uint32_t lastScan = 0;
        Shot shot;
    };

    struct StringHash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    using Entries = std::unordered_map<std::string, Entry, StringHash, std::equal_to<>>;

    void begin(const FolderScanRequest &request);
    void visit(const FolderFiles::Listed &listed, const FolderScanRequest &request);
    void judge(Entry &entry, const FolderFiles::Listed &listed, const FolderScanRequest &request);
    [[nodiscard]] Verdict verdict(const OpenFile &file, QStringView fileName, const FileVersion &version,
                                  Instant now) const;
    void collect(const FolderScanRequest &request, FolderScanResult &result);

    const FolderFiles &m_files;
    const ScreenshotCaptureDetector &m_detector;
    const std::function<QString()> m_askCustomPrefix;
    QString m_customPrefix;
    QString m_folder;
    std::uint32_t m_scan = 0;
    Entries m_entries;
};

} // namespace tembra
