#pragma once

#include "recognition/model/OCRText.h"

#include <QStringList>

namespace tembra {

// The lines as an image has them, below each other and broken on purpose; an empty one is a gap.
inline OCRText recognizedText(const QStringList &lines) {
    constexpr double lineHeight = 16;
    constexpr double linePitch = 22;
    constexpr double letterWidth = 8;
    OCRText text;
    double top = 0;
    for (const QString &line : lines) {
        double left = 0;
        TextRecognizer::Line recognized;
        for (const QString &word : line.split(u' ', Qt::SkipEmptyParts)) {
            const double width = letterWidth * static_cast<double>(word.size());
            recognized.words.push_back({word, {left, top, width, lineHeight}});
            left += width + letterWidth;
        }
        if (!recognized.words.empty())
            text.lines.push_back(std::move(recognized));
        top += linePitch;
    }
    return text;
}

} // namespace tembra
