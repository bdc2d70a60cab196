#pragma once

#include <QFont>

QT_BEGIN_NAMESPACE
class QColor;
class QLabel;
class QWidget;
QT_END_NAMESPACE

namespace tembra {

// A centred line of plain text in the program's type; owned by the parent.
[[nodiscard]] QLabel *makeTextLabel(QWidget *parent, int size, QFont::Weight weight, const QColor &color);

} // namespace tembra
