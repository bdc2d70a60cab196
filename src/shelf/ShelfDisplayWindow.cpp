#include "shelf/ShelfDisplayWindow.h"

#include "controls/Motion.h"
#include "shelf/ShelfPanel.h"
#include "shelf/ShelfPanelShape.h"
#include "shelf/ShelfView.h"

#include <QBitmap>
#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

// The window is as large as the panel usually gets, so that it need not change while the panel grows in it.
constexpr QSize usualPanel{744, 256};
// A pointer this close still counts as in a notch or the panel.
constexpr int pointerTolerance = 1;
// Motion that begins at rest begins one frame ahead: its first frame is to show something.
constexpr SpringMotion::Time headStart{0.016};

// Where the pointer counts as in the rectangle, so that it is heard to leave where it does not any more.
// Edges count as well, which makes it a point more to the right and below.
ScreenRect withTolerance(const ScreenRect &rect) {
    constexpr int more = 2 * pointerTolerance + 1;
    return {rect.x - pointerTolerance, rect.y - pointerTolerance, rect.width + more, rect.height + more};
}

int displayWidth(const ShelfDisplay &display) {
    return static_cast<int>(display.screenFrame.width);
}

// The panel's outline as the shape of its window.
QBitmap outline(const QSize &window, const QRectF &body) {
    QBitmap mask(window);
    mask.clear();
    QPainter painter(&mask);
    painter.fillPath(ShelfPanelShape::path(body), Qt::color1);
    return mask;
}

} // namespace

ShelfDisplayWindow::ShelfDisplayWindow(const ShelfDisplay &display, const ShelfServices &services)
    : m_services(services),
      m_display(display),
      m_zone(services.hotZones.add(withTolerance(display.activationRect()),
                                   {.onEnter = [this] { onPointerActivity(); },
                                    .onLeave = [this] { onPointerActivity(); },
                                    .onPress = [this] { onActivationPressed(); }})),
      m_width(display.activationRect().width) {
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    m_animation.setDuration(static_cast<int>(SpringMotion::settling.count() * 1000));
    QObject::connect(&m_animation, &QVariantAnimation::valueChanged, &m_animation, [this] { placeBody(); });
    QObject::connect(&m_animation, &QVariantAnimation::finished, &m_animation, [this] { settle(); });
}

ShelfDisplayWindow::~ShelfDisplayWindow() {
    m_animation.stop();
    if (hasContent())
        m_content->setParent(nullptr);
}

bool ShelfDisplayWindow::hasContent() const {
    return m_content && m_content->parentWidget() == m_viewport;
}

void ShelfDisplayWindow::makePanel() {
    m_panel = std::make_unique<ShelfPanel>();
    m_panel->onPress = [this] { takeKeyboardFocus(); };
    m_panel->onEscape = [this] { onEscape(); };
    m_panel->onKey = [this](const QKeyEvent &event) { return onKey(event); };
    m_root = new ShelfView(m_panel.get());
    m_root->onPointerActivity = [this] { onPointerActivity(); };
    m_viewport = new QWidget(m_root);
    placePanel();
    m_services.panelWindows.prepare(*m_panel);
}

void ShelfDisplayWindow::placePanel() {
    // A panel that is getting smaller needs its room until it is.
    const QSize now(static_cast<int>(std::ceil(bodySize().width())),
                    static_cast<int>(std::ceil(bodySize().height())));
    const QSize largest = usualPanel.expandedTo(m_presentation.size).expandedTo(now);
    // Nothing of it, not even its shadow, falls on the display beside.
    const QSize canvas(std::min(largest.width() + 2 * ShelfShadow::reach, displayWidth(m_display)),
                       largest.height() + ShelfShadow::reach + ShelfShadow::drop);
    const ScreenRect frame = hangingFromEdge(canvas);
    m_panel->setGeometry(static_cast<int>(std::lround(frame.x)), static_cast<int>(std::lround(frame.y)),
                         canvas.width(), canvas.height());
    m_root->setGeometry(QRect(QPoint(), canvas));
}

void ShelfDisplayWindow::setDisplay(const ShelfDisplay &display) {
    if (display == m_display)
        return;
    m_display = display;
    m_zone->setRect(withTolerance(display.activationRect()));
    if (m_panel)
        present(m_presentation, false);
}

void ShelfDisplayWindow::setContent(QWidget &content) {
    if (!m_panel)
        makePanel();
    m_content = &content;
    if (content.parentWidget() == m_viewport)
        return;
    content.setParent(m_viewport);
    content.show();
}

