#pragma once

#include <QWidget>

namespace tembra {

// A line of the settings: a title, under it a detail where there is something to explain, and the control at
// the far end. The row owns the control and lends it its title as name and its detail as description.
class TembraSettingsRow final : public QWidget {
    Q_OBJECT

public:
    TembraSettingsRow(const QString &title, QWidget *control, QWidget *parent = nullptr);

    [[nodiscard]] const QString &title() const { return m_title; }
    void setTitle(const QString &title);
    [[nodiscard]] const QString &detail() const { return m_detail; }
    void setDetail(const QString &detail);
    // What went wrong with it, in place of the detail; empty when nothing did.
    void setProblem(const QString &problem);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void layOut();
    void nameControl();
    void textChanged();
    // What stands under the title.
    [[nodiscard]] const QString &note() const { return m_problem.isEmpty() ? m_detail : m_problem; }
    [[nodiscard]] int detailHeight(int width) const;
    [[nodiscard]] int textWidth(int width) const;

    QString m_title;
    QString m_detail;
    QString m_problem;
    QWidget *m_control;
};

} // namespace tembra
