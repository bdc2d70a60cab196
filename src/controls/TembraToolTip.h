#pragma once

#include <QWidget>

namespace tembra {

// A tool tip in our colours. Only one is shown at a time; it goes when the pointer leaves, a key or button is
// pressed or the wheel turned.
class TembraToolTip final : public QWidget {
    Q_OBJECT

public:
    // Gives the widget the text as its tool tip, shown by this class. An empty text takes it away.
    static void set(QWidget &widget, const QString &text);

    TembraToolTip(const QString &text, QWidget *owner);

    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QString m_text;
};

} // namespace tembra
