#pragma once

#include <QLineEdit>

namespace tembra {

// A line of text to edit.
class TembraTextField final : public QLineEdit {
    Q_OBJECT

public:
    explicit TembraTextField(QWidget *parent = nullptr);

    // Says that what stands in the field cannot be taken.
    void setInvalid(bool isInvalid);
    [[nodiscard]] bool isInvalid() const { return m_isInvalid; }
    [[nodiscard]] QSize sizeHint() const override { return {200, 34}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {60, 34}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    bool m_isInvalid = false;
};

} // namespace tembra
