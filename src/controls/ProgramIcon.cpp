#include "controls/ProgramIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace tembra {

namespace {

// Drawn when a window asks for it.
class ProgramIconEngine final : public QIconEngine {
public:
    void paint(QPainter *painter, const QRect &rectangle, QIcon::Mode, QIcon::State) override {
        QSvgRenderer(QStringLiteral(":/tembra/program.svg")).render(painter, rectangle);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        const int side = std::min(size.width(), size.height());
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        return {{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}, {128, 128}};
    }
    bool isNull() override { return false; }
    [[nodiscard]] QIconEngine *clone() const override { return new ProgramIconEngine; }
};

} // namespace

QIcon programIcon() {
    return QIcon::fromTheme(QStringLiteral("app.tembra.Tembra"), QIcon(new ProgramIconEngine));
}

} // namespace tembra
