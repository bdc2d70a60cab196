#pragma once

#include "base/Generation.h"
#include "base/SerialQueue.h"
#include "doctor/DoctorCheck.h"
#include "doctor/DoctorSubject.h"
#include "doctor/FolderProbe.h"
#include "doctor/PanelProbe.h"
#include "platform/DesktopFindings.h"
#include "platform/ScreenCapturePreferences.h"
#include "platform/StandardFolders.h"
#include "platform/TextRecognizer.h"
#include "platform/Trash.h"
#include "platform/Volumes.h"

#include <vector>

namespace tembra {

// Tries, on this very desktop, everything that the program needs of it, and tells what works and what mends
// the rest. Main thread; one examination at a time.
class Doctor {
public:
    // Everything outlives it. The queue waits for disks and for the text recognition.
    struct Services {
        FolderEvents &events;
        PanelWindows &panels;
        const Displays &displays;
        Trash &trash;
        const Volumes &volumes;
        TextRecognizer &recognizer;
        Scheduler &scheduler;
        SerialQueue &queue;
        StandardFolders folders;
        std::function<std::unique_ptr<ScreenCapturePreferences>()> preferences;
        std::function<DesktopFindings()> desktop;
        // Where volumes are mounted on which the user may keep files.
        std::function<QStringList()> userVolumes;
    };

    using Checks = std::vector<DoctorCheck>;

    explicit Doctor(Services services);

    // Whoever asks while an examination is under way gets no answer of the one before.
    void examine(const DoctorSubject &subject, std::function<void(Checks)> told);

private:
    struct Background {
        Finding folder;
        Finding tool;
        Finding languages;
        // By the folder that was tried, each on another volume.
        std::vector<std::pair<QString, Finding>> trash;
    };

    [[nodiscard]] std::function<Background()> backgroundWork() const;
    void probeFolder();
    void probePanel(const Finding &events);
    void tell(const Finding &events, const Finding &panel);
    [[nodiscard]] Finding eventsFinding(bool wereNoticed) const;

    const Services m_services;
    FolderProbe m_folderProbe;
    PanelProbe m_panelProbe;
    DoctorSubject m_subject;
    DesktopFindings m_desktop;
    Background m_background;
    std::function<void(Checks)> m_told;
    Generation m_examinations;
};

} // namespace tembra
