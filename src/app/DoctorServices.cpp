#include "app/DoctorServices.h"

#include "platform/Platform.h"

namespace tembra {

Doctor::Services doctorServices(Platform &platform, Scheduler &scheduler, SerialQueue &queue) {
    return {.events = *platform.folderEvents,
            .panels = *platform.panelWindows,
            .displays = *platform.displays,
            .trash = *platform.trash,
            .volumes = *platform.volumes,
            .recognizer = *platform.textRecognizer,
            .scheduler = scheduler,
            .queue = queue,
            .folders = platform.folders,
            .preferences = platform.screenCapturePreferences,
            .desktop = platform.desktopFindings,
            .userVolumes = platform.userVolumes};
}

} // namespace tembra
