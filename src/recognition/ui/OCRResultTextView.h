#pragma once

#include "controls/KeyboardFocus.h"
#include "recognition/model/TextLink.h"

#include <QTextBrowser>

#include <memory>
#include <optional>
#include <vector>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace tembra {

class ShelfScroller;

// A text to read and select, with the addresses in it as links. Positions are those of the text that was
// given: every one of its lines is a block of the document.
class OCRResultTextView final : public QTextBrowser {
    Q_OBJECT

public:
    // Around the text, for the ring of the keyboard's focus.
    static constexpr int margin = 8;

    explicit OCRResultTextView(QWidget *parent);

    // `sections` are the lines with a gap above, counted from 0. Nothing is selected then.
    void setResult(const QString &result, const std::vector<int> &sections);
    // As it stands in the text.
    [[nodiscard]] QString selection() const;
    [[nodiscard]] const std::vector<TextLink> &links() const { return m_links; }
    // The menu for a place in the view.
    [[nodiscard]] std::unique_ptr<QMenu> contextMenu(QPoint place);

Q_SIGNALS:
    void linkActivated(const QUrl &url);
    void linkCopyRequested(const QUrl &url);
    void selectionCopyRequested();

protected:
    bool event(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    [[nodiscard]] QMimeData *createMimeDataFromSelection() const override;

private:
    void markLinks();
    void activate(const QUrl &url);
    [[nodiscard]] const TextLink *linkAt(QPoint place) const;
    void hover(const TextLink *link);
    void updateCaret();

    QString m_text;
    std::vector<TextLink> m_links;
    // Under the pointer.
    std::optional<TextLink> m_hovered;
    KeyboardFocus m_keyboardFocus{*this};
    ShelfScroller *m_scroller;
};

} // namespace tembra
