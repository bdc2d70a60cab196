#include "editor/model/ScreenshotEditRecord.h"
#include "fuzz/JsonMutation.h"
#include "fuzz/Require.h"

using namespace tembra;

// A record that is read stays the same when it is written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArrayView json(data, static_cast<qsizetype>(size));
    const QString temporary = ScreenshotEditRecord::decodeTemporary(json);
    const auto reading = ScreenshotEditRecord::decode(json);
    const auto *record = reading ? std::get_if<ScreenshotEditRecord>(&*reading) : nullptr;
    if (!record)
        return 0;
    const QByteArray written = record->encode(temporary);
    const auto again = ScreenshotEditRecord::decode(written);
    require(again && std::holds_alternative<ScreenshotEditRecord>(*again), "what is written is a record");
    require(std::get<ScreenshotEditRecord>(*again) == *record, "a record is written whole");
    require(ScreenshotEditRecord::decodeTemporary(written) == temporary, "the temporary name is written");
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room,
                                               unsigned seed) {
    return mutateJson(data, size, room, seed);
}
