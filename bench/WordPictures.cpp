#include "WordPictures.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QRandomGenerator>

#include <array>

namespace tembra::bench {

namespace {

constexpr std::array vocabulary{
    u"Settings",
    u"Downloads",
    u"General",
    u"account",
    u"password",
    u"the",
    u"of",
    u"and",
    u"to",
    u"is",
    u"a",
    u"with",
    u"Invoice",
    u"2024-03-18",
    u"14:05",
    u"$1,249.00",
    u"98%",
    u"report.pdf",
    u"Cancel",
    u"Continue",
    u"network",
    u"connection",
    u"was",
    u"closed",
    u"by",
    u"remote",
    u"host.",
    u"Please",
    u"check",
    u"your",
    u"internet",
    u"and",
    u"try",
    u"again.",
    u"Build",
    u"finished",
    u"in",
    u"3.42",
    u"seconds",
    u"Anna",
    u"Kowalski",
    u"replied:",
    u"ok,",
    u"see",
    u"you",
    u"tomorrow",
    u"Zürich",
    u"meeting",
    u"notes",
    u"release",
    u"branch",
    u"main",
    u"merged",
    u"#4821",
    u"fix:",
    u"memory",
    u"leak",
    u"editor",
    u"window",
    u"anna@mail.org",
    u"Untitled",
    u"Document",
    u"Preview",
    u"Selection",
    u"File",
    u"Edit",
    u"View",
    u"Help",
    u"Search",
    u"results",
    u"for",
    u"quarterly",
    u"budget",
    u"total",
    u"shipping",
    u"address",
    u"+48",
    u"555-0147",
    u"order",
    u"confirmed",
    u"Version",
    u"12.0.1",
    u"available",
    u"update",
    u"restart",
    u"required",
    u"Display",
    u"brightness",
    u"Bluetooth",
    u"keyboard",
    u"shortcuts",
    u"library",
    u"collection",
    u"/usr/bin",
    u"192.168.0.12",
    u"Monday",
    u"September",
    u"weather",
    u"temperature",
    u"21°C",
    u"cloudy",
    u"(draft)",
    u"signature",
    u"customer",
    u"support",
    u"feedback",
    u"language",
    u"English",
    u"notifications",
    u"enabled",
    u"Workspace",
    u"members",
};

class Desktop {
public:
    Desktop(QSize size, int number)
        : m_image(size, QImage::Format_RGB32), m_painter(&m_image), m_random(static_cast<quint32>(number)) {}

    WordPicture paint() {
        QLinearGradient wall(0, 0, m_image.width(), m_image.height());
        wall.setColorAt(0, QColor::fromHsv(below(360), 120, 90));
        wall.setColorAt(1, QColor::fromHsv(below(360), 90, 190));
        m_painter.fillRect(m_image.rect(), wall);
        m_painter.setRenderHint(QPainter::Antialiasing);
        const QSize window((m_image.width() - 60) / 2, (m_image.height() - 60) / 2);
        for (int i = 0; i < 4; ++i) {
            const QPoint corner(20 + i % 2 * (window.width() + 20), 20 + i / 2 * (window.height() + 20));
            paintWindow(QRect(corner, window), i == 0 || i == 3, i);
        }
        m_painter.end();
        return {m_image, m_words};
    }

private:
    struct Look {
        QColor ink;
        QColor faint;
        bool isDark = false;
    };

    int below(int limit) { return m_random.bounded(limit); }
    QString word() { return QString::fromUtf16(vocabulary[static_cast<size_t>(below(vocabulary.size()))]); }

