#pragma once

#include <QWidget>

namespace tembra {

// Says that an image is being read, which can be called off.
class OCRLoadingView final : public QWidget {
    Q_OBJECT

public:
    explicit OCRLoadingView(QWidget *parent);

Q_SIGNALS:
    void cancelled();

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tembra
