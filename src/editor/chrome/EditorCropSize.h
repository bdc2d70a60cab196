#pragma once

#include <QWidget>

namespace tembra {

// The size of a crop in pixels, and its aspect. As wide as the longest it may have to show, so that nothing
// beside it moves while the crop is drawn.
class EditorCropSize final : public QWidget {
    Q_OBJECT

public:
    explicit EditorCropSize(QWidget *parent = nullptr);

    void setCrop(QSize crop);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_size;
    QString m_aspect;
};

} // namespace tembra
