#pragma once

#include <cstdint>
#include <memory>

namespace tembra {

// The guard against late results. The owner keeps a Generation; work that ends later carries a Ticket taken
// when it was scheduled and does nothing once the generation has moved on or its owner is gone. Main thread
// only; tickets may be carried through other threads but are asked only on the main thread.
class Generation {
public:
    class Ticket {
    public:
        [[nodiscard]] bool isCurrent() const { return *m_counter == m_value; }

    private:
        friend class Generation;
        explicit Ticket(std::shared_ptr<const std::int64_t> counter)
            : m_counter(std::move(counter)), m_value(*m_counter) {}

        std::shared_ptr<const std::int64_t> m_counter;
        std::int64_t m_value;
    };

    Generation() = default;
    ~Generation() { advance(); }
    Generation(const Generation &) = delete;
    Generation &operator=(const Generation &) = delete;

    void advance() { ++*m_counter; }
    [[nodiscard]] Ticket ticket() const { return Ticket(m_counter); }

private:
    std::shared_ptr<std::int64_t> m_counter = std::make_shared<std::int64_t>(0);
};

} // namespace tembra
