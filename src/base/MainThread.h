#pragma once

#include <source_location>

namespace tembra {

// First line of every entry point that belongs to the main thread: a call from elsewhere is a programming
// error and stops the process with the function's name. The main thread is the one that the application
// object lives on, or, without an application object, the first thread that asked.
void requireMainThread(const std::source_location &where = std::source_location::current());

} // namespace tembra
