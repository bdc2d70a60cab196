#pragma once

#include <QLineEdit>
#include <QWidget>

namespace tembra {

// The name of the file, its extension dimmed, with a dot before it where there is something to save. A click
// or Tab edits the base name; Return asks for it, Escape and leaving restore what it was.
class EditorNameField final : public QWidget {
    Q_OBJECT

public:
    explicit EditorNameField(QWidget *parent = nullptr);

    // While the name is edited the new one waits.
    void setName(const QString &baseName, const QString &extension);
    void setDirty(bool isDirty);
    [[nodiscard]] bool isEditing() const { return m_isEditing; }
    // The name stays as it is.
    void cancelEditing();
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void renameRequested(const QString &name);
    // The keyboard is free again.
    void editingEnded();
    // The name wants another width.
    void sizeHintChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Where each part stands, and how much of the name there is room for.
    struct Layout {
        QRect dot;
        QRect name;
        QString shown;
        QRect extension;
    };

    [[nodiscard]] Layout arrangement() const;
    [[nodiscard]] int dotRoom() const;
    [[nodiscard]] QString dottedExtension() const;
    void accept();
    void beginEditing();
    void endEditing();
    void restore();
    void layOut();

    QLineEdit *m_edit;
    QString m_name;
    QString m_extension;
    bool m_isDirty = false;
    bool m_isEditing = false;
};

} // namespace tembra
