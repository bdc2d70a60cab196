#pragma once

#include <QImage>

namespace tembra::bench {

// A made-up desktop with windows, lists, lines of text and a photograph, as captures show; another for every
// number. Needs an application object.
[[nodiscard]] QImage interfacePicture(QSize size, int number);

} // namespace tembra::bench
