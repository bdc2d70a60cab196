#include "windows/settings/SettingsWindowController.h"

#include "windows/settings/AboutSettingsPage.h"
#include "windows/settings/AutoCleanQuestion.h"
#include "windows/settings/DoctorSettingsPage.h"
#include "windows/settings/EditorSettingsPage.h"
#include "windows/settings/FileTraySettingsPage.h"
#include "windows/settings/GeneralSettingsPage.h"
#include "windows/settings/SettingsWindow.h"
#include "windows/settings/ShortcutSettingsPage.h"

namespace tembra {

SettingsWindowController::SettingsWindowController(Services services) : m_services(std::move(services)) {}

SettingsWindowController::~SettingsWindowController() = default;

void SettingsWindowController::show(std::optional<SettingsPageId> page) {
    if (!m_window) {
        m_window = makeWindow();
        m_window->showPage(m_page);
    }
    if (page)
        m_window->showPage(*page);
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void SettingsWindowController::close() {
    if (m_window)
        m_window->close();
}

std::optional<SettingsPageId> SettingsWindowController::currentPage() const {
    return m_window ? std::optional(m_window->currentPage()) : std::nullopt;
}

bool SettingsWindowController::isShowing(SettingsPageId page) const {
    return m_window && m_window->isShowing(page);
}

std::unique_ptr<SettingsWindow> SettingsWindowController::makeWindow() {
    std::vector<SettingsPage *> pages;
    for (const SettingsPageId page : allSettingsPages)
        pages.push_back(makePage(page));
    auto window = std::make_unique<SettingsWindow>(std::move(pages));
    // The screenshot tool's own window may have been the other one.
    connect(window.get(), &SettingsWindow::activated, this,
            [this] { m_services.settings.refreshScreenshotPreview(); });
    connect(window.get(), &SettingsWindow::closed, this, [this] {
        m_page = m_window->currentPage();
        // It is closing just now.
        m_window.release()->deleteLater();
    });
    return window;
}

SettingsPage *SettingsWindowController::makePage(SettingsPageId id) {
    AppSettings &settings = m_services.settings;
    switch (id) {
    case SettingsPageId::general: {
        auto *page = new GeneralSettingsPage(settings, m_services.loginItem);
        connect(page, &GeneralSettingsPage::failed, this, m_services.onError);
        return page;
    }
    case SettingsPageId::screenshots: {
        auto *page = new ScreenshotsSettingsPage(settings, screenshotActions());
        connect(page, &ScreenshotsSettingsPage::failed, this, m_services.onError);
        return page;
    }
    case SettingsPageId::editor:
        return new EditorSettingsPage(settings, m_services.defaults);
    case SettingsPageId::fileTray:
        return new FileTraySettingsPage(settings);
    case SettingsPageId::imageToText:
        return new ImageToTextSettingsPage(settings, m_services.imageToText);
    case SettingsPageId::shortcut:
        return new ShortcutSettingsPage(settings, m_services.shortcut, m_services.hotKeys);
    case SettingsPageId::doctor:
        return new DoctorSettingsPage(settings, m_services.examine);
    case SettingsPageId::about:
        break;
    }
    auto *page = new AboutSettingsPage(settings, m_services.updater);
    connect(page, &AboutSettingsPage::quitRequested, this, m_services.onQuit);
    return page;
}

ScreenshotsSettingsPage::Actions SettingsWindowController::screenshotActions() {
    ScreenshotsSettingsPage::Actions actions = m_services.screenshots;
    if (!actions.autoClean.ask) {
        actions.autoClean.ask = [this](const AutoCleanChange::Question &question,
                                       std::function<void(bool)> decide) {
            if (m_window)
                showAutoCleanQuestion(*m_window, question, std::move(decide));
        };
    }
    return actions;
}

} // namespace tembra
