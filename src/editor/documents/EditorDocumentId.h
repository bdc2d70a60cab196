#pragma once

#include <cstdint>

namespace tembra {

// Names an open document, also after it is gone: none is used twice.
enum class EditorDocumentId : std::int64_t { none = 0 };

} // namespace tembra
