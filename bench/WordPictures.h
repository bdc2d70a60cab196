#pragma once

#include <QImage>
#include <QRectF>
#include <QString>

#include <vector>

namespace tembra::bench {

// A picture and the words that are drawn on it. Image space.
struct WordPicture {
    struct Word {
        QString text;
        // Around the ink.
        QRectF box;
        int pixelSize = 0;
        bool isOnDark = false;
    };

    QImage image;
    std::vector<Word> words;
};

// A made-up desktop of light and dark windows with titles, lists, paragraphs, tables and buttons in the sizes
// of interfaces, 11 to 24 pixels; another for every number. Needs an application object.
[[nodiscard]] WordPicture wordPicture(QSize size, int number);

} // namespace tembra::bench
