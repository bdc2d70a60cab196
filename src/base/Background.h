#pragma once

#include "base/Generation.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"

#include <utility>

namespace tembra {

// Runs `job` on the queue and hands what it returns to `done` on the main thread, unless the ticket is stale
// by then. The job must own everything it touches. `scheduler` must outlive the queue.
template <class Job, class Done>
void performInBackground(SerialQueue &queue, Scheduler &scheduler, Generation::Ticket ticket, Job job,
                         Done done) {
    queue.post(
        [&scheduler, ticket = std::move(ticket), job = std::move(job), done = std::move(done)]() mutable {
            scheduler.post([ticket = std::move(ticket), done = std::move(done), result = job()]() mutable {
                if (ticket.isCurrent())
                    done(std::move(result));
            });
        });
}

} // namespace tembra
