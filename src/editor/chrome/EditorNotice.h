#pragma once

#include <QWidget>

namespace tembra {

class LoadingIndicator;

// A quiet line about what is going on.
class EditorNotice final : public QWidget {
    Q_OBJECT

public:
    explicit EditorNotice(QWidget *parent = nullptr);

    void setNotice(const QString &text, bool isBusy);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] int indicatorRoom() const;

    QString m_text;
    LoadingIndicator *m_indicator;
};

} // namespace tembra
