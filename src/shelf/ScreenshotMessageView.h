#pragma once

#include "shelf/ScreenshotMessage.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace tembra {

class LoadingIndicator;
class TembraButton;

// Shows a message in the middle of its place, with its button or the loading indicator.
class ScreenshotMessageView final : public QWidget {
    Q_OBJECT

public:
    explicit ScreenshotMessageView(QWidget *parent);

    void apply(const ScreenshotMessage &message);

Q_SIGNALS:
    void acted();

private:
    void build();

    LoadingIndicator *m_indicator = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_text = nullptr;
    TembraButton *m_button = nullptr;
};

} // namespace tembra
