#include "editor/canvas/CanvasTextItem.h"

#include "editor/model/AnnotationFont.h"
#include "editor/model/AnnotationText.h"

#include <QClipboard>
#include <QGraphicsSceneMouseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyleOptionGraphicsItem>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

constexpr int longestText = 100'000;

// As typed: QTextDocument::toPlainText() takes the spaces that do not break for others.
QString plainText(const QTextDocument &document) {
    QString text = document.toRawText();
    for (const QChar end : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        text.replace(end, QChar(u'\n'));
    return text;
}

} // namespace

CanvasTextItem::CanvasTextItem(ScreenshotAnnotation annotation) : m_annotation(std::move(annotation)) {
    setTextInteractionFlags(Qt::TextEditorInteraction);
    setTabChangesFocus(true);
    document()->setDocumentMargin(0);
    document()->setUndoRedoEnabled(false);
    setPlainText(m_annotation.text->string);
    document()->setUndoRedoEnabled(true);
    applyStyle();
    connect(document(), &QTextDocument::contentsChanged, this, [this] { typed(); });
}

void CanvasTextItem::restyle(const ScreenshotAnnotation &annotation) {
    const QString string = m_annotation.text->string;
    m_annotation = annotation;
    m_annotation.text->string = string;
    applyStyle();
    Q_EMIT boxChanged();
}

void CanvasTextItem::applyStyle() {
    const double size = m_annotation.text->fontSize;
    const int pixelSize = std::max(1, qRound(size));
    const QSignalBlocker blocker(document());
    setFont(annotationFont(pixelSize));
    setDefaultTextColor(m_annotation.color.toColor());
    setScale(size / pixelSize);
    QTextOption option = document()->defaultTextOption();
    option.setWrapMode(AnnotationText::wrapMode(m_annotation.text->string));
    option.setUseDesignMetrics(true);
    option.setTabStopDistance(pixelSize * 2.0);
    document()->setDefaultTextOption(option);
    layOut();
}

void CanvasTextItem::typed() {
    QString string = plainText(*document());
    if (string.size() > longestText) {
        const QSignalBlocker blocker(document());
        QTextCursor surplus(document());
        surplus.setPosition(longestText);
        surplus.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        surplus.removeSelectedText();
        string = plainText(*document());
    }
    m_annotation.text->string = string;
    // Words that never end would be looked for at every line.
    if (AnnotationText::wrapMode(string) == document()->defaultTextOption().wrapMode())
        layOut();
    else
        applyStyle();
    Q_EMIT boxChanged();
}

EditorText CanvasTextItem::shownText() const {
    EditorText shown = *m_annotation.text;
    const QTextBlock block = textCursor().block();
    const QTextLayout *layout = block.layout();
    if (layout && !layout->preeditAreaText().isEmpty())
        shown.string.insert(block.position() + layout->preeditAreaPosition(), layout->preeditAreaText());
    return shown;
}

// What is being composed is no part of the document yet.
void CanvasTextItem::inputMethodEvent(QInputMethodEvent *event) {
    QGraphicsTextItem::inputMethodEvent(event);
    layOut();
    Q_EMIT boxChanged();
}

// As wide as the widest line, so that lines which begin on the right do so at the edge of the box.
void CanvasTextItem::layOut() {
    const AnnotationText text(shownText());
    const double size = m_annotation.text->fontSize;
    const double padding = AnnotationText::horizontalPadding(size);
    const QSignalBlocker blocker(document());
    constexpr double slack = 0.75;
    setTextWidth((text.size().width() - 2 * padding + slack) / scale());
    m_boxSize = text.size();
    setPos(m_annotation.points[0].toPointF() + QPointF(padding, AnnotationText::verticalPadding(size)));
}

void CanvasTextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) {
    QStyleOptionGraphicsItem plain = *option;
    plain.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);
    QGraphicsTextItem::paint(painter, &plain, widget);
}

void CanvasTextItem::keyPressEvent(QKeyEvent *event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape || (isReturn && event->modifiers() & Qt::ControlModifier)) {
        Q_EMIT finished();
    } else if (event->matches(QKeySequence::Paste)) {
        insertPlain(QGuiApplication::clipboard()->mimeData());
    } else if (event->key() == Qt::Key_Y && event->modifiers() == Qt::ControlModifier) {
        document()->redo();
    } else {
        QGraphicsTextItem::keyPressEvent(event);
    }
    event->accept();
}

void CanvasTextItem::mousePressEvent(QGraphicsSceneMouseEvent *event) {
    if (event->button() == Qt::MiddleButton)
        return event->accept();
    QGraphicsTextItem::mousePressEvent(event);
}

void CanvasTextItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *event) {
    if (event->button() == Qt::MiddleButton)
        return insertPlain(QGuiApplication::clipboard()->mimeData(QClipboard::Selection));
    QGraphicsTextItem::mouseReleaseEvent(event);
}

void CanvasTextItem::contextMenuEvent(QGraphicsSceneContextMenuEvent *event) {
    event->accept();
}

void CanvasTextItem::dropEvent(QGraphicsSceneDragDropEvent *event) {
    insertPlain(event->mimeData());
    event->acceptProposedAction();
}

void CanvasTextItem::insertPlain(const QMimeData *data) {
    if (!data || !data->hasText())
        return;
    const QString text = data->text().left(longestText);
    // Before it is laid out.
    QTextOption option = document()->defaultTextOption();
    option.setWrapMode(AnnotationText::wrapMode(m_annotation.text->string + text));
    document()->setDefaultTextOption(option);
    QTextCursor cursor = textCursor();
    cursor.insertText(text, QTextCharFormat());
    setTextCursor(cursor);
}

} // namespace tembra
