#pragma once

#include <QWidget>

class QVBoxLayout;

namespace tembra {

class TembraSettingsRow;

// Rows that belong together, in a rounded group with lines between them, under a heading where it has one.
class TembraSettingsSection final : public QWidget {
    Q_OBJECT

public:
    explicit TembraSettingsSection(const QString &heading = {}, QWidget *parent = nullptr);

    // Owned by the section from then on.
    void addRow(TembraSettingsRow *row);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QString m_heading;
    QVBoxLayout *m_rows;
};

} // namespace tembra
