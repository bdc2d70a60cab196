#include "editor/documents/EditorOpening.h"

#include "base/Background.h"
#include "editor/model/ScreenshotRenderer.h"

#include <utility>

namespace tembra {

EditorOpening::~EditorOpening() {
    m_loadCancelled->store(true);
    m_decodeCancelled->store(true);
}

void EditorOpening::cancel(Cancelled &cancelled, Generation &generation) {
    cancelled->store(true);
    cancelled = std::make_shared<std::atomic_bool>(false);
    generation.advance();
}

void EditorOpening::load(const QString &path, const PreviewRequest &preview,
                         std::function<void(const Result<Loaded> &)> done) {
    cancelLoad();
    m_isLoading = true;
    performInBackground(
        m_services.io, m_services.scheduler, m_loads.ticket(),
        [&store = m_services.store, path, preview, cancelled = m_loadCancelled]() -> Result<Loaded> {
            // Nobody hears of this then.
            if (cancelled->load())
                return failure({});
            return store.load(path, preview);
        },
        [this, done = std::move(done)](const Result<Loaded> &loaded) {
            m_isLoading = false;
            done(loaded);
        });
}

void EditorOpening::cancelLoad() {
    cancel(m_loadCancelled, m_loads);
    m_isLoading = false;
}

void EditorOpening::decode(const QByteArray &original, std::function<void(const QImage &)> done) {
    cancelDecode();
    performInBackground(
        m_services.images, m_services.scheduler, m_decodes.ticket(),
        [original, cancelled = m_decodeCancelled] {
            return cancelled->load() ? QImage() : ScreenshotRenderer::image(original).value_or(QImage());
        },
        [done = std::move(done)](const QImage &image) {
            if (!image.isNull())
                done(image);
        });
}

void EditorOpening::cancelDecode() {
    cancel(m_decodeCancelled, m_decodes);
}

} // namespace tembra
