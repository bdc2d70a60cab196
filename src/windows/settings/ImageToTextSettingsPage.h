#pragma once

#include "platform/TextRecognizer.h"
#include "windows/settings/SettingsPage.h"

namespace tembra {

// Whether text is read from images, and in which languages.
class ImageToTextSettingsPage final : public SettingsPage {
    Q_OBJECT

public:
    struct Actions {
        // Tells which languages are installed, later and on the main thread.
        std::function<void(std::function<void(Result<std::vector<TextRecognizer::Language>>)>)> listLanguages;
        // The codes of those that are read while none is chosen.
        std::function<QStringList()> usualLanguages;
    };

    ImageToTextSettingsPage(AppSettings &settings, Actions actions, QWidget *parent = nullptr);

private:
    void addLanguages(const Result<std::vector<TextRecognizer::Language>> &languages);
    void addLanguage(const TextRecognizer::Language &language);
    void setAutomatic(bool isAutomatic);
    void setLanguage(const QString &code, bool isRead);
    // Those that are read now and installed.
    [[nodiscard]] QStringList languages() const;

    const Actions m_actions;
    QStringList m_installed;
};

} // namespace tembra
