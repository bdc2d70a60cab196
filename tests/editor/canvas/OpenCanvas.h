#pragma once

#include "editor/canvas/EditedDocument.h"
#include "editor/canvas/ScreenshotCanvasView.h"
#include "support/ManualScheduler.h"
#include "support/MemoryUserDefaults.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace tembra {

// A canvas in a window with a screenshot at its full size, and a hand for its pointer and keys. Points are
// those of the image.
class OpenCanvas {
public:
    explicit OpenCanvas(std::vector<ScreenshotAnnotation> annotations = {}, QSize size = {600, 400})
        : document(loadedWith(std::move(annotations), size)) {
        QImage pixels(size, QImage::Format_RGB32);
        pixels.fill(Qt::white);
        document.onChange = [this] { canvas.documentChanged(); };
        canvas.resize(1'000, 800);
        canvas.show();
        canvas.activateWindow();
        (void)QTest::qWaitForWindowActive(&canvas);
        canvas.setDocument(&document, std::make_shared<ImagePyramid>(pixels, size));
        canvas.setFocus();
    }

    void press(QPointF at, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton) {
        m_buttons |= button;
        m_at = canvas.viewport().toView(at);
        send(QEvent::MouseButtonPress, button, modifiers);
    }
    void move(QPointF to, Qt::KeyboardModifiers modifiers = {}) {
        m_at = canvas.viewport().toView(to);
        send(QEvent::MouseMove, Qt::NoButton, modifiers);
    }
    void release(Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton) {
        m_buttons &= ~Qt::MouseButtons(button);
        send(QEvent::MouseButtonRelease, button, modifiers);
    }
    void click(QPointF at, Qt::KeyboardModifiers modifiers = {}) {
        m_time += 1'000;
        press(at, modifiers);
        release(modifiers);
    }
    void doubleClick(QPointF at) {
        click(at);
        press(at);
        release();
    }
    void drag(QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = {}) {
        m_time += 1'000;
        press(from, modifiers);
        move((from + to) / 2, modifiers);
        move(to, modifiers);
        release(modifiers);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(canvas.windowHandle(), key, modifiers);
    }
    void keys(std::initializer_list<Qt::Key> several) {
        for (const Qt::Key one : several)
            key(one);
    }
    void type(const QString &text) {
        for (const QChar letter : text) {
            QKeyEvent event(QEvent::KeyPress, 0, {}, letter);
            QApplication::sendEvent(QApplication::focusWidget(), &event);
        }
    }
    // What an input method makes, composed so far and done.
    void compose(const QString &preedit, const QString &commit = {}) {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }

    [[nodiscard]] const std::vector<ScreenshotAnnotation> &annotations() const {
        return document.annotations();
    }
    [[nodiscard]] const ScreenshotAnnotation &last() const { return document.annotations().back(); }
    [[nodiscard]] QWidget *child(const char *className) const {
        for (QWidget *one : canvas.findChildren<QWidget *>()) {
            if (one->inherits(className) && one->isVisible())
                return one;
        }
        return nullptr;
    }

    MemoryUserDefaults defaults;
    FakePasteboard pasteboard;
    ScreenshotEditDocument document;
    ManualScheduler scheduler;
    ScreenshotCanvasView canvas{defaults, pasteboard, scheduler};

private:
    void send(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
        m_time += 10;
        qt_handleMouseEvent(canvas.windowHandle(), m_at, canvas.mapToGlobal(m_at), m_buttons, button, type,
                            modifiers, m_time);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Qt::MouseButtons m_buttons;
    QPointF m_at;
    int m_time = 1'000;
};

} // namespace tembra
