#include "shelf/SafetyReviewDialog.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace tembra {

namespace {

QString translated(const char *text, int count = -1) {
    return QCoreApplication::translate("SafetyReview", text, nullptr, count);
}

} // namespace

void showSafetyReview(int count, ScreenshotAutoCleanPeriod period, std::function<void(bool keeps)> decide) {
    auto *dialog = new QMessageBox(QMessageBox::Question, QStringLiteral("Tembra"),
                                   translated(QT_TRANSLATE_NOOP("SafetyReview", "Keep auto-clean enabled?")));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const QString files = translated(QT_TRANSLATE_N_NOOP("SafetyReview", "%n files"), count);
    dialog->setInformativeText(
        translated(QT_TRANSLATE_NOOP("SafetyReview",
                                     "Auto-clean is set to %1, with %2 to move to Trash.\n\nKeep auto-clean "
                                     "enabled or turn it off to keep these files."))
            .arg(title(period), files));
    const QPushButton *keep = dialog->addButton(translated(QT_TRANSLATE_NOOP("SafetyReview", "Keep enabled")),
                                                QMessageBox::AcceptRole);
    dialog->addButton(translated(QT_TRANSLATE_NOOP("SafetyReview", "Turn off")), QMessageBox::RejectRole);
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, keep, decide = std::move(decide)] {
        // Closed without an answer, as at the end of the program, it is asked again another time.
        if (dialog->clickedButton())
            decide(dialog->clickedButton() == keep);
    });
    dialog->open();
}

} // namespace tembra
