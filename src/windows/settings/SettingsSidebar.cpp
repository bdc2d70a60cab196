#include "windows/settings/SettingsSidebar.h"

#include "controls/Typography.h"
#include "windows/settings/SettingsSidebarDelegate.h"

namespace tembra {

SettingsSidebar::SettingsSidebar(QWidget *parent) : QListWidget(parent) {
    setAccessibleName(tr("Settings"));
    setFrameShape(QFrame::NoFrame);
    setFont(typography::font(typography::bodySize));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_Hover);
    setItemDelegate(new SettingsSidebarDelegate(*this));
    for (const SettingsPageId page : allSettingsPages)
        addItem(title(page));
    setCurrentRow(0);
    connect(this, &QListWidget::currentRowChanged, this, [this] { Q_EMIT chosen(currentPage()); });
    // Assistive programs select; else what is selected becomes current by itself, a moment later.
    const auto follow = [this] {
        if (!selectedItems().isEmpty() && selectedItems().constFirst() != currentItem())
            setCurrentItem(selectedItems().constFirst());
    };
    connect(this, &QListWidget::itemSelectionChanged, this, follow, Qt::QueuedConnection);
    // Also the one that is current already: a search is left so.
    connect(this, &QListWidget::clicked, this, [this] { Q_EMIT chosen(currentPage()); });
}

void SettingsSidebar::setCurrentPage(SettingsPageId page) {
    setCurrentRow(static_cast<int>(page));
}

SettingsPageId SettingsSidebar::currentPage() const {
    return allSettingsPages.at(static_cast<size_t>(std::max(0, currentRow())));
}

void SettingsSidebar::setPageFound(SettingsPageId page, bool isFound) {
    item(static_cast<int>(page))->setData(SettingsSidebarDelegate::isGreyRole, !isFound);
}

} // namespace tembra
