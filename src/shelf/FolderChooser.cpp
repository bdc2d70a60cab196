#include "shelf/FolderChooser.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>

namespace tembra {

namespace {

QString explanation(FolderChoice choice) {
    if (choice == FolderChoice::stopsAutoClean)
        return QCoreApplication::translate(
            "FolderChooser",
            "Choose where screenshots should save. Auto-clean will be set to Never for this folder.");
    return QCoreApplication::translate("FolderChooser",
                                       "New macOS screenshots will be saved here and appear in Tembra.");
}

} // namespace

std::optional<QString> askForScreenshotsFolder(const QString &suggested, FolderChoice choice) {
    QFileDialog dialog(
        nullptr, QCoreApplication::translate("FolderChooser", "Choose Your Screenshots Folder"), suggested);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    // The desktop's own dialogs have no place for the sentence that says what the folder is for.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    if (auto *grid = qobject_cast<QGridLayout *>(dialog.layout())) {
        auto *message = new QLabel(explanation(choice));
        grid->addWidget(message, grid->rowCount(), 0, 1, grid->columnCount());
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

} // namespace tembra
