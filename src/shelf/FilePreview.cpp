#include "shelf/FilePreview.h"

#include "base/Background.h"
#include "screenshots/CaptureMedia.h"
#include "shelf/PreviewView.h"

#include <algorithm>

namespace tembra {

namespace {

// Frames of recordings are thumbnails: larger ones are not kept.
constexpr double frameSide = 512;

} // namespace

FilePreview::FilePreview(const ShelfServices &services) : m_services(services) {}

FilePreview::~FilePreview() = default;

QStringList FilePreview::paths() const {
    QStringList paths;
    for (const PreviewItem &item : m_items)
        paths += item.path;
    return paths;
}

void FilePreview::show(const QStringList &paths, const QRectF &available) {
    if (paths.isEmpty())
        return close();
    const QStringList shown = paths.mid(0, mostInRow);
    m_available = available;
    if (shown == this->paths())
        return present();
    m_generation.advance();
    m_requests.clear();
    m_player.reset();
    std::vector<PreviewItem> items;
    for (const QString &path : shown) {
        const auto known = std::ranges::find(m_items, path, &PreviewItem::path);
        const bool isImage = CaptureMedia::isImageExtension(CaptureMedia::extension(path));
        items.push_back(known != m_items.end() ? *known : PreviewItem{.path = path, .isRecording = !isImage});
    }
    m_items = std::move(items);
    play();
    present();
    // What comes at once changes the list.
    const std::vector<PreviewItem> wanted = m_items;
    for (const PreviewItem &item : wanted) {
        if (!item.isLoaded)
            load(item);
    }
}

void FilePreview::load(const PreviewItem &item) {
    if (item.isRecording) {
        m_requests[item.path] = m_services.thumbnails.request(
            item.path, frameSide, 1,
            [this, path = item.path](const auto &frame) { loaded(path, frame ? frame->image : QImage()); });
        return;
    }
    performInBackground(
        m_services.previewQueue, m_services.scheduler, m_generation.ticket(),
        [&pictures = m_services.pictures, path = item.path] {
            return pictures.decode(path).value_or(QImage());
        },
        [this, path = item.path](const QImage &image) { loaded(path, image); });
}

void FilePreview::loaded(const QString &path, const QImage &image) {
    const auto item = std::ranges::find(m_items, path, &PreviewItem::path);
    if (item == m_items.end())
        return;
    item->image = image;
    item->isLoaded = true;
    present();
}

void FilePreview::play() {
    if (m_items.size() != 1 || !m_items.front().isRecording)
        return;
    m_player = m_services.makeRecordingPlayer();
    if (!m_player)
        return;
    m_items.front().isPlayed = true;
    m_player->onFrame = [this, path = m_items.front().path](const QImage &frame) {
        m_requests.clear();
        loaded(path, frame);
    };
    m_player->play(m_items.front().path);
}

void FilePreview::present() {
    if (!m_view)
        makeView();
    m_view->present(m_items, m_available);
}

void FilePreview::makeView() {
    m_view = std::make_unique<PreviewView>();
    QObject::connect(m_view.get(), &PreviewView::openRequested, m_view.get(), [this] { onOpen(paths()); });
    QObject::connect(m_view.get(), &PreviewView::openWithRequested, m_view.get(),
                     [this](QPoint position) { onOpenWith(paths(), position); });
    QObject::connect(m_view.get(), &PreviewView::pauseToggled, m_view.get(), [this] {
        if (m_player)
            m_player->togglePause();
    });
}

void FilePreview::close() {
    m_generation.advance();
    m_requests.clear();
    m_player.reset();
    m_items.clear();
    if (m_view)
        m_view->dismiss();
}

} // namespace tembra
