#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace tembra {

// Who is told about something: each observer is a function that lives as long as its handle, which derives
// from `Handle`. Observers may come and go while they are being told, and a handle may outlive this list.
// Main thread.
template <class Handle, class... Arguments>
class Observers {
public:
    using Function = std::function<void(Arguments...)>;

    Observers() = default;
    // `onChange` is called after an observer came or went, so that events nobody wants can be given up.
    explicit Observers(std::function<void()> onChange)
        : m_onChange(std::make_shared<const std::function<void()>>(std::move(onChange))) {}

    [[nodiscard]] std::unique_ptr<Handle> add(Function function) {
        auto shared = std::make_shared<const Function>(std::move(function));
        std::erase_if(m_functions, [](const auto &known) { return known.expired(); });
        m_functions.push_back(shared);
        auto entry = std::make_unique<Entry>(std::move(shared), m_onChange);
        if (m_onChange)
            (*m_onChange)();
        return entry;
    }

    void notify(Arguments... arguments) {
        const auto told = m_functions;
        for (const auto &function : told) {
            if (const auto alive = function.lock())
                (*alive)(arguments...);
        }
    }

    [[nodiscard]] bool isEmpty() const {
        return std::ranges::all_of(m_functions, [](const auto &function) { return function.expired(); });
    }

private:
    using Hook = std::shared_ptr<const std::function<void()>>;

    class Entry final : public Handle {
    public:
        Entry(std::shared_ptr<const Function> function, const Hook &onChange)
            : m_function(std::move(function)), m_onChange(onChange) {}
        ~Entry() override {
            m_function.reset();
            if (const auto onChange = m_onChange.lock())
                (*onChange)();
        }

    private:
        std::shared_ptr<const Function> m_function;
        std::weak_ptr<const std::function<void()>> m_onChange;
    };

    Hook m_onChange;
    std::vector<std::weak_ptr<const Function>> m_functions;
};

} // namespace tembra
