#pragma once

namespace tembra {

// The sounds of the interface, as the desktop's sound theme has them. Main thread.
class Sounds {
public:
    enum class Event { movedToTrash, restored };

    virtual ~Sounds() = default;
    // Returns at once. Silent where the user has switched the desktop's event sounds off, where the theme has
    // no such sound, and on a machine without sound.
    virtual void play(Event event) = 0;
};

} // namespace tembra
