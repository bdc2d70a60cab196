#pragma once

#include "platform/TextRecognizer.h"
#include "platform/linux/recognition/RecognitionWorker.h"

#include <mutex>

namespace tembra {

// Tesseract in a worker process: it can be ended at any moment, its faults are not ours, and it is told to
// keep to one thread an engine in the only place where it listens, the environment it starts with. The worker
// is started when a picture comes and stays for the next ones; a second picture at the same time gets one of
// its own.
class TesseractOCRRecognizer final : public TextRecognizer {
public:
    // `limit` is how long a picture may take.
    explicit TesseractOCRRecognizer(RecognitionWorker::Program program,
                                    std::chrono::milliseconds limit = std::chrono::minutes(1));
    // The worker that belongs to this program, with the user's languages.
    [[nodiscard]] static RecognitionWorker::Program installedWorker();

    [[nodiscard]] Result<std::vector<Line>> recognize(const QImage &image,
                                                      const Cancellation &cancellation) const override;
    [[nodiscard]] Result<std::vector<Language>> installedLanguages() const override;
    [[nodiscard]] QStringList usualLanguages() const override { return m_usualLanguages; }
    void setLanguages(const QStringList &codes) override;

private:
    using Fault = RecognitionWorker::Fault;

    [[nodiscard]] RecognitionWorker::Outcome<QByteArray> read(const RecognitionWorker::Program &program,
                                                              const Descriptor &picture,
                                                              const Cancellation &cancellation) const;
    [[nodiscard]] std::unique_ptr<RecognitionWorker> takeIdleWorker() const;
    // The latest stays, no other, and only while its languages are the ones to be read.
    void keep(std::unique_ptr<RecognitionWorker> worker, const QStringList &languages) const;

    // With the languages that are to be read now.
    [[nodiscard]] RecognitionWorker::Program program() const;

    const QStringList m_usualLanguages;
    const std::chrono::milliseconds m_limit;
    mutable std::mutex m_lock;
    RecognitionWorker::Program m_program;
    mutable std::unique_ptr<RecognitionWorker> m_idleWorker;
};

} // namespace tembra
