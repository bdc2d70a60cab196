#include "editor/window/EditorQuestions.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace tembra {

namespace {

constexpr qsizetype namesShown = 8;

QString text(const char *source, int count = -1) {
    return QCoreApplication::translate("EditorQuestions", source, nullptr, count);
}

QString listed(const QStringList &names) {
    QString list = names.mid(0, namesShown).join(u'\n');
    if (names.size() > namesShown)
        list += u'\n' + text(QT_TRANSLATE_N_NOOP("EditorQuestions", "and %n more"),
                             static_cast<int>(names.size() - namesShown));
    return list;
}

QMessageBox *makeBox(QWidget &window, const QString &question, const QString &explanation) {
    auto *box = new QMessageBox(QMessageBox::Question, QStringLiteral("Tembra"), question,
                                QMessageBox::NoButton, &window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(explanation);
    return box;
}

} // namespace

void EditorQuestions::askToClose(QWidget &window, const QStringList &unsaved,
                                 std::function<void(CloseAnswer)> answered) {
    const bool isOne = unsaved.size() == 1;
    const QString question =
        isOne ? text(QT_TRANSLATE_NOOP("EditorQuestions", "Save the edits of “%1”?")).arg(unsaved.first())
              : text(QT_TRANSLATE_N_NOOP("EditorQuestions", "Save the edits of %n screenshots?"),
                     static_cast<int>(unsaved.size()));
    QMessageBox *box = makeBox(
        window, question,
        isOne ? text(QT_TRANSLATE_NOOP("EditorQuestions", "Your edits are lost if you don’t save them."))
              : listed(unsaved));
    const QPushButton *save = box->addButton(isOne ? text(QT_TRANSLATE_NOOP("EditorQuestions", "Save"))
                                                   : text(QT_TRANSLATE_NOOP("EditorQuestions", "Save all")),
                                             QMessageBox::AcceptRole);
    const QPushButton *discard =
        box->addButton(isOne ? text(QT_TRANSLATE_NOOP("EditorQuestions", "Discard"))
                             : text(QT_TRANSLATE_NOOP("EditorQuestions", "Discard all")),
                       QMessageBox::DestructiveRole);
    box->setEscapeButton(box->addButton(QMessageBox::Cancel));
    box->setDefaultButton(const_cast<QPushButton *>(save));
    QObject::connect(box, &QDialog::finished, &window, [box, save, discard, answered = std::move(answered)] {
        if (box->clickedButton() == save)
            return answered(CloseAnswer::save);
        answered(box->clickedButton() == discard ? CloseAnswer::discard : CloseAnswer::cancel);
    });
    box->open();
}

void EditorQuestions::askToReload(QWidget &window, const QString &name, std::function<void()> reload) {
    QMessageBox *box =
        makeBox(window, text(QT_TRANSLATE_NOOP("EditorQuestions", "Reload “%1”?")).arg(name),
                text(QT_TRANSLATE_NOOP("EditorQuestions", "Your unsaved edits of it are lost.")));
    const QPushButton *yes =
        box->addButton(text(QT_TRANSLATE_NOOP("EditorQuestions", "Reload")), QMessageBox::DestructiveRole);
    QPushButton *cancel = box->addButton(QMessageBox::Cancel);
    box->setEscapeButton(cancel);
    box->setDefaultButton(cancel);
    QObject::connect(box, &QDialog::finished, &window, [box, yes, reload = std::move(reload)] {
        if (box->clickedButton() == yes)
            reload();
    });
    box->open();
}

void EditorQuestions::askForCopy(QWidget &window, const QString &suggested,
                                 std::function<void(const QString &)> save) {
    auto *dialog = new QFileDialog(&window, text(QT_TRANSLATE_NOOP("EditorQuestions", "Save a copy")));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilters({text(QT_TRANSLATE_NOOP("EditorQuestions", "Images (*.png *.jpg *.jpeg)"))});
    dialog->selectFile(suggested);
    QObject::connect(dialog, &QFileDialog::fileSelected, &window,
                     [save = std::move(save)](const QString &path) { save(path); });
    dialog->open();
}

} // namespace tembra