void ShelfDisplayWindow::present(const ShelfPresentation &presentation, bool isAnimated) {
    if (presentation.kind == ShelfPresentation::Kind::collapsed && !m_panel)
        return;
    if (!m_panel)
        makePanel();
    const auto now = elapsed();
    m_headStart = m_animation.state() == QAbstractAnimation::Running ? SpringMotion::Time::zero() : headStart;
    m_isComposited = m_services.workspace.isComposited();
    m_presentation = presentation;
    m_width.retarget(restingSize().width(), now);
    m_height.retarget(restingSize().height(), now);
    m_animation.stop();
    placePanel();
    if (hasContent() && presentation.kind != ShelfPresentation::Kind::collapsed)
        m_content->resize(presentedSize());
    updateInputRegion();
    if (isAnimated && !motion::isReduced(*m_panel)) {
        m_animation.start();
        placeBody();
    } else {
        m_width.jump(m_width.target());
        m_height.jump(m_height.target());
        settle();
    }
    if (presentation.kind != ShelfPresentation::Kind::collapsed)
        m_panel->show();
}

void ShelfDisplayWindow::placeBody() {
    // On whole points, so that no edge is blurred while it moves.
    const QSizeF size = bodySize();
    const double halfWidth = std::round(size.width() / 2);
    const QRectF body(std::floor(m_root->width() / 2.0) - halfWidth, 0, 2 * halfWidth,
                      std::round(size.height()));
    m_root->setBody(body, m_isComposited);
    m_viewport->setGeometry(body.toRect());
    if (hasContent())
        m_content->move((m_viewport->width() - m_content->width()) / 2, 0);
    // Without a compositor what is not the panel would be black.
    if (m_isComposited)
        m_panel->clearMask();
    else
        m_panel->setMask(outline(m_root->size(), body));
}

void ShelfDisplayWindow::updateInputRegion() {
    QRegion region;
    if (m_presentation.kind != ShelfPresentation::Kind::collapsed) {
        const QSize size = presentedSize();
        const QRect body((m_root->width() - size.width()) / 2, 0, size.width(), size.height());
        region = body.adjusted(-pointerTolerance, 0, pointerTolerance + 1, pointerTolerance + 1);
    }
    m_services.panelWindows.setInputRegion(*m_panel, region);
    // A window with a shape of its own takes no pointer outside of it.
    if (region.isEmpty() || m_services.workspace.isComposited())
        m_margin.reset();
    else
        m_margin = m_services.hotZones.add(withTolerance(interactionPanel()),
                                           {.onEnter = [this] { onPointerActivity(); },
                                            .onLeave = [this] { onPointerActivity(); },
                                            .onPress = {}});
}

void ShelfDisplayWindow::settle() {
    placePanel();
    placeBody();
    // A notification may have come to lie under a pointer that rests.
    if (m_presentation.kind == ShelfPresentation::Kind::notification)
        onPointerActivity();
    if (m_presentation.kind != ShelfPresentation::Kind::collapsed)
        return;
    m_services.panelWindows.returnKeyboardFocus(*m_panel);
    m_panel->hide();
}

void ShelfDisplayWindow::takeKeyboardFocus() {
    if (m_presentation.kind == ShelfPresentation::Kind::expanded)
        m_services.panelWindows.takeKeyboardFocus(*m_panel);
}

bool ShelfDisplayWindow::hasKeyboardFocus() const {
    return m_panel && m_panel->isActiveWindow();
}

void ShelfDisplayWindow::compositingChanged() {
    m_isComposited = m_services.workspace.isComposited();
    if (!m_panel)
        return;
    placeBody();
    updateInputRegion();
}

// The collapsed panel is as wide as the notch and has no height.
QSizeF ShelfDisplayWindow::restingSize() const {
    if (m_presentation.kind == ShelfPresentation::Kind::collapsed)
        return {m_display.activationRect().width, 0};
    return presentedSize();
}

// With room for the corners in which it runs out along the edge.
QSize ShelfDisplayWindow::presentedSize() const {
    const int room = displayWidth(m_display) - 2 * static_cast<int>(ShelfPanelShape::topRadius);
    return {std::min(m_presentation.size.width(), room), m_presentation.size.height()};
}

QSizeF ShelfDisplayWindow::bodySize() const {
    const auto now = elapsed();
    return {m_width.value(now), m_height.value(now)};
}

SpringMotion::Time ShelfDisplayWindow::elapsed() const {
    if (m_animation.state() != QAbstractAnimation::Running)
        return SpringMotion::settling;
    return m_headStart + std::chrono::milliseconds(m_animation.currentTime());
}

ScreenRect ShelfDisplayWindow::hangingFromEdge(const QSizeF &size) const {
    return {m_display.screenFrame.midX() - size.width() / 2, m_display.screenFrame.y, size.width(),
            size.height()};
}

ScreenRect ShelfDisplayWindow::visiblePanel() const {
    const QSizeF size = bodySize();
    return m_panel && size.height() > 0 ? hangingFromEdge(size) : m_display.activationRect();
}

ScreenRect ShelfDisplayWindow::interactionPanel() const {
    return hangingFromEdge(restingSize());
}

ScreenRect ShelfDisplayWindow::panelWindow() const {
    if (!m_panel)
        return m_display.screenFrame;
    const QRect frame = m_panel->geometry();
    return {static_cast<double>(frame.x()), static_cast<double>(frame.y()),
            static_cast<double>(frame.width()), static_cast<double>(frame.height())};
}

} // namespace tembra
