#include "recognition/ui/OCRResultTextView.h"

#include "controls/FocusRing.h"
#include "controls/Palette.h"
#include "controls/ShelfMenu.h"
#include "controls/ShelfScroller.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QAbstractTextDocumentLayout>
#include <QContextMenuEvent>
#include <QLinearGradient>
#include <QMimeData>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTextBlock>

#include <algorithm>

namespace tembra {

namespace {

// From line to line; a gap is as high as a line.
constexpr int linePitch = 22;
constexpr int fadeHeight = 14;
constexpr int scrollerWidth = 16;

// What a document takes for ends of paragraphs and objects would shift every position after it.
QString shown(QString text) {
    for (QChar &letter : text) {
        switch (letter.unicode()) {
        case u'\r':
        case QChar::LineSeparator:
        case QChar::ParagraphSeparator:
        case QChar::ObjectReplacementCharacter:
        case 0xFDD0:
        case 0xFDD1:
            letter = u' ';
            break;
        default:
            break;
        }
    }
    return text;
}

// Lets the text run out into its card at an edge where `hidden` points of it are beyond.
void fade(QPainter &painter, const QRectF &area, double edge, int hidden, const QColor &card) {
    if (hidden <= 0)
        return;
    QColor strong = card;
    strong.setAlphaF(std::min(1.0F, static_cast<float>(hidden) / fadeHeight));
    QColor clear = card;
    clear.setAlpha(0);
    const double inner = edge + (edge > area.top() ? -fadeHeight : fadeHeight);
    QLinearGradient gradient(0, edge, 0, inner);
    gradient.setColorAt(0, strong);
    gradient.setColorAt(1, clear);
    painter.fillRect(QRectF(area.left(), std::min(edge, inner), area.width(), fadeHeight), gradient);
}

// Shows which link the keyboard acts on in our way.
class LinkFocusStyle final : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override {
        auto *const format = qstyleoption_cast<QStyleHintReturnVariant *>(result);
        if (hint != SH_TextControl_FocusIndicatorTextCharFormat || !format)
            return QProxyStyle::styleHint(hint, option, widget, result);
        QTextCharFormat outlined;
        outlined.setProperty(QTextFormat::OutlinePen, QPen(palette::focusRing, 2));
        format->variant = outlined;
        return 1;
    }
};

bool isForOthers(const QKeyEvent &event) {
    return event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut) ||
           event.matches(QKeySequence::Paste);
}

QPalette colors(QPalette palette, const Theme &theme) {
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, palette::itemText);
    palette.setColor(QPalette::Highlight, palette::textSelection);
    palette.setColor(QPalette::HighlightedText, palette::text);
    palette.setColor(QPalette::Link, theme.link);
    return palette;
}

} // namespace

OCRResultTextView::OCRResultTextView(QWidget *parent)
    : QTextBrowser(parent), m_scroller(new ShelfScroller(*verticalScrollBar(), this)) {
    setAccessibleName(tr("Recognized text"));
    auto *const style = new LinkFocusStyle;
    style->setParent(this);
    setStyle(style);
    setFont(typography::font(typography::headlineSize));
    setPalette(colors(palette(), Theme::of(*this)));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setCursorWidth(0);
    document()->setDocumentMargin(margin);
    // What is dropped here is for what is around it.
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
    viewport()->setAutoFillBackground(false);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->installEventFilter(&m_keyboardFocus);
    connect(this, &QTextBrowser::anchorClicked, this, &OCRResultTextView::activate);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, m_scroller, &ShelfScroller::flash);
}

void OCRResultTextView::setResult(const QString &result, const std::vector<int> &sections) {
    m_text = result;
    m_links = TextLink::find(result);
    hover(nullptr);
    QTextOption option = document()->defaultTextOption();
    option.setTextDirection(Qt::LayoutDirectionAuto);
    document()->setDefaultTextOption(option);
    QTextBlockFormat line;
    line.setLineHeight(linePitch - QFontMetrics(font()).height(), QTextBlockFormat::LineDistanceHeight);
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setBlockFormat(line);
    cursor.insertText(shown(result), QTextCharFormat());
    line.setTopMargin(linePitch);
    for (const int section : sections)
        QTextCursor(document()->findBlockByNumber(section)).setBlockFormat(line);
    markLinks();
    cursor.endEditBlock();
    cursor.movePosition(QTextCursor::Start);
    setTextCursor(cursor);
    verticalScrollBar()->setValue(0);
}

void OCRResultTextView::markLinks() {
    QTextCharFormat format;
    format.setAnchor(true);
    format.setForeground(Theme::of(*this).link);
    QTextCursor cursor(document());
    for (const TextLink &link : m_links) {
        cursor.setPosition(static_cast<int>(link.start));
        cursor.setPosition(static_cast<int>(link.start + link.length), QTextCursor::KeepAnchor);
        format.setAnchorHref(link.url.toString(QUrl::FullyEncoded));
        cursor.setCharFormat(format);
    }
}

