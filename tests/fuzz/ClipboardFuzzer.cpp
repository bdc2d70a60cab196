#include "editor/model/EditorObjectClipboard.h"
#include "fuzz/JsonMutation.h"
#include "fuzz/Require.h"
#include "support/FakePasteboard.h"

using namespace tembra;

// What is pasted can be copied and pasted again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const auto annotations = EditorObjectClipboard::decode({data, static_cast<qsizetype>(size)});
    if (!annotations)
        return 0;
    FakePasteboard pasteboard;
    require(EditorObjectClipboard::write(*annotations, pasteboard).has_value(),
            "what was pasted can be copied");
    require(EditorObjectClipboard::decode(pasteboard.items.at(0).data) == annotations,
            "what was copied is pasted whole");
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room,
                                               unsigned seed) {
    return mutateJson(data, size, room, seed);
}
