#include "shelf/FileDrag.h"

#include "shelf/DragPreview.h"

#include <QDrag>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace tembra {

void dragFiles(QWidget &source, const QStringList &paths, const QList<QImage> &pictures) {
    QList<QUrl> urls;
    for (const QString &path : paths) {
        if (QFileInfo::exists(path))
            urls.append(QUrl::fromLocalFile(path));
    }
    if (urls.isEmpty())
        return;
    auto *content = new QMimeData;
    content->setUrls(urls);
    auto *drag = new QDrag(&source);
    drag->setMimeData(content);
    const QPixmap preview = dragPreview(pictures, static_cast<int>(urls.size()), source.devicePixelRatioF());
    drag->setPixmap(preview);
    drag->setHotSpot({static_cast<int>(preview.deviceIndependentSize().width() / 2),
                      static_cast<int>(preview.deviceIndependentSize().height() / 2)});
    drag->exec(Qt::CopyAction);
}

} // namespace tembra
