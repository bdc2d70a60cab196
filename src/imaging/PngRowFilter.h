#pragma once

#include <QImage>

#include <span>

namespace tembra {

// Prepares an image's rows for compression as PNG has them (ISO/IEC 15948, 9): three bytes a pixel, or four
// when one of them is not opaque, behind the filter that was used. What is drawn, as interfaces are, is left
// as it is, so that repetitions stay; what looks like a photograph is made differences.
class PngRowFilter {
public:
    explicit PngRowFilter(const QImage &image);

    [[nodiscard]] int height() const { return m_image.height(); }
    [[nodiscard]] int channels() const { return m_channels; }
    [[nodiscard]] bool looksLikePhotograph() const { return m_looksLikePhotograph; }
    // Bytes of a row with the one that names its filter.
    [[nodiscard]] std::size_t stride() const {
        return 1 + static_cast<std::size_t>(m_channels) * static_cast<std::size_t>(m_image.width());
    }
    // Fills `rows` from the image's row `first` on. Any thread.
    void write(int first, std::span<unsigned char> rows) const;

private:
    [[nodiscard]] bool isMadeDifferences(int y) const;

    QImage m_image;
    int m_channels = 3;
    bool m_looksLikePhotograph = false;
    bool m_looksDrawn = false;
};

} // namespace tembra
