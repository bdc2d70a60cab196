#pragma once

#include "platform/FolderEvents.h"

#include <QDir>

#include <algorithm>
#include <cerrno>

namespace tembra {

// Folder events that the test sends. A folder that is not there cannot be watched, as on a real system, and
// nothing reaches a handle that was dropped.
class FakeFolderEvents final : public FolderEvents {
public:
    // Where no more watches are to be had, a tree gives none and its directory may still.
    bool givesTrees = true;
    // How often a directory was asked for, whether it was there or not.
    int attempts = 0;
    bool isLastTreeRecursive = false;

    Result<std::unique_ptr<Handle>> watchDirectory(const QString &folder,
                                                   std::function<void(std::uint32_t)> onEvents) override {
        ++attempts;
        if (!QDir(folder).exists())
            return failure(Error{posixErrorDomain, ENOENT, QStringLiteral("No such file or directory"), {}});
        return keep(m_directories, std::move(onEvents));
    }

    Result<std::unique_ptr<Handle>> watchEntries(const QString &folder, const QSet<QString> &,
                                                 std::function<void(std::uint32_t)> onEvents) override {
        return watchDirectory(folder, std::move(onEvents));
    }

    Result<std::unique_ptr<Handle>> watchTree(const QString &, bool recursive, std::chrono::nanoseconds,
                                              std::function<void(std::vector<TreeEvent>)> onEvents) override {
        isLastTreeRecursive = recursive;
        if (!givesTrees)
            return failure(Error{posixErrorDomain, ENOSPC, QStringLiteral("No space left on device"), {}});
        return keep(m_trees, std::move(onEvents));
    }

    void sendDirectory(std::uint32_t events) { send(m_directories, events); }
    void sendTree(const std::vector<TreeEvent> &events) { send(m_trees, events); }

    [[nodiscard]] int directoryCount() const { return countOf(m_directories); }
    [[nodiscard]] int treeCount() const { return countOf(m_trees); }

private:
    template <class Callback>
    using Watches = std::vector<std::weak_ptr<const Callback>>;

    template <class Callback>
    struct KeptHandle final : Handle {
        explicit KeptHandle(std::shared_ptr<const Callback> kept) : callback(std::move(kept)) {}
        std::shared_ptr<const Callback> callback;
    };

    template <class Callback>
    static std::unique_ptr<Handle> keep(Watches<Callback> &watches, Callback callback) {
        auto shared = std::make_shared<const Callback>(std::move(callback));
        watches.push_back(shared);
        return std::make_unique<KeptHandle<Callback>>(std::move(shared));
    }

    template <class Callback, class Events>
    static void send(const Watches<Callback> &watches, const Events &events) {
        // The callbacks may add watches.
        const std::size_t count = watches.size();
        for (std::size_t i = 0; i < count; ++i) {
            if (const auto callback = watches[i].lock())
                (*callback)(events);
        }
    }

    template <class Callback>
    static int countOf(const Watches<Callback> &watches) {
        return static_cast<int>(
            std::ranges::count_if(watches, [](const auto &watch) { return !watch.expired(); }));
    }

    Watches<std::function<void(std::uint32_t)>> m_directories;
    Watches<std::function<void(std::vector<TreeEvent>)>> m_trees;
};

} // namespace tembra
