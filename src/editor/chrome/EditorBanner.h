#pragma once

#include "editor/chrome/EditorBannerMessage.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace tembra {

// A message across the window, until it is dismissed or one of its actions is chosen. Told to assistive
// programs when it comes. Hidden while it has nothing to say.
class EditorBanner final : public QWidget {
    Q_OBJECT

public:
    explicit EditorBanner(QWidget *parent = nullptr);

    void present(const EditorBannerMessage &message);
    void dismiss();
    [[nodiscard]] QString text() const;

Q_SIGNALS:
    void dismissed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void takeActions(const std::vector<EditorBannerMessage::Action> &actions);

    QHBoxLayout *m_layout;
    QLabel *m_text;
    std::vector<QWidget *> m_actions;
    bool m_isError = false;
};

} // namespace tembra
