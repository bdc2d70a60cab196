#include "recognition/ui/OCRResultCard.h"

#include "controls/ControlPainting.h"
#include "controls/Palette.h"
#include "controls/TembraButton.h"
#include "controls/TembraDropdownPopup.h"
#include "controls/TextLabel.h"
#include "controls/Theme.h"
#include "controls/Typography.h"
#include "recognition/ui/OCRCard.h"
#include "recognition/ui/OCRPictureView.h"
#include "recognition/ui/OCRResultTextView.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <array>
#include <chrono>

namespace tembra {

namespace {

constexpr std::chrono::milliseconds copiedDuration{1500};

constexpr int inset = 20;
constexpr int headTop = 18;
constexpr int headHeight = 30;
constexpr int headSpacing = 8;
// Less than a button's own: the button keeps its width.
constexpr int copiedMargin = 8;
constexpr int textTop = 62;
constexpr int bottomInset = 12;

constexpr QSize pictureRoom{120, 90};
constexpr int pictureSpacing = 16;
// A narrower card is left to the text.
constexpr int narrowestWithPicture = 372;

// In the order of the choices.
constexpr std::array layouts{OCRTextLayout::lines, OCRTextLayout::paragraphs, OCRTextLayout::oneLine};

int indexOf(OCRTextLayout layout) {
    return static_cast<int>(std::ranges::find(layouts, layout) - layouts.begin());
}

// The lines above which there is a gap; the other layouts have empty lines there.
std::vector<int> sectionsOf(const OCRText &text, OCRTextLayout layout) {
    std::vector<int> sections;
    if (layout != OCRTextLayout::lines)
        return sections;
    const std::vector<OCRLineStart> starts = text.lineStarts();
    for (size_t line = 1; line < starts.size(); ++line) {
        if (starts[line] == OCRLineStart::section)
            sections.push_back(static_cast<int>(line));
    }
    return sections;
}

} // namespace

OCRResultCard::OCRResultCard(Scheduler &scheduler, QWidget *parent)
    : QWidget(parent), m_scheduler(scheduler) {
    build();
    setFocusProxy(m_text);
    connect(m_layouts, &TembraDropdownPopup::chosen, this,
            [this](int index) { Q_EMIT layoutChosen(layouts[static_cast<size_t>(index)]); });
    connect(m_newImage, &TembraButton::clicked, this, &OCRResultCard::newImageRequested);
    connect(m_size, &TembraButton::clicked, this, &OCRResultCard::sizeToggled);
    connect(m_copy, &TembraButton::clicked, this, &OCRResultCard::copyRequested);
}

// In the order of the keyboard.
void OCRResultCard::build() {
    using Kind = TembraButton::Kind;
    using Size = TembraButton::Size;
    m_count = makeTextLabel(this, typography::itemSize, QFont::Normal, palette::secondaryText);
    m_layouts = new TembraDropdownPopup({tr("Lines"), tr("Paragraphs"), tr("One line")}, this);
    m_layouts->setAccessibleName(tr("Text layout"));
    m_newImage = new TembraButton(Kind::plain, Size::card, tr("New Image"), this);
    m_size = new TembraButton(Kind::plain, Size::card, tr("Expand panel"), this);
    m_copy = new TembraButton(Kind::primary, Size::card, tr("Copy"), this);
    const int copiedWidth =
        m_copy->fontMetrics().horizontalAdvance(tr("Copied")) + 2 * (ringMargin + copiedMargin);
    m_copy->setMinimumWidth(std::max(m_copy->sizeHint().width(), copiedWidth));
    m_text = new OCRResultTextView(this);
    m_picture = new OCRPictureView(this);
}

void OCRResultCard::apply(const OCRState &state, const QImage &picture) {
    const auto &text = std::get<OCRState::Text>(state.phase).text;
    if (state.phase != m_state.phase || state.layout != m_state.layout) {
        m_text->setResult(state.result(), sectionsOf(text, state.layout));
        m_count->setText(tr("%n words", nullptr, text.wordCount()));
        setAccessibleName(m_count->text());
        m_copied.cancel();
        m_copy->setText(tr("Copy"));
    }
    m_offersLayouts = text.lines.size() > 1;
    m_layouts->setCurrentIndex(indexOf(state.layout));
    m_size->setText(state.isExpanded ? tr("Reduce panel") : tr("Expand panel"));
    m_picture->setPicture(picture);
    m_state = state;
    layOut();
}

void OCRResultCard::clear() {
    if (std::holds_alternative<OCRState::Idle>(m_state.phase))
        return;
    m_state = {};
    m_text->setResult({}, {});
    m_picture->setPicture({});
}

void OCRResultCard::showCopied() {
    m_copy->setText(tr("Copied"));
    m_copied = m_scheduler.schedule(copiedDuration, [this] { m_copy->setText(tr("Copy")); });
}

void OCRResultCard::put(QWidget &widget, const QRect &place) {
    widget.setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

// From the far end; what there is no room for is left out, the count first.
void OCRResultCard::layOutHead() {
    const int middle = headTop + headHeight / 2;
    int edge = width() - inset + ringMargin;
    for (QWidget *control : std::initializer_list<QWidget *>{m_copy, m_size, m_newImage, m_layouts}) {
        const QSize size(std::max(control->sizeHint().width(), control->minimumWidth()),
                         headHeight + 2 * ringMargin);
        const int x = edge - size.width();
        const bool isShown = x >= inset - ringMargin && (control != m_layouts || m_offersLayouts);
        control->setVisible(isShown);
        if (!isShown)
            continue;
        put(*control, QRect(QPoint(x, headTop - ringMargin), size));
        edge = x - headSpacing + 2 * ringMargin;
    }
    const QSize count = m_count->sizeHint();
    m_count->setVisible(inset + count.width() <= edge - headSpacing);
    put(*m_count, {QPoint(inset, middle - count.height() / 2), count});
}

void OCRResultCard::layOut() {
    layOutHead();
    int right = width() - inset;
    const int bottom = height() - bottomInset;
    const QSize room = pictureRoom.boundedTo({width(), height() - textTop - inset});
    const QSize picture = width() < narrowestWithPicture ? QSize() : m_picture->sizeWithin(room);
    m_picture->setVisible(!picture.isEmpty());
    if (!picture.isEmpty()) {
        put(*m_picture, QRect(QPoint(right - picture.width(), textTop), picture));
        right -= picture.width() + pictureSpacing;
    }
    const QRect text(inset, textTop, right - inset, bottom - textTop);
    put(*m_text,
        text.adjusted(-OCRResultTextView::margin, -OCRResultTextView::margin, OCRResultTextView::margin, 0));
}

void OCRResultCard::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange && m_picture)
        layOut();
}

void OCRResultCard::resizeEvent(QResizeEvent *) {
    layOut();
}

void OCRResultCard::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawField(painter, rect(), OCRCard::radius, Theme::of(*this).field);
}

} // namespace tembra
