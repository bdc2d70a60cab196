#pragma once

#include <cstddef>
#include <span>
#include <sys/mman.h>

namespace tembra {

// Memory taken from the system in pages and given back to it when it is released, which a heap need not do.
// Keeps what it has for the next use: fresh pages cost more than what is done with them.
class PageBuffer {
public:
    PageBuffer() = default;
    ~PageBuffer() { release(); }
    PageBuffer(const PageBuffer &) = delete;
    PageBuffer &operator=(const PageBuffer &) = delete;

    // So many bytes with any content, until the next call; empty when there is no memory.
    [[nodiscard]] std::span<unsigned char> take(std::size_t size) {
        if (size > m_size)
            grow(size);
        return {static_cast<unsigned char *>(m_pages), m_pages ? size : 0};
    }

    void release() {
        if (m_pages)
            ::munmap(m_pages, m_size);
        m_pages = nullptr;
        m_size = 0;
    }

private:
    void grow(std::size_t size) {
        release();
        void *pages = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (pages == MAP_FAILED)
            return;
        // Fewer faults for as many bytes; a wish, no more.
        ::madvise(pages, size, MADV_HUGEPAGE);
        m_pages = pages;
        m_size = size;
    }

    void *m_pages = nullptr;
    std::size_t m_size = 0;
};

} // namespace tembra
