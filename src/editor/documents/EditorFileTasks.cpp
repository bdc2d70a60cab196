#include "editor/documents/EditorFileTasks.h"

#include "base/Background.h"

#include <algorithm>
#include <utility>

namespace tembra {

EditorFileTasks::EditorFileTasks(SerialQueue &queue, Scheduler &scheduler, const FileFactsReader &files,
                                 EditorDocumentsHooks hooks)
    : m_queue(queue), m_scheduler(scheduler), m_files(files), m_hooks(std::move(hooks)) {}

EditorFileTasks::~EditorFileTasks() {
    // What is on the queue is still written, but nobody will hear of it.
    if (m_isWriting && m_hooks.finishWrite)
        m_hooks.finishWrite(std::nullopt);
}

void EditorFileTasks::add(EditorDocumentId document, Prepare prepare, Done done) {
    m_tasks.push_back({document, std::move(prepare), std::move(done)});
    startNext();
}

bool EditorFileTasks::hasWorkFor(EditorDocumentId document) const {
    return (m_isWriting && m_writingFor == document) ||
           std::ranges::find(m_tasks, document, &Task::document) != m_tasks.end();
}

void EditorFileTasks::startNext() {
    if (m_isWriting || m_tasks.empty())
        return;
    Task task = std::move(m_tasks.front());
    m_tasks.pop_front();
    if (auto next = task.prepare())
        write(std::move(task), std::move(*next));
    else
        finish(task, std::nullopt);
}

void EditorFileTasks::write(Task task, Write write) {
    m_isWriting = true;
    m_writingFor = task.document;
    if (m_hooks.beginSave)
        m_hooks.beginSave(write.shot);
    performInBackground(
        m_queue, m_scheduler, m_life.ticket(),
        [job = std::move(write.job), &files = m_files] {
            auto written = job();
            if (!written)
                return written;
            if (const auto facts = files.facts(written->path))
                written->facts = *facts;
            return written;
        },
        [this, task = std::move(task)](const Result<EditorWritten> &written) {
            m_isWriting = false;
            if (m_hooks.finishWrite)
                m_hooks.finishWrite(written ? std::optional(written->path) : std::nullopt);
            finish(task, written);
        });
}

void EditorFileTasks::finish(const Task &task, const Outcome &outcome) {
    // Whoever is told may end this.
    const auto life = m_life.ticket();
    task.done(outcome);
    if (life.isCurrent() && onFinished)
        onFinished(task.document);
    if (life.isCurrent())
        startNext();
}

} // namespace tembra
