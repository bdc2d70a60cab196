#pragma once

#include "shelf/ShelfTab.h"

#include <QWidget>

#include <vector>

namespace tembra {

class ShelfButton;

// The strip of tabs at the top of the open shelf.
class ShelfHeader final : public QWidget {
    Q_OBJECT

public:
    static constexpr int height = 44;

    explicit ShelfHeader(QWidget *parent);

    void apply(const std::vector<ShelfTab> &tabs, ShelfTab active);

Q_SIGNALS:
    void tabClicked(tembra::ShelfTab tab);
    void tabHovered(tembra::ShelfTab tab);
    void tabLeft(tembra::ShelfTab tab);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void build();
    [[nodiscard]] QRect group() const;

    std::vector<ShelfTab> m_tabs;
    std::vector<ShelfButton *> m_buttons;
};

} // namespace tembra
