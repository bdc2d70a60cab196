#pragma once

#include <QLibrary>

#include <libheif/heif.h>

namespace tembra {

// libheif's functions under shorter names. It is loaded when a picture of its kind is read, and stays: with
// it come coders of three video formats, a millisecond of each start and two megabytes. Any thread.
class HeifLibrary {
public:
    // Null where it is not installed.
    static const HeifLibrary *instance();

    decltype(&heif_check_filetype) checkFileType = nullptr;
    decltype(&heif_context_alloc) allocateContext = nullptr;
    decltype(&heif_context_free) freeContext = nullptr;
    decltype(&heif_context_read_from_file) readFile = nullptr;
    decltype(&heif_context_get_primary_image_handle) primaryImage = nullptr;
    decltype(&heif_image_handle_get_list_of_thumbnail_IDs) thumbnailIds = nullptr;
    decltype(&heif_image_handle_get_thumbnail) thumbnail = nullptr;
    decltype(&heif_image_handle_get_width) handleWidth = nullptr;
    decltype(&heif_image_handle_get_height) handleHeight = nullptr;
    decltype(&heif_image_handle_release) releaseHandle = nullptr;
    decltype(&heif_decode_image) decode = nullptr;
    decltype(&heif_image_get_plane_readonly) plane = nullptr;
    decltype(&heif_image_get_width) imageWidth = nullptr;
    decltype(&heif_image_get_height) imageHeight = nullptr;
    decltype(&heif_image_release) releaseImage = nullptr;

private:
    HeifLibrary();
    template <class Function>
    void find(Function &function, const char *name);

    QLibrary m_library;
    bool m_isWhole = true;
};

} // namespace tembra
