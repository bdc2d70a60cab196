#pragma once

#include "platform/Thumbnails.h"
#include "shelf/CaptureNotification.h"

#include <QHash>
#include <QImage>
#include <QWidget>

#include <map>
#include <memory>
#include <optional>

namespace tembra {

class FileFactsReader;
class TembraButton;

// The notification: the newest captures as a small stack of pictures, beside a line of text and one of
// detail. The pictures come when they are made; until then their places are plain.
class CaptureNotificationView final : public QWidget {
    Q_OBJECT

public:
    CaptureNotificationView(Thumbnails &thumbnails, const FileFactsReader &files, QWidget *parent);

    void apply(const CaptureNotification &notification);

Q_SIGNALS:
    void undoClicked();
    // Somewhere else on it.
    void clicked();
    void hovered(bool isHovered);
    void dragBegan();
    void dragEnded();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void requestPreview(const QString &path);
    void paintPreviews(QPainter &painter) const;
    void paintOverflow(QPainter &painter) const;
    void paintText(QPainter &painter) const;

    Thumbnails &m_thumbnails;
    const FileFactsReader &m_files;
    CaptureNotification m_notification;
    TembraButton *m_undo;
    // Where the button went down; nothing when it is up, or once a drag began.
    std::optional<QPointF> m_pressed;
    QHash<QString, QImage> m_images;
    std::map<QString, std::unique_ptr<Thumbnails::Request>> m_requests;
};

} // namespace tembra
