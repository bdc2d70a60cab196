#pragma once

#include "controls/DropdownList.h"
#include "controls/PaintedButton.h"

#include <QPointer>

namespace tembra {

// A button that shows the current one of several choices and opens a list of them. Arrows, Home, End and
// typing a choice's first letters choose while it is closed; Space, Enter and Alt with an arrow open it. The
// first choice is current at first; -1 where there is none.
class TembraDropdownPopup final : public PaintedButton {
    Q_OBJECT

public:
    explicit TembraDropdownPopup(const QStringList &choices = {}, QWidget *parent = nullptr);

    [[nodiscard]] const QStringList &choices() const { return m_choices; }
    // Keeps the current choice where the new ones have one of the same text.
    void setChoices(const QStringList &choices);
    [[nodiscard]] int currentIndex() const { return m_current; }
    void setCurrentIndex(int index);
    [[nodiscard]] QString currentText() const { return m_choices.value(m_current); }

    void open();
    [[nodiscard]] bool isOpen() const { return !m_list.isNull(); }
    [[nodiscard]] DropdownList *list() const { return m_list; }

Q_SIGNALS:
    // By the user or by the program.
    void currentIndexChanged(int index);
    // By the user, also where it was current already.
    void chosen(int index);

protected:
    [[nodiscard]] QSize bodySize() const override;
    Outline paint(QPainter &painter, const Theme &theme) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void choose(int index);
    [[nodiscard]] int indexStartingWith(const QString &letter) const;

    QStringList m_choices;
    int m_current = -1;
    QPointer<DropdownList> m_list;
};

} // namespace tembra
