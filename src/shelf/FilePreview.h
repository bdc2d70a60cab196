#pragma once

#include "base/Generation.h"
#include "shelf/PreviewItem.h"
#include "shelf/ShelfServices.h"

#include <QPoint>
#include <QRectF>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace tembra {

class PreviewView;

// Shows the selected files large. Pictures are read on a queue; the window stands at once. Main thread,
// screen points; owned by ShelfController.
class FilePreview {
public:
    // No more pictures than this stand in a row.
    static constexpr int mostInRow = 6;

    explicit FilePreview(const ShelfServices &services);
    ~FilePreview();
    FilePreview(const FilePreview &) = delete;
    FilePreview &operator=(const FilePreview &) = delete;

    // The files shown are to be opened.
    std::function<void(const QStringList &paths)> onOpen;
    // They are to be opened in a program that the user chooses at that place of the screen.
    std::function<void(const QStringList &paths, QPoint position)> onOpenWith;

    // Opens, or shows others in the open window; none closes it.
    void show(const QStringList &paths, const QRectF &available);
    void close();
    [[nodiscard]] bool isOpen() const { return !m_items.empty(); }
    [[nodiscard]] QStringList paths() const;

private:
    void load(const PreviewItem &item);
    void loaded(const QString &path, const QImage &image);
    void present();
    void makeView();
    // Plays the only one shown when it is a recording.
    void play();

    ShelfServices m_services;
    std::vector<PreviewItem> m_items;
    QRectF m_available;
    Generation m_generation;
    // The frames of recordings that are being made.
    std::map<QString, std::unique_ptr<Thumbnails::Request>> m_requests;
    std::unique_ptr<PreviewView> m_view;
    // Nothing while no recording is being played.
    std::unique_ptr<RecordingPlayer> m_player;
};

} // namespace tembra
