#include "editor/canvas/AccessibleCanvas.h"

#include "editor/canvas/AnnotationEditing.h"
#include "editor/canvas/ScreenshotCanvasView.h"

#include <QAccessibleWidget>

#include <map>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

QString nameOf(const ScreenshotAnnotation &annotation) {
    switch (annotation.kind) {
    case Kind::arrow:
        return ScreenshotCanvasView::tr("Arrow");
    case Kind::pencil:
        return ScreenshotCanvasView::tr("Pencil stroke");
    case Kind::line:
        return ScreenshotCanvasView::tr("Line");
    case Kind::rectangle:
        return ScreenshotCanvasView::tr("Rectangle");
    case Kind::ellipse:
        return ScreenshotCanvasView::tr("Ellipse");
    case Kind::text:
        return ScreenshotCanvasView::tr("Text: %1").arg(annotation.text->string.simplified());
    case Kind::number:
        return ScreenshotCanvasView::tr("Number %1").arg(annotation.number->value);
    case Kind::blur:
        return ScreenshotCanvasView::tr("Blur");
    }
    Q_UNREACHABLE();
}

// One annotation. It is valid as long as the annotation is in the document.
class AccessibleAnnotation final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleAnnotation(ScreenshotCanvasView &canvas, QUuid id) : m_canvas(&canvas), m_id(id) {}

    [[nodiscard]] bool isValid() const override { return annotation() != nullptr; }
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QWindow *window() const override {
        return m_canvas ? m_canvas->window()->windowHandle() : nullptr;
    }
    [[nodiscard]] QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *parent() const override {
        return QAccessible::queryAccessibleInterface(m_canvas);
    }
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const ScreenshotAnnotation *shown = annotation();
        return shown && kind == QAccessible::Name ? nameOf(*shown) : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    [[nodiscard]] QRect rect() const override {
        const ScreenshotAnnotation *shown = annotation();
        if (!shown)
            return {};
        const QRect local = m_canvas->viewport().toView(shown->bounds()).toAlignedRect();
        return {m_canvas->mapToGlobal(local.topLeft()), local.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.selectable = true;
        state.multiSelectable = true;
        state.invalid = !isValid();
        state.selected = isValid() && m_canvas->document()->selectedIDs().contains(m_id);
        state.focused =
            state.selected && m_canvas->hasFocus() && m_canvas->document()->selectedIDs().size() == 1;
        return state;
    }
    [[nodiscard]] void *interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                    : nullptr;
    }

    // Selecting it alone, to be moved by the keys, and besides the others.
    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), toggleAction()}; }
    void doAction(const QString &name) override {
        if (!isValid())
            return;
        QSet<QUuid> selected = m_canvas->document()->selectedIDs();
        if (name == pressAction())
            selected = {m_id};
        else if (name == toggleAction() && !selected.remove(m_id))
            selected.insert(m_id);
        m_canvas->setFocus(Qt::OtherFocusReason);
        m_canvas->document()->setSelectedIDs(selected);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    [[nodiscard]] const ScreenshotAnnotation *annotation() const {
        if (!m_canvas || !m_canvas->document())
            return nullptr;
        return annotationEditing::find(m_canvas->document()->annotations(), m_id);
    }

    const QPointer<ScreenshotCanvasView> m_canvas;
    const QUuid m_id;
};

class AccessibleCanvas final : public QAccessibleWidget {
public:
    explicit AccessibleCanvas(ScreenshotCanvasView &canvas)
        : QAccessibleWidget(&canvas, QAccessible::List), m_canvas(canvas) {}
    ~AccessibleCanvas() override {
        for (const auto &[id, interface] : m_items)
            QAccessible::deleteAccessibleInterface(interface);
    }

    [[nodiscard]] QAccessibleInterface *focusChild() const override {
        const bool isOne = m_canvas.document() && m_canvas.document()->selectedIDs().size() == 1;
        return isOne && m_canvas.hasFocus() ? item(*m_canvas.document()->selectedIDs().begin())
                                            : QAccessibleWidget::focusChild();
    }

    // What Return does: with a tool that draws, it draws in the middle of the view.
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override {
        if (name == pressAction())
            m_canvas.drawOrType();
        else
            QAccessibleWidget::doAction(name);
    }

    [[nodiscard]] int childCount() const override { return count() + QAccessibleWidget::childCount(); }
    // The annotations come first, then what lies over the canvas.
    [[nodiscard]] QAccessibleInterface *child(int index) const override {
        if (index >= count())
            return QAccessibleWidget::child(index - count());
        if (index < 0)
            return nullptr;
        return item(m_canvas.document()->annotations()[static_cast<std::size_t>(index)].id);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override {
        for (int index = 0; index < count(); ++index) {
            if (this->child(index) == child)
                return index;
        }
        const int other = QAccessibleWidget::indexOfChild(child);
        return other < 0 ? other : other + count();
    }

private:
    [[nodiscard]] int count() const {
        return m_canvas.document() ? static_cast<int>(m_canvas.document()->annotations().size()) : 0;
    }
    [[nodiscard]] QAccessibleInterface *item(const QUuid &id) const {
        const auto known = m_items.find(id);
        if (known != m_items.end())
            return QAccessible::accessibleInterface(known->second);
        auto *made = new AccessibleAnnotation(m_canvas, id);
        m_items[id] = QAccessible::registerAccessibleInterface(made);
        return made;
    }

    ScreenshotCanvasView &m_canvas;
    mutable std::map<QUuid, QAccessible::Id> m_items;
};

QAccessibleInterface *accessibleCanvas(const QString &, QObject *object) {
    auto *canvas = qobject_cast<ScreenshotCanvasView *>(object);
    return canvas ? new AccessibleCanvas(*canvas) : nullptr;
}

} // namespace

void installAccessibleCanvas() {
    // Qt keeps each factory once.
    QAccessible::installFactory(accessibleCanvas);
}

} // namespace tembra
