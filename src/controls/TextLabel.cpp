#include "controls/TextLabel.h"

#include "controls/AccessibleControls.h"
#include "controls/Typography.h"

#include <QLabel>

namespace tembra {

namespace {

constexpr char headingProperty[] = "tembraHeading";

} // namespace

QLabel *makeTextLabel(QWidget *parent, int size, QFont::Weight weight, const QColor &color) {
    auto *label = new QLabel(parent);
    label->setFont(typography::font(size, weight));
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, color);
    label->setPalette(colors);
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void makeHeading(QLabel &label) {
    installAccessibleControls();
    label.setProperty(headingProperty, true);
}

bool isHeading(const QLabel &label) {
    return label.property(headingProperty).toBool();
}

} // namespace tembra
