#include "InterfacePictures.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRandomGenerator>

namespace tembra::bench {

namespace {

class Desktop {
public:
    Desktop(QImage &image, int number)
        : m_image(image), m_painter(&image), m_random(static_cast<quint32>(number)) {}

    void paint() {
        QLinearGradient wall(0, 0, m_image.width(), m_image.height());
        wall.setColorAt(0, colour(60));
        wall.setColorAt(1, colour(180));
        m_painter.fillRect(m_image.rect(), wall);
        m_painter.setRenderHint(QPainter::Antialiasing);
        for (int window = 0; window < 4; ++window)
            paintWindow(QRect(below(m_image.width() / 2), below(m_image.height() / 2), m_image.width() / 2,
                              m_image.height() / 2));
    }

private:
    int below(int limit) { return m_random.bounded(limit); }
    QColor colour(int value) { return QColor::fromHsv(below(360), 90, value); }

    void paintWindow(const QRect &window) {
        const bool isDark = below(2) == 0;
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(isDark ? QColor(36, 38, 42) : QColor(250, 250, 250));
        m_painter.drawRoundedRect(window, 9, 9);
        m_painter.fillRect(window.adjusted(0, 9, 0, 36 - window.height()),
                           isDark ? QColor(52, 54, 60) : colour(230));
        m_painter.setClipRect(window);
        const QRect side(window.left(), window.top() + 36, 160, window.height() - 36);
        for (int row = side.top() + 10; row < side.bottom() - 20; row += 26) {
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(colour(200));
            m_painter.drawRoundedRect(side.left() + 10, row, 16, 16, 4, 4);
            paintWords(QRect(side.left() + 34, row, 120, 16), isDark);
        }
        const QRect content = window.adjusted(180, 50, -14, -14);
        for (int row = content.top(); row < content.bottom(); row += 19)
            paintWords(QRect(content.left(), row, content.width(), 18), isDark);
        if (below(3) == 0)
            paintPhotograph(QRect(content.center(), QSize(240, 160)));
        m_painter.setClipping(false);
    }

    void paintWords(const QRect &line, bool isDark) {
        QString words;
        const int length = 6 + below(std::max(1, line.width() / 8));
        for (int i = 0; i < length; ++i)
            words += below(6) == 0 ? u' ' : QChar(u'a' + below(26));
        m_painter.setPen(below(5) == 0 ? colour(160) : isDark ? QColor(225, 225, 225) : QColor(30, 30, 30));
        m_painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, words);
    }

    void paintPhotograph(const QRect &place) {
        QImage grain(place.size(), QImage::Format_RGB32);
        for (int y = 0; y < grain.height(); ++y) {
            for (int x = 0; x < grain.width(); ++x)
                grain.setPixel(x, y,
                               qRgb(x / 2 + below(12), 90 + y / 2 + below(12), 140 - x / 4 + below(12)));
        }
        m_painter.drawImage(place.topLeft(), grain);
    }

    QImage &m_image;
    QPainter m_painter;
    QRandomGenerator m_random;
};

} // namespace

QImage interfacePicture(QSize size, int number) {
    QImage image(size, QImage::Format_RGB32);
    Desktop(image, number).paint();
    return image;
}

} // namespace tembra::bench
