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

// Assistive programs are told that it is what the page is called; before it has its text.
void makeHeading(QLabel &label);
[[nodiscard]] bool isHeading(const QLabel &label);

} // namespace tembra
