#include "imaging/AreaAverage.h"
#include "imaging/PngFilter.h"
#include "imaging/PngRows.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace tembra {

namespace {

unsigned char scaled(unsigned value, unsigned alpha) {
    const unsigned product = value * alpha;
    return static_cast<unsigned char>((product + (product >> 8) + 0x80) >> 8);
}

// How many rows one thread is done with, for another that follows it.
class RowProgress {
public:
    void advance(std::size_t rows) {
        // Waking for each row would cost more than the row.
        constexpr std::size_t batch = 32;
        if (rows % batch == 0)
            publish(rows, false);
        m_reached = rows;
    }
    void end() { publish(m_reached, true); }
    // Whether there is such a row; waits while that is not known.
    [[nodiscard]] bool awaitRow(std::size_t row) {
        if (row < m_known)
            return true;
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return row < m_published || m_hasEnded; });
        m_known = m_published;
        return row < m_known;
    }

private:
    void publish(std::size_t rows, bool hasEnded) {
        const std::scoped_lock lock(m_mutex);
        m_published = rows;
        m_hasEnded = hasEnded;
        m_changed.notify_one();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::size_t m_published = 0;
    bool m_hasEnded = false;
    // Of the thread that goes ahead, and of the one that follows.
    std::size_t m_reached = 0;
    std::size_t m_known = 0;
};

// Turns rows as the file has them into rows that can be averaged.
class RowPreparer {
public:
    explicit RowPreparer(const PngFile &file)
        : m_file(file),
          m_prepared(static_cast<std::size_t>(file.head.size.width()) *
                     static_cast<std::size_t>(channels())) {
        std::ranges::transform(file.palette, m_palette.begin(),
                               [](QRgb colour) { return qPremultiply(colour); });
    }

    [[nodiscard]] int channels() const {
        return m_file.head.kind == PngFile::Kind::Palette ? 4 : m_file.head.channels();
    }
    [[nodiscard]] bool isTransparent() const { return m_isTransparent; }

    // Null when a pixel has no colour.
    const unsigned char *prepare(const unsigned char *row) {
        switch (m_file.head.kind) {
        case PngFile::Kind::Grey:
        case PngFile::Kind::Rgb:
            return row;
        case PngFile::Kind::Palette:
            return lookUp(row);
        case PngFile::Kind::GreyAlpha:
            return premultiply<2>(row);
        case PngFile::Kind::Rgba:
            return premultiply<4>(row);
        }
        Q_UNREACHABLE();
    }

private:
    template <std::size_t channels>
    const unsigned char *premultiply(const unsigned char *row) {
        const std::size_t size = m_prepared.size();
        unsigned char bitsOfAll = 255;
        for (std::size_t i = channels - 1; i < size; i += channels)
            bitsOfAll &= row[i];
        if (bitsOfAll == 255)
            return row;
        m_isTransparent = true;
        for (std::size_t i = 0; i < size; i += channels) {
            const unsigned char alpha = row[i + channels - 1];
            for (std::size_t c = 0; c + 1 < channels; ++c)
                m_prepared[i + c] = scaled(row[i + c], alpha);
            m_prepared[i + channels - 1] = alpha;
        }
        return m_prepared.data();
    }

    const unsigned char *lookUp(const unsigned char *row) {
        m_isTransparent = m_file.hasTransparentColours;
        for (std::size_t i = 0; i < m_prepared.size(); i += 4) {
            const unsigned char index = *row++;
            if (index >= m_file.colours)
                return nullptr;
            const QRgb colour = m_palette[index];
            m_prepared[i] = static_cast<unsigned char>(qRed(colour));
            m_prepared[i + 1] = static_cast<unsigned char>(qGreen(colour));
            m_prepared[i + 2] = static_cast<unsigned char>(qBlue(colour));
            m_prepared[i + 3] = static_cast<unsigned char>(qAlpha(colour));
        }
        return m_prepared.data();
    }

    const PngFile &m_file;
    std::array<QRgb, 256> m_palette{};
    std::vector<unsigned char> m_prepared;
    bool m_isTransparent = false;
};

template <int channels>
QRgb pixel(const unsigned char *channel) {
    if constexpr (channels == 1)
        return qRgb(channel[0], channel[0], channel[0]);
    else if constexpr (channels == 2)
        return qRgba(channel[0], channel[0], channel[0], channel[1]);
    else if constexpr (channels == 3)
        return qRgb(channel[0], channel[1], channel[2]);
    else
        return qRgba(channel[0], channel[1], channel[2], channel[3]);
}

template <int channels>
void fill(std::span<QRgb> line, const unsigned char *channel) {
    for (QRgb &target : line) {
        target = pixel<channels>(channel);
        channel += channels;
    }
}

// A picture that is made from the top, row by row. Its alpha is premultiplied until all of it is there.
class RisingImage {
public:
    RisingImage(QSize size, int channels)
        : m_image(size, QImage::Format_ARGB32_Premultiplied),
          m_line(reinterpret_cast<QRgb *>(m_image.bits())),
          m_fill(fillers[static_cast<std::size_t>(channels - 1)]) {}

    [[nodiscard]] bool isNull() const { return m_image.isNull(); }
    void add(const unsigned char *row) {
        const auto width = static_cast<std::size_t>(m_image.width());
        m_fill({m_line, width}, row);
        m_line += width;
    }
    [[nodiscard]] QImage finished(bool isTransparent) {
        if (isTransparent)
            return std::move(m_image).convertToFormat(QImage::Format_ARGB32);
        m_image.reinterpretAsFormat(QImage::Format_RGB32);
        return std::move(m_image);
    }

private:
    static constexpr std::array fillers{fill<1>, fill<2>, fill<3>, fill<4>};

    QImage m_image;
    QRgb *m_line;
    void (*m_fill)(std::span<QRgb>, const unsigned char *);
};

} // namespace

std::optional<QImage> reducedImageOfRows(const PngFile &file, std::span<unsigned char> rows, QSize target) {
    const std::size_t stride = file.head.stride();
    const std::vector<unsigned char> zeros(stride);
    RowPreparer preparer(file);
    AreaAverage averages(file.head.size, target, preparer.channels());
    RisingImage image(target, preparer.channels());
    if (image.isNull())
        return std::nullopt;
    bool isSound = true;
    // Rows are averaged on a thread of their own while the next are undone.
    RowProgress undone;
    std::thread averaging([&] {
        for (std::size_t row = 0; undone.awaitRow(row); ++row) {
            const unsigned char *prepared = preparer.prepare(rows.data() + row * stride + 1);
            isSound = isSound && prepared;
            const unsigned char *averaged = isSound ? averages.add(prepared) : nullptr;
            if (averaged)
                image.add(averaged);
        }
    });
    const unsigned char *above = zeros.data();
    std::size_t count = 0;
    bool isUndone = true;
    for (; isUndone && count * stride < rows.size(); ++count) {
        unsigned char *row = rows.data() + count * stride;
        isUndone = undoPngFilter(row, above, stride - 1, file.head.channels());
        above = row + 1;
        undone.advance(count + (isUndone ? 1 : 0));
    }
    undone.end();
    averaging.join();
    if (!isUndone || !isSound)
        return std::nullopt;
    return image.finished(preparer.isTransparent());
}

} // namespace tembra
