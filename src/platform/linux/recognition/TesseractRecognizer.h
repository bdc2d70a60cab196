#pragma once

#include "platform/TextRecognizer.h"

#include <QStringList>

#include <chrono>

namespace tembra {

// Tesseract in a worker process, one for each picture: it can be ended at any moment, its faults are not
// ours, and it is told to keep to one thread an engine in the only place where it listens, the environment it
// starts with.
class TesseractRecognizer final : public TextRecognizer {
public:
    struct Worker {
        // Its file; empty where it is not installed.
        QString program;
        // As Tesseract names them.
        QStringList languages;
        std::chrono::milliseconds limit = std::chrono::minutes(1);
    };

    explicit TesseractRecognizer(Worker worker);
    // The worker that belongs to this program, with the user's languages.
    [[nodiscard]] static Worker installedWorker();

    [[nodiscard]] Result<std::vector<Line>> recognize(const QImage &image,
                                                      const Cancellation &cancellation) const override;

private:
    const Worker m_worker;
};

} // namespace tembra
