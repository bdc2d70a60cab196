#pragma once

#include "base/Generation.h"
#include "editor/documents/EditorDocumentsServices.h"

#include <QImage>

#include <atomic>
#include <functional>
#include <memory>

namespace tembra {

// Reads screenshots in the background, the last one asked for: what is overtaken before its turn is not read
// at all. Main thread; owned by EditorDocuments.
class EditorOpening {
public:
    using Loaded = ScreenshotEditLoaded;
    using PreviewRequest = ScreenshotEditPreviewRequest;

    explicit EditorOpening(const EditorDocumentsServices &services) : m_services(services) {}
    ~EditorOpening();
    EditorOpening(const EditorOpening &) = delete;
    EditorOpening &operator=(const EditorOpening &) = delete;

    void load(const QString &path, const PreviewRequest &preview,
              std::function<void(const Result<Loaded> &)> done);
    void cancelLoad();
    [[nodiscard]] bool isLoading() const { return m_isLoading; }

    // The original in its full size; an original that cannot be decoded is not told of.
    void decode(const QByteArray &original, std::function<void(const QImage &)> done);
    void cancelDecode();

private:
    // Seen by the queues.
    using Cancelled = std::shared_ptr<std::atomic_bool>;

    static void cancel(Cancelled &cancelled, Generation &generation);

    const EditorDocumentsServices m_services;
    bool m_isLoading = false;
    Cancelled m_loadCancelled = std::make_shared<std::atomic_bool>(false);
    Cancelled m_decodeCancelled = std::make_shared<std::atomic_bool>(false);
    Generation m_loads;
    Generation m_decodes;
};

} // namespace tembra
