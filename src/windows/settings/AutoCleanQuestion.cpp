#include "windows/settings/AutoCleanQuestion.h"

#include <QMessageBox>
#include <QPushButton>

namespace tembra {

void showAutoCleanQuestion(QWidget &window, const AutoCleanChange::Question &question,
                           std::function<void(bool agrees)> decide) {
    auto *dialog = new QMessageBox(QMessageBox::Question, QStringLiteral("Tembra"), question.title,
                                   QMessageBox::NoButton, &window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setInformativeText(question.text);
    const QPushButton *agree = dialog->addButton(question.action, QMessageBox::AcceptRole);
    dialog->setDefaultButton(dialog->addButton(QMessageBox::Cancel));
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, agree, decide = std::move(decide)] {
        decide(dialog->clickedButton() == agree);
    });
    dialog->open();
}

} // namespace tembra
