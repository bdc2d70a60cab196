#include "platform/linux/HeifLibrary.h"

namespace tembra {

const HeifLibrary *HeifLibrary::instance() {
    static const HeifLibrary library;
    return library.m_isWhole ? &library : nullptr;
}

HeifLibrary::HeifLibrary() : m_library(QStringLiteral("heif"), 1) {
    find(checkFileType, "heif_check_filetype");
    find(allocateContext, "heif_context_alloc");
    find(freeContext, "heif_context_free");
    find(readFile, "heif_context_read_from_file");
    find(primaryImage, "heif_context_get_primary_image_handle");
    find(thumbnailIds, "heif_image_handle_get_list_of_thumbnail_IDs");
    find(thumbnail, "heif_image_handle_get_thumbnail");
    find(handleWidth, "heif_image_handle_get_width");
    find(handleHeight, "heif_image_handle_get_height");
    find(releaseHandle, "heif_image_handle_release");
    find(decode, "heif_decode_image");
    find(plane, "heif_image_get_plane_readonly");
    find(imageWidth, "heif_image_get_width");
    find(imageHeight, "heif_image_get_height");
    find(releaseImage, "heif_image_release");
}

template <class Function>
void HeifLibrary::find(Function &function, const char *name) {
    function = reinterpret_cast<Function>(m_library.resolve(name));
    m_isWhole = m_isWhole && function != nullptr;
}

} // namespace tembra
