#pragma once

#include "platform/FilePromises.h"

namespace tembra {

// Promises that the test keeps or breaks, by calling `deliver`.
class FakeFilePromises final : public FilePromises {
public:
    // Where the last ones were to go.
    QString folder;
    std::function<void(Result<Delivery>)> deliver;

    void receive(const QMimeData &, const QString &into,
                 std::function<void(Result<Delivery>)> onDone) override {
        folder = into;
        deliver = std::move(onDone);
    }
};

} // namespace tembra
