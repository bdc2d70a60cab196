#pragma once

#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

namespace tembra {

// What a view looked like, fading away over what takes its place; then it deletes itself.
class PhaseFade final : public QWidget {
    Q_OBJECT

public:
    // The view's parent becomes its own.
    explicit PhaseFade(QWidget &view);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QPixmap m_picture;
    QVariantAnimation m_opacity;
};

} // namespace tembra
