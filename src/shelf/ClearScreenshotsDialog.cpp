#include "shelf/ClearScreenshotsDialog.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace tembra {

namespace {

QString translated(const char *text, int count = -1) {
    return QCoreApplication::translate("ClearScreenshots", text, nullptr, count);
}

} // namespace

void showClearScreenshots(int count, int pinnedCount, std::function<void()> clear) {
    auto *dialog = new QMessageBox(
        QMessageBox::Question, QStringLiteral("Tembra"),
        translated(QT_TRANSLATE_N_NOOP("ClearScreenshots", "Move %n screenshots to Trash?"), count));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (pinnedCount > 0)
        dialog->setInformativeText(
            translated(QT_TRANSLATE_N_NOOP("ClearScreenshots", "%n pinned screenshots stay."), pinnedCount));
    const QPushButton *move = dialog->addButton(
        translated(QT_TRANSLATE_NOOP("ClearScreenshots", "Move to Trash")), QMessageBox::AcceptRole);
    dialog->setDefaultButton(dialog->addButton(QMessageBox::Cancel));
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, move, clear = std::move(clear)] {
        if (dialog->clickedButton() == move)
            clear();
    });
    dialog->open();
}

} // namespace tembra
