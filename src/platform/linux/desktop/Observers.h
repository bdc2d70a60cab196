#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace tembra {

// Who is told about something: each observer is a function that lives as long as its handle, which derives
// from `Handle`. Observers may come and go while they are being told. Main thread.
template <class Handle, class... Arguments>
class Observers {
public:
    using Function = std::function<void(Arguments...)>;

    [[nodiscard]] std::unique_ptr<Handle> add(Function function) {
        auto shared = std::make_shared<const Function>(std::move(function));
        m_functions.push_back(shared);
        return std::make_unique<Entry>(std::move(shared));
    }

    void notify(Arguments... arguments) {
        const auto told = m_functions;
        for (const auto &function : told) {
            if (const auto alive = function.lock())
                (*alive)(arguments...);
        }
        removeEnded();
    }

    [[nodiscard]] bool isEmpty() {
        removeEnded();
        return m_functions.empty();
    }

private:
    class Entry final : public Handle {
    public:
        explicit Entry(std::shared_ptr<const Function> function) : m_function(std::move(function)) {}

    private:
        const std::shared_ptr<const Function> m_function;
    };

    void removeEnded() {
        std::erase_if(m_functions, [](const auto &function) { return function.expired(); });
    }

    std::vector<std::weak_ptr<const Function>> m_functions;
};

} // namespace tembra
