#pragma once

#include "windows/settings/SettingsPageId.h"

#include <QListWidget>

namespace tembra {

// The names of the pages, one of which is current.
class SettingsSidebar final : public QListWidget {
    Q_OBJECT

public:
    explicit SettingsSidebar(QWidget *parent = nullptr);

    void setCurrentPage(SettingsPageId page);
    [[nodiscard]] SettingsPageId currentPage() const;
    // Greys the pages on which a search finds nothing.
    void setPageFound(SettingsPageId page, bool isFound);

Q_SIGNALS:
    void chosen(tembra::SettingsPageId page);
};

} // namespace tembra
