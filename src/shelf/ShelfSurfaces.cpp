#include "shelf/ShelfSurfaces.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <algorithm>

namespace tembra {

namespace {

bool contains(const std::vector<ShelfDisplay> &displays, std::uint32_t identifier) {
    return std::ranges::find(displays, identifier, &ShelfDisplay::identifier) != displays.end();
}

} // namespace

ShelfSurfaces::ShelfSurfaces(const ShelfServices &services, std::function<QWidget &()> content)
    : m_services(services), m_content(std::move(content)) {}

ShelfSurfaces::~ShelfSurfaces() = default;

void ShelfSurfaces::reconcileDisplayWindows(DisplayPreference preference) {
    const auto displays =
        ShelfDisplaySelection::admitted(ShelfDisplay::connected(m_services.displays), preference);
    for (const ShelfDisplay &display : displays) {
        const auto found = m_windows.find(display.identifier);
        if (found == m_windows.end())
            add(display);
        else
            found->second->setDisplay(display);
    }
    const bool mustMove = !m_active || !contains(displays, m_active->display().identifier);
    if (mustMove && !displays.empty() && m_presentation.kind != ShelfPresentation::Kind::collapsed)
        moveTo(*m_windows.at(displays.front().identifier));
    removeVanished(displays);
}

void ShelfSurfaces::moveTo(ShelfDisplayWindow &window) {
    const bool hadKeyboard = m_active && m_active->hasKeyboardFocus();
    const QPointer<QWidget> focused = hadKeyboard ? QApplication::focusWidget() : nullptr;
    transferContent(window);
    window.present(m_presentation, false);
    if (hadKeyboard)
        window.takeKeyboardFocus();
    if (focused)
        focused->setFocus();
}

void ShelfSurfaces::removeVanished(const std::vector<ShelfDisplay> &displays) {
    std::erase_if(m_windows, [&](const auto &entry) {
        const bool remains = contains(displays, entry.first);
        if (!remains && m_active == entry.second.get())
            m_active = nullptr;
        return !remains;
    });
}

void ShelfSurfaces::removeAll() {
    m_active = nullptr;
    m_windows.clear();
    m_presentation = ShelfPresentation::collapsed();
}

void ShelfSurfaces::compositingChanged() {
    for (const auto &[identifier, window] : m_windows)
        window->compositingChanged();
}

void ShelfSurfaces::add(const ShelfDisplay &display) {
    auto window = std::make_unique<ShelfDisplayWindow>(display, m_services);
    window->onPointerActivity = [this] { onPointerActivity(); };
    window->onActivationPressed = [this] { onActivationPressed(); };
    window->onEscape = [this] { onEscape(); };
    window->onKey = [this](const QKeyEvent &event) { return onKey(event); };
    m_windows.emplace(display.identifier, std::move(window));
}

bool ShelfSurfaces::activateForOpening(DisplayPreference preference, ScreenPoint pointer) {
    const auto display =
        ShelfDisplaySelection::opening(ShelfDisplay::connected(m_services.displays), preference, pointer);
    const auto found = display ? m_windows.find(display->identifier) : m_windows.end();
    if (found == m_windows.end())
        return false;
    m_selection.chosenID = display->identifier;
    transferContent(*found->second);
    return true;
}

void ShelfSurfaces::transferContent(ShelfDisplayWindow &window) {
    if (m_active && m_active != &window)
        m_active->present(ShelfPresentation::collapsed(), false);
    m_active = &window;
    window.setContent(m_content());
}

void ShelfSurfaces::present(const ShelfPresentation &presentation) {
    m_presentation = presentation;
    if (m_active)
        m_active->present(presentation);
}

bool ShelfSurfaces::hasLostDisplay() const {
    return m_active &&
           !contains(ShelfDisplay::connected(m_services.displays), m_active->display().identifier);
}

std::vector<ScreenRect> ShelfSurfaces::activationNotches() const {
    std::vector<ScreenRect> notches;
    for (const auto &[identifier, window] : m_windows)
        notches.push_back(window->display().activationRect());
    return notches;
}

} // namespace tembra
