#include "editor/chrome/EditorSizeControl.h"

#include "controls/DropdownList.h"
#include "editor/chrome/EditorFlatButton.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

constexpr int leastWidth = 52;

QString inPixels(double size) {
    return EditorSizeControl::tr("%1 px").arg(QLocale().toString(size, 'g', 4));
}

} // namespace

EditorSizeControl::EditorSizeControl(QWidget *parent)
    : EditorControlRow(parent),
      m_button(new EditorFlatButton(inPixels(m_size), tr("Size"), EditorFlatButton::Mark::opens, this)) {
    setAccessibleName(tr("Size"));
    m_button->setLeastWidth(leastWidth);
    connect(m_button, &EditorFlatButton::clicked, this, &EditorSizeControl::open);
    connect(m_button, &EditorFlatButton::stepped, this, &EditorSizeControl::stepped);
    add(m_button, 0);
}

void EditorSizeControl::setSize(double size, double smallest, double largest) {
    m_size = size;
    m_smallest = smallest;
    m_largest = largest;
    m_button->setText(inPixels(size));
    m_button->setAccessibleDescription(inPixels(size));
    layOut();
}

std::vector<double> EditorSizeControl::offered() const {
    constexpr std::array usual{1,  2,  3,  4,  5,  7,  10,  14,  18,  24,  32,
                               40, 48, 56, 64, 80, 96, 128, 160, 192, 256, 320};
    std::vector<double> sizes{m_size};
    std::ranges::copy_if(usual, std::back_inserter(sizes), [this](double size) {
        return size >= m_smallest && size <= m_largest && size != m_size;
    });
    std::ranges::sort(sizes);
    return sizes;
}

void EditorSizeControl::open() {
    const std::vector<double> sizes = offered();
    QStringList titles;
    for (const double size : sizes)
        titles += inPixels(size);
    const auto current = std::ranges::find(sizes, m_size) - sizes.begin();
    auto *list = new DropdownList(titles, static_cast<int>(current), m_button);
    connect(list, &DropdownList::chosen, this,
            [this, sizes](int index) { Q_EMIT chosen(sizes[static_cast<size_t>(index)]); });
    connect(list, &DropdownList::closed, m_button, qOverload<>(&QWidget::update));
    list->popUp();
}

} // namespace tembra