    void paintWindow(const QRect &window, bool isDark, int kind) {
        const Look look{isDark ? QColor(226, 226, 230) : QColor(28, 28, 32),
                        isDark ? QColor(150, 150, 158) : QColor(112, 112, 120), isDark};
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(isDark ? QColor(32, 33, 37) : QColor(252, 252, 253));
        m_painter.drawRoundedRect(window, 10, 10);
        m_painter.fillRect(window.adjusted(0, 10, 0, 40 - window.height()),
                           isDark ? QColor(46, 47, 53) : QColor(232, 233, 238));
        paintLine({window.left() + 300.0, window.top() + 26.0}, 3, 13, look.ink, isDark);
        paintSidebar({window.left(), window.top() + 40, 170, window.height() - 52}, look);
        const QRect content = window.adjusted(200, 60, -20, -60);
        paintLine({double(content.left()), content.top() + 22.0}, 2, 24, look.ink, isDark);
        if (kind % 2 == 0)
            paintParagraphs(content.adjusted(0, 40, 0, 0), look);
        else
            paintTable(content.adjusted(0, 40, 0, 0), look);
        paintButtons({window.right() - 260, window.bottom() - 44, 240, 28}, look);
    }

    void paintSidebar(const QRect &side, const Look &look) {
        m_painter.fillRect(side, look.isDark ? QColor(26, 27, 30) : QColor(243, 244, 247));
        for (int row = side.top() + 12; row < side.bottom() - 20; row += 26) {
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(QColor::fromHsv(below(360), 150, 210));
            m_painter.drawRoundedRect(side.left() + 12, row, 16, 16, 4, 4);
            paintLine({side.left() + 38.0, row + 13.0}, 1 + below(2), 13, look.ink, look.isDark);
        }
    }

    void paintParagraphs(const QRect &place, const Look &look) {
        const std::array sizes{11, 12, 13, 14, 16};
        int top = place.top();
        for (size_t i = 0; top < place.bottom() - 24; ++i) {
            const int size = sizes[i % sizes.size()];
            for (int line = 0; line < 3 && top < place.bottom() - 24; ++line, top += size * 3 / 2)
                paintLine({double(place.left()), double(top + size)}, place.width() / (size * 5), size,
                          i % 3 == 1 ? look.faint : look.ink, look.isDark);
            top += 10;
        }
    }

    void paintTable(const QRect &place, const Look &look) {
        for (int row = 0, top = place.top(); top < place.bottom() - 22; ++row, top += 22) {
            if (row % 2 == 0)
                m_painter.fillRect(place.left() - 6, top, place.width() + 12, 22,
                                   look.isDark ? QColor(40, 41, 46) : QColor(245, 246, 249));
            for (int column = 0; column < 4; ++column)
                paintLine({place.left() + column * place.width() / 4.0, top + 16.0}, 1 + below(2),
                          row == 0 ? 11 : 13, column == 3 ? look.faint : look.ink, look.isDark);
        }
    }

    void paintButtons(const QRect &place, const Look &look) {
        m_painter.setPen(QPen(look.faint, 1));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRoundedRect(QRectF(place.left(), place.top() + 0.5, 110, 28), 6, 6);
        paintLine({place.left() + 26.0, place.top() + 19.0}, 1, 13, look.ink, look.isDark);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(QColor(30, 110, 235));
        m_painter.drawRoundedRect(QRectF(place.left() + 124, place.top(), 116, 28), 6, 6);
        paintLine({place.left() + 140.0, place.top() + 19.0}, 1, 13, Qt::white, true);
    }

    void paintLine(QPointF baseline, int count, int pixelSize, const QColor &ink, bool isOnDark) {
        QFont font(pixelSize == 14 ? QStringLiteral("DejaVu Sans") : QStringLiteral("Inter"));
        font.setPixelSize(pixelSize);
        const QFontMetricsF metrics(font, &m_image);
        m_painter.setFont(font);
        m_painter.setPen(ink);
        for (int i = 0; i < count; ++i) {
            const QString text = word();
            m_painter.drawText(baseline, text);
            m_words.push_back(
                {text, metrics.tightBoundingRect(text).translated(baseline), pixelSize, isOnDark});
            baseline.rx() += metrics.horizontalAdvance(text) + metrics.horizontalAdvance(u' ');
        }
    }

    QImage m_image;
    QPainter m_painter;
    QRandomGenerator m_random;
    std::vector<WordPicture::Word> m_words;
};

} // namespace

WordPicture wordPicture(QSize size, int number) {
    return Desktop(size, number).paint();
}

} // namespace tembra::bench
