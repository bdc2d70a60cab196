#pragma once

#include "controls/PaintedButton.h"
#include "settings/ActivationShortcut.h"

#include <functional>
#include <optional>

namespace tembra {

// Shows a shortcut and records another: after a click or Space the next combination that makes a valid one is
// it. Escape ends the recording, Backspace and Delete take the shortcut away.
class ShortcutRecorder final : public PaintedButton {
    Q_OBJECT

public:
    using Make = std::function<std::optional<ActivationShortcut>(const QKeyEvent &)>;

    // `make` may give an invalid shortcut, or none: then more keys are waited for.
    explicit ShortcutRecorder(Make make, QWidget *parent = nullptr);

    // In words.
    void setTitle(const QString &title);
    [[nodiscard]] bool isRecording() const { return m_isRecording; }

Q_SIGNALS:
    void recordingChanged(bool isRecording);
    void recorded(const tembra::ActivationShortcut &shortcut);
    void cleared();

protected:
    [[nodiscard]] QSize bodySize() const override;
    Outline paint(QPainter &painter, const Theme &theme) override;
    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void setRecording(bool isRecording);
    void take(const QKeyEvent &event);
    [[nodiscard]] QString shownText() const;

    const Make m_make;
    QString m_title;
    bool m_isRecording = false;
};

} // namespace tembra
