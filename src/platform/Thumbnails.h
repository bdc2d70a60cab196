#pragma once

#include "base/Result.h"

#include <QImage>
#include <QString>

#include <functional>
#include <memory>

namespace tembra {

// Makes small pictures of files. Main thread: requests and answers; the work is done elsewhere, the latest
// request of the highest urgency first.
class Thumbnails {
public:
    class Request {
    public:
        virtual ~Request() = default;
    };

    struct Thumbnail {
        // At most the size asked for times the scale, with the file's aspect; its device pixel ratio is the
        // scale. Null where nothing can make a picture of this kind of file: an icon stands for it.
        QImage image;
        // A picture of the content, not of the kind of file.
        bool isThumbnail = false;
    };

    virtual ~Thumbnails() = default;
    // `sidePoints` is the side of the square that the picture is to fit. Dropping the handle cancels the
    // request. Errors have the domain "Tembra.ScreenshotThumbnail".
    [[nodiscard]] virtual std::unique_ptr<Request> request(const QString &path, double sidePoints,
                                                           double scale,
                                                           std::function<void(Result<Thumbnail>)> onDone) = 0;
};

} // namespace tembra
