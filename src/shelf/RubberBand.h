#pragma once

#include "shelf/FileTile.h"

#include <QSet>
#include <QWidget>

namespace tembra {

// The rectangle that the pointer draws over the grid to select what it touches. Lies over the tiles, in the
// document's points; the pointer goes through.
class RubberBand final : public QWidget {
    Q_OBJECT

public:
    explicit RubberBand(QWidget *parent);

    // `base` is what was selected before and stays so.
    void begin(QPoint origin, const QSet<FileTileID> &base);
    void stretchTo(QPoint point);
    void end();

    [[nodiscard]] bool isActive() const { return m_isActive; }
    [[nodiscard]] const QSet<FileTileID> &base() const { return m_base; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_isActive = false;
    QPoint m_origin;
    QSet<FileTileID> m_base;
};

} // namespace tembra
