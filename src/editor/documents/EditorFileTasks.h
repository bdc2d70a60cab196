#pragma once

#include "base/Generation.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "editor/documents/EditorDocumentId.h"
#include "editor/documents/EditorDocumentsHooks.h"
#include "editor/documents/EditorWritten.h"

#include <deque>
#include <functional>
#include <optional>

namespace tembra {

// Whatever is done to the files of screenshots, one after the other: each thing begins when the one before
// has ended, from what is so by then. The shelf is told before and after. Main thread; owned by
// EditorDocuments.
class EditorFileTasks {
public:
    struct Write {
        // The screenshot for which it is written.
        Shot shot;
        // On the queue. Need not tell the facts of what it has written.
        std::function<Result<EditorWritten>()> job;
    };
    // Nothing when there is nothing to write after all.
    using Prepare = std::function<std::optional<Write>()>;
    // As far as something was written.
    using Outcome = std::optional<Result<EditorWritten>>;
    using Done = std::function<void(const Outcome &)>;

    EditorFileTasks(SerialQueue &queue, Scheduler &scheduler, const FileFactsReader &files,
                    EditorDocumentsHooks hooks);
    ~EditorFileTasks();
    EditorFileTasks(const EditorFileTasks &) = delete;
    EditorFileTasks &operator=(const EditorFileTasks &) = delete;

    // After each task, when its `done` was called.
    std::function<void(EditorDocumentId)> onFinished;

    void add(EditorDocumentId document, Prepare prepare, Done done);
    [[nodiscard]] bool isIdle() const { return !m_isWriting && m_tasks.empty(); }
    [[nodiscard]] bool hasWorkFor(EditorDocumentId document) const;

private:
    struct Task {
        EditorDocumentId document;
        Prepare prepare;
        Done done;
    };

    void startNext();
    void write(Task task, Write write);
    void finish(const Task &task, const Outcome &outcome);

    SerialQueue &m_queue;
    Scheduler &m_scheduler;
    const FileFactsReader &m_files;
    const EditorDocumentsHooks m_hooks;
    std::deque<Task> m_tasks;
    bool m_isWriting = false;
    EditorDocumentId m_writingFor = EditorDocumentId::none;
    Generation m_life;
};

} // namespace tembra
