#pragma once

#include "platform/TextRecognizer.h"

#include <QByteArray>

#include <optional>

namespace tembra {

// What the recognition worker wrote (WorkerProtocol.h); nothing when it is anything else or not whole.
[[nodiscard]] std::optional<std::vector<TextRecognizer::Line>> recognizedText(const QByteArray &output);

} // namespace tembra
