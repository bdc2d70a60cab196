#include "shelf/FileDrag.h"

#include "base/FileUri.h"
#include "platform/FileFacts.h"
#include "shelf/DragPreview.h"

#include <QDrag>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QWidget>

namespace tembra {

void dragFiles(QWidget &source, const QStringList &paths, const FileFactsReader &files,
               const QList<QImage> &pictures) {
    // Its end may come along with the press and move of another one, before it is over; Qt would keep that
    // one and never begin it.
    static bool isUnderWay = false;
    if (isUnderWay)
        return;
    const QScopedValueRollback<bool> underWay(isUnderWay, true);
    // By bytes: a name need not be text.
    QByteArray uris;
    int count = 0;
    for (const QString &path : paths) {
        if (!files.facts(path))
            continue;
        uris += fileUri(path) + "\r\n";
        ++count;
    }
    if (count == 0)
        return;
    auto *content = new QMimeData;
    content->setData(QStringLiteral("text/uri-list"), uris);
    auto *drag = new QDrag(&source);
    drag->setMimeData(content);
    const QPixmap preview = dragPreview(pictures, count, source.devicePixelRatioF());
    drag->setPixmap(preview);
    drag->setHotSpot({static_cast<int>(preview.deviceIndependentSize().width() / 2),
                      static_cast<int>(preview.deviceIndependentSize().height() / 2)});
    drag->exec(Qt::CopyAction);
}

} // namespace tembra
