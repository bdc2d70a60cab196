#pragma once

#include <QWidget>

namespace tembra {

// The title of a section of the grid.
class ScreenshotSectionHeader final : public QWidget {
    Q_OBJECT

public:
    explicit ScreenshotSectionHeader(QWidget *parent);

    void setTitle(const QString &title);
    [[nodiscard]] const QString &title() const { return m_title; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_title;
};

} // namespace tembra
