#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace tembra {

// A turning arc; it turns only while it can be seen.
class LoadingIndicator final : public QWidget {
    Q_OBJECT

public:
    explicit LoadingIndicator(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override { return {20, 20}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QVariantAnimation m_turn;
};

} // namespace tembra
