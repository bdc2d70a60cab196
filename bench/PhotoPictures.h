#pragma once

#include <QImage>

namespace tembra::bench {

// A made-up photograph: soft light, things with edges, texture, and a sensor's noise that differs from pixel
// to pixel; another for every number.
[[nodiscard]] QImage photoPicture(QSize size, int number);

} // namespace tembra::bench
