#pragma once

#include "base/Generation.h"
#include "platform/Thumbnails.h"
#include "shelf/FilePresentation.h"
#include "shelf/FileThumbnail.h"
#include "shelf/FileTile.h"

#include <QPropertyAnimation>
#include <QStringList>
#include <QWidget>

#include <memory>

namespace tembra {

// A file as a tile of 104 × 112 points: a picture of 64 points with the name under it. Cells are reused; a
// picture that comes late for the file shown before is dropped. The pointer goes through to the collection.
class FileItemCell : public QWidget {
    Q_OBJECT

public:
    static constexpr QRect iconFrame{20, 4, 64, 64};
    // The selection is drawn this far beyond the tile.
    static constexpr int bleed = 2;

    FileItemCell(const FilePresentation &presentation, QWidget *parent);

    // Shows the file: its picture from the cache, else the fallback or an icon until the picture is there.
    void configure(QString path, QString revision, QImage fallback = {});
    // Shows the tile; a file that changed keeps its old picture until the new one is there.
    virtual void setTile(const FileTile &tile);
    // Forgets the file and takes back the request for its picture.
    void prepareForReuse();
    // Where the tile lies in its parent; with `moves` it goes there from where it is, unless motion is
    // reduced.
    void setItemRect(const QRect &rectangle, bool moves = false);

    void setShowsFileName(bool shows);
    void setSelected(bool selected);
    void setHighlighted(bool highlighted);
    // The keyboard acts on this tile.
    void setCurrent(bool current);

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] const QString &revision() const { return m_revision; }
    [[nodiscard]] bool isSelected() const { return m_selected; }
    [[nodiscard]] bool isShowingThumbnail() const { return m_thumbnail && m_thumbnail->isThumbnail; }
    [[nodiscard]] const QStringList &nameLines() const { return m_nameLines; }
    // What is drawn now; null while that is an icon.
    [[nodiscard]] QImage image() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    // Draws what lies over the picture, in the tile's coordinates.
    virtual void paintBadges(QPainter &painter);
    // Draws what stands for the file until there is a picture.
    virtual void paintKindIcon(QPainter &painter);
    void setOpacity(qreal opacity);

private:
    void requestThumbnail();
    void receive(const QString &key, const Result<Thumbnails::Thumbnail> &thumbnail);
    void paintSelection(QPainter &painter) const;
    void paintPicture(QPainter &painter);
    void paintName(QPainter &painter) const;
    void assign(bool &state, bool value);

    const FilePresentation m_presentation;
    QPropertyAnimation m_motion;
    Generation m_generation;
    std::unique_ptr<Thumbnails::Request> m_request;
    double m_requestedScale = 0;

    QString m_path;
    QString m_revision;
    QStringList m_nameLines;
    QImage m_fallback;
    std::shared_ptr<const FileThumbnail> m_thumbnail;
    bool m_showsFileName = true;
    bool m_selected = false;
    bool m_highlighted = false;
    bool m_current = false;
    qreal m_opacity = 1;
};

} // namespace tembra
