#include "shelf/FolderChooser.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>

namespace tembra {

std::optional<QString> askForScreenshotsFolder(const QString &suggested) {
    QFileDialog dialog(
        nullptr, QCoreApplication::translate("FolderChooser", "Choose Your Screenshots Folder"), suggested);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    // The desktop's own dialogs have no place for the sentence that says what the folder is for.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    if (auto *grid = qobject_cast<QGridLayout *>(dialog.layout())) {
        auto *message = new QLabel(QCoreApplication::translate(
            "FolderChooser", "New macOS screenshots will be saved here and appear in Tembra."));
        grid->addWidget(message, grid->rowCount(), 0, 1, grid->columnCount());
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

} // namespace tembra
