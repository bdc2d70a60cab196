#include "app/Alert.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace tembra {

namespace {

// More lines would make the window higher than screens are.
constexpr qsizetype mostLines = 10;

} // namespace

void showAlert(const QString &title, const QString &message) {
    auto *alert = new QMessageBox(QMessageBox::Warning, QStringLiteral("Tembra"), title, QMessageBox::Ok);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    const QStringList lines = message.split(u'\n');
    if (lines.size() <= mostLines) {
        alert->setInformativeText(message);
    } else {
        const int left = static_cast<int>(lines.size() - mostLines + 1);
        alert->setInformativeText(lines.first(mostLines - 1).join(u'\n') + u'\n' +
                                  QCoreApplication::translate("Alert", "and %n more", nullptr, left));
        alert->setDetailedText(message);
    }
    alert->open();
}

} // namespace tembra
