#pragma once

#include "base/Generation.h"
#include "editor/documents/EditorDocuments.h"
#include "editor/window/EditorStatus.h"
#include "editor/window/ScreenshotEditorServices.h"
#include "platform/ScreenGeometry.h"
#include "recognition/model/EditorWordRecognition.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>
#include <set>
#include <vector>

namespace tembra {

class ScreenshotEditorWindow;

// The screenshot editor: joins its window to the documents. The window is made when the first screenshot is
// opened and goes when it is closed. Main thread; owned by the composition root.
class ScreenshotEditorWindowController final : public QObject {
    Q_OBJECT

public:
    struct Hooks {
        EditorDocumentsHooks documents;
        // The screenshots of the folder, in the order of the shelf.
        std::function<std::vector<Shot>()> shots;
        // Which of them carry edits.
        std::function<bool(const Shot &)> isEdited;
        // A window was opened or closed.
        std::function<void(bool isOpen)> openChanged;
        // Gives a new window the program's menus.
        std::function<void(QWidget &)> addMenus;
        // The program may end now, after the user was asked.
        std::function<void()> mayTerminate;
    };

    ScreenshotEditorWindowController(const ScreenshotEditorServices &services, Hooks hooks);
    ~ScreenshotEditorWindowController() override;

    // Shows a screenshot; a new window is centred on the display.
    void open(const Shot &shot, const ScreenRect &display);
    [[nodiscard]] bool isOpen() const { return m_window != nullptr; }
    // Whether nothing would be lost. Else the user is asked, and `mayTerminate` follows when all is well.
    [[nodiscard]] bool canTerminate();
    // Screenshots came, went or changed.
    void shotsChanged();
    [[nodiscard]] EditorStatus status() const;

private:
    // The window (ScreenshotEditorWindowController.cpp).
    void makeWindow(const ScreenRect &display);
    // What came too late for this window is not for the next.
    template <class Work>
    [[nodiscard]] auto whileOpen(Work work) const {
        return [ticket = m_windowGeneration.ticket(), work](auto &&...arguments) {
            if (ticket.isCurrent())
                work(std::forward<decltype(arguments)>(arguments)...);
        };
    }
    void connectWindow();
    void connectCanvas();
    void connectDocuments();
    void close();
    void askToClose(const std::function<void()> &closed);
    void closeAnswered(bool saves, const std::function<void()> &closed);
    // Closes once nothing is under way any more, and asks again about what was edited meanwhile.
    void closeWhenIdle(const std::function<void()> &closed);
    void continueClosing();
    void endWindow();
    [[nodiscard]] ScreenshotEditPreviewRequest previewRequest() const;

    // What is shown (EditorShowing.cpp).
    void currentChanged();
    void showFullImage(const QImage &image);
    void refresh();
    void refreshSidebar();
    void refreshNotice();
    void showFailure(const EditorFailure &failure);
    void showChangedOutside(bool canReload);
    void say(const QString &text);
    [[nodiscard]] bool isShown(EditorDocumentId document) const;
    void reload(EditorDocumentId document);
    void chooseColor(int number);
    void chooseCustomColor();

    // What is done (EditorActions.cpp).
    void save();
    void saveCopy(EditorDocumentId document);
    void copyImage();
    void dragImage();
    void removed(const Shot &shot);
    void choose(const QString &path);
    void seekWords();
    void wordsChanged();

    const ScreenshotEditorServices m_services;
    const Hooks m_hooks;
    std::unique_ptr<ScreenshotEditorWindow> m_window;
    // Shown by the window.
    std::unique_ptr<EditorDocuments> m_documents;
    std::unique_ptr<EditorWordRecognition> m_words;
    // The words that are known are those of this document.
    EditorDocumentId m_wordsOf = EditorDocumentId::none;
    // The custom colour that was chosen last.
    std::optional<EditorColor> m_customColor;
    // As they were when the user asked to move one to the Trash.
    std::vector<Shot> m_shotsBefore;
    // What is being saved, as far as somebody waits for it.
    std::set<EditorDocumentId> m_saving;
    bool m_isAsking = false;
    // What follows on the answer: the end of the window, or of the program.
    std::function<void()> m_whenAnswered;
    // What is to happen when everything is saved or given up.
    std::function<void()> m_closing;
    // The banner tells of what another program did to the file.
    bool m_tellsOfFile = false;
    bool m_isShownDirty = false;
    Generation m_imageGeneration;
    // Of the window.
    Generation m_windowGeneration;
};

} // namespace tembra