QString OCRResultTextView::selection() const {
    const QTextCursor cursor = textCursor();
    return m_text.mid(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
}

QMimeData *OCRResultTextView::createMimeDataFromSelection() const {
    auto *content = new QMimeData;
    content->setText(selection());
    return content;
}

void OCRResultTextView::activate(const QUrl &url) {
    // A click that follows a link leaves it selected, unlike the keyboard, which shows by that where it is.
    if (!m_keyboardFocus.isShown()) {
        QTextCursor cursor = textCursor();
        cursor.clearSelection();
        setTextCursor(cursor);
    }
    const QString scheme = url.scheme();
    if (scheme == u"https" || scheme == u"http" || scheme == u"mailto")
        Q_EMIT linkActivated(url);
}

const TextLink *OCRResultTextView::linkAt(QPoint place) const {
    const QPoint inDocument = place + QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const int position = document()->documentLayout()->hitTest(inDocument, Qt::ExactHit);
    if (position < 0)
        return nullptr;
    const auto after = std::ranges::upper_bound(m_links, position, {}, &TextLink::start);
    if (after == m_links.begin())
        return nullptr;
    const TextLink &link = *std::prev(after);
    return position < link.start + link.length ? &link : nullptr;
}

void OCRResultTextView::hover(const TextLink *link) {
    viewport()->setCursor(link ? Qt::PointingHandCursor : Qt::IBeamCursor);
    const auto hovered = link ? std::optional(*link) : std::nullopt;
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    if (!link)
        return setExtraSelections({});
    QTextEdit::ExtraSelection underline;
    underline.format.setFontUnderline(true);
    underline.cursor = QTextCursor(document());
    underline.cursor.setPosition(static_cast<int>(link->start));
    underline.cursor.setPosition(static_cast<int>(link->start + link->length), QTextCursor::KeepAnchor);
    setExtraSelections({underline});
}

std::unique_ptr<QMenu> OCRResultTextView::contextMenu(QPoint place) {
    auto menu = std::make_unique<ShelfMenu>(this);
    std::function<void()> copy;
    if (textCursor().hasSelection())
        copy = [this] { Q_EMIT selectionCopyRequested(); };
    menu->add(tr("Copy"), copy);
    menu->add(tr("Select All"), [this] { selectAll(); });
    if (const TextLink *const link = linkAt(place)) {
        menu->addSeparator();
        menu->add(tr("Open Link"), [this, url = link->url] { Q_EMIT linkActivated(url); });
        menu->add(tr("Copy Link"), [this, url = link->url] { Q_EMIT linkCopyRequested(url); });
    }
    return menu;
}

void OCRResultTextView::contextMenuEvent(QContextMenuEvent *event) {
    const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QTextCursor cursor = textCursor();
    QTextCursor start(document());
    start.setPosition(cursor.selectionStart());
    // From the keyboard it is about where the caret is.
    const QRect caret = cursorRect(start);
    const QPoint place = byKeyboard ? caret.center() + QPoint(2, 0) : event->pos();
    auto *menu = contextMenu(place).release();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(byKeyboard ? viewport()->mapToGlobal(caret.bottomLeft()) : event->globalPos());
    event->accept();
}

bool OCRResultTextView::event(QEvent *event) {
    if (event->type() == QEvent::ShortcutOverride && isForOthers(*static_cast<QKeyEvent *>(event))) {
        event->ignore();
        return false;
    }
    return QTextBrowser::event(event);
}

void OCRResultTextView::keyPressEvent(QKeyEvent *event) {
    // Copying and pasting go through one place, whichever view has the focus.
    if (isForOthers(*event))
        return event->ignore();
    updateCaret();
    QTextBrowser::keyPressEvent(event);
}

void OCRResultTextView::focusInEvent(QFocusEvent *event) {
    updateCaret();
    QTextBrowser::focusInEvent(event);
}

void OCRResultTextView::mousePressEvent(QMouseEvent *event) {
    QTextBrowser::mousePressEvent(event);
    updateCaret();
}

void OCRResultTextView::updateCaret() {
    setCursorWidth(m_keyboardFocus.isShown() ? 1 : 0);
}

void OCRResultTextView::mouseMoveEvent(QMouseEvent *event) {
    QTextBrowser::mouseMoveEvent(event);
    hover(event->buttons() ? nullptr : linkAt(event->position().toPoint()));
}

void OCRResultTextView::enterEvent(QEnterEvent *event) {
    m_scroller->setAreaActive(true);
    QTextBrowser::enterEvent(event);
}

void OCRResultTextView::leaveEvent(QEvent *event) {
    m_scroller->setAreaActive(false);
    hover(nullptr);
    QTextBrowser::leaveEvent(event);
}

void OCRResultTextView::wheelEvent(QWheelEvent *event) {
    // The text would be zoomed.
    if (event->modifiers() & Qt::ControlModifier)
        return event->ignore();
    QTextBrowser::wheelEvent(event);
}

void OCRResultTextView::resizeEvent(QResizeEvent *event) {
    QTextBrowser::resizeEvent(event);
    m_scroller->setGeometry(width() - scrollerWidth, margin, scrollerWidth, height() - 2 * margin);
    m_scroller->raise();
}

void OCRResultTextView::paintEvent(QPaintEvent *event) {
    QTextBrowser::paintEvent(event);
    QPainter painter(viewport());
    const QRectF area = viewport()->rect();
    const QScrollBar &bar = *verticalScrollBar();
    const QColor card = Theme::of(*this).field;
    fade(painter, area, area.top(), bar.value() - bar.minimum(), card);
    fade(painter, area, area.bottom(), bar.maximum() - bar.value(), card);
    if (!m_keyboardFocus.isShown())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    drawFocusRing(painter, area.adjusted(3, 3, -3, -3), 5);
}

} // namespace tembra
