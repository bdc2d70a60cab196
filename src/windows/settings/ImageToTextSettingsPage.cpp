#include "windows/settings/ImageToTextSettingsPage.h"

#include "controls/TembraSettingsRow.h"
#include "controls/TembraToggle.h"

#include <QPointer>

namespace tembra {

ImageToTextSettingsPage::ImageToTextSettingsPage(AppSettings &settings, Actions actions, QWidget *parent)
    : SettingsPage(tr("Image to Text"), settings, parent), m_actions(std::move(actions)) {
    addSection();
    addToggle(tr("Show Image to Text"), &AppSettingsState::imageToTextEnabled,
              &AppSettings::setImageToTextEnabled,
              tr("Reads the text in a screenshot or image. Nothing leaves this computer."));
    addSection(tr("Languages"));
    auto *automatic = new TembraToggle;
    addRow(tr("Follow the desktop’s languages"), automatic);
    connect(automatic, &QAbstractButton::clicked, this, &ImageToTextSettingsPage::setAutomatic);
    onRefresh([this, automatic] { automatic->setChecked(state().textRecognitionLanguages.isEmpty()); });
    m_actions.listLanguages(
        [page = QPointer(this)](const Result<std::vector<TextRecognizer::Language>> &languages) {
            if (page)
                page->addLanguages(languages);
        });
    refresh();
}

void ImageToTextSettingsPage::addLanguages(const Result<std::vector<TextRecognizer::Language>> &languages) {
    if (languages) {
        for (const TextRecognizer::Language &language : *languages)
            addLanguage(language);
    } else {
        rows().back()->setProblem(languages.error().message);
    }
    refresh();
}

void ImageToTextSettingsPage::addLanguage(const TextRecognizer::Language &language) {
    const QString code = language.code;
    m_installed += code;
    auto *toggle = new TembraToggle;
    TembraSettingsRow *row = addRow(language.name, toggle);
    connect(toggle, &QAbstractButton::clicked, this, [this, code](bool isOn) { setLanguage(code, isOn); });
    onRefresh([this, toggle, row, code] {
        const QStringList read = languages();
        toggle->setChecked(read.contains(code));
        // There is always one.
        row->setEnabled(!state().textRecognitionLanguages.isEmpty() && read != QStringList{code});
    });
}

QStringList ImageToTextSettingsPage::languages() const {
    const QStringList &chosen = state().textRecognitionLanguages;
    QStringList read = chosen.isEmpty() ? m_actions.usualLanguages() : chosen;
    read.removeIf([this](const QString &code) { return !m_installed.contains(code); });
    return read;
}

// What was read so far is what the choice begins with.
void ImageToTextSettingsPage::setAutomatic(bool isAutomatic) {
    QStringList chosen;
    if (!isAutomatic)
        chosen = languages();
    if (!isAutomatic && chosen.isEmpty())
        chosen = m_installed.mid(0, 1);
    settings().setTextRecognitionLanguages(chosen);
    refresh();
}

void ImageToTextSettingsPage::setLanguage(const QString &code, bool isRead) {
    QStringList chosen = languages();
    chosen.removeAll(code);
    if (isRead)
        chosen += code;
    if (!chosen.isEmpty())
        settings().setTextRecognitionLanguages(chosen);
    refresh();
}

} // namespace tembra
