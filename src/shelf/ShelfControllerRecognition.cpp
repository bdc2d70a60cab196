// The tab for text recognition.

#include "recognition/ui/OCRPanel.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "shelf/ShelfContent.h"
#include "shelf/ShelfController.h"
#include "shelf/ShelfSurfaces.h"

namespace tembra {

namespace {

// In points.
constexpr int panelWidth = 744;
constexpr int usualHeight = 256;
constexpr int tallHeight = 584;
// Below a tall panel.
constexpr int bottomMargin = 16;

// As it is written elsewhere: nothing in it is made readable, and so another.
QString addressOf(const QUrl &url) {
    return url.scheme() == u"mailto" ? url.path() : url.toString(QUrl::FullyEncoded);
}

} // namespace

void ShelfController::connectRecognition() {
    OCRPanel *panel = &m_content->recognition();
    connect(panel, &OCRPanel::inputReceived, this, [this](const OCRInput &input) { recognize(input); });
    connect(panel, &OCRPanel::chooseImageRequested, this, &ShelfController::chooseImage);
    connect(panel, &OCRPanel::resetRequested, this, [this] { m_ocr.reset(); });
    connect(panel, &OCRPanel::sizeToggled, this, [this] { m_ocr.toggleOCRSize(); });
    connect(panel, &OCRPanel::layoutChosen, this, [this](OCRTextLayout layout) { m_ocr.setLayout(layout); });
    connect(panel, &OCRPanel::copyRequested, this, &ShelfController::copyRecognizedText);
    connect(panel, &OCRPanel::selectionCopyRequested, this, [this] { copyRecognizedSelection(); });
    connect(panel, &OCRPanel::linkCopyRequested, this,
            [this](const QUrl &url) { m_ocr.copyOCRSelection(addressOf(url)); });
    connect(panel, &OCRPanel::linkActivated, this, &ShelfController::openLink);
    recognitionChanged();
}

// A new image shows where its text will be.
void ShelfController::recognize(const OCRInput &input) {
    if (!activateTab(ShelfTab::imageToText))
        return;
    m_ocr.recognize(input);
    if (m_expanded)
        content().takeFocus();
}

void ShelfController::chooseImage() {
    if (m_choosingFolder)
        return;
    m_choosingFolder = true;
    // The panel is above every other window, also above the dialog.
    collapse();
    const std::optional<QString> chosen =
        askForImage(m_settings.state().screenshotsFolder.value_or(QString()));
    m_choosingFolder = false;
    if (!chosen)
        return setExpanded(true);
    openManually();
    recognize({OCRInput::File{*chosen}});
}

void ShelfController::pasteForRecognition() {
    const QMimeData *pasted = m_services.pasteboard.content();
    if (const auto input = pasted ? OCRInput::read(*pasted) : std::nullopt)
        recognize(*input);
}

void ShelfController::copyRecognizedText() {
    if (m_ocr.copyOCR())
        m_content->recognition().showCopied();
}

bool ShelfController::copyRecognizedSelection() {
    return m_ocr.copyOCRSelection(m_content->recognition().selection());
}

// The panel lies above what opens, and above what says that nothing does.
void ShelfController::openLink(const QUrl &url) {
    collapse();
    if (const auto opened = m_services.workspace.openLink(url); !opened)
        onError(tr("Couldn’t Open Link"), opened.error().message);
}

bool ShelfController::handleRecognitionKey(ShelfCommand command) {
    switch (command) {
    case ShelfCommand::copy:
        return copyRecognizedSelection();
    case ShelfCommand::paste:
        pasteForRecognition();
        return true;
    case ShelfCommand::undo:
        // What is not seen is undone only while that is offered.
        if (!m_undoOffer.isPending())
            return false;
        undo();
        return true;
    default:
        return false;
    }
}

void ShelfController::recognitionChanged() {
    if (m_content)
        m_content->recognition().apply(m_ocr.state(), m_ocr.picture());
}

void ShelfController::fitPanel() {
    const auto wanted = ShelfPresentation::expanded(QSize(panelWidth, targetPanelHeight()));
    if (m_expanded && m_surfaces->presentation() != wanted)
        m_surfaces->present(wanted);
}

int ShelfController::targetPanelHeight() const {
    if (m_activeTab != ShelfTab::imageToText || !m_ocr.state().isExpanded)
        return usualHeight;
    const auto available = availableHeight();
    return available ? std::min(tallHeight, static_cast<int>(*available) - bottomMargin) : tallHeight;
}

// Of the display that has the shelf, else of the one where it would be.
std::optional<double> ShelfController::availableHeight() const {
    if (const ShelfDisplayWindow *active = m_surfaces ? m_surfaces->active() : nullptr)
        return active->display().availableHeight;
    const auto displays = ShelfDisplaySelection::admitted(ShelfDisplay::connected(m_services.displays),
                                                          m_settings.state().displayPreference);
    return displays.empty() ? std::nullopt : std::optional(displays.front().availableHeight);
}

} // namespace tembra
