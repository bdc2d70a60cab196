#include "imaging/DeflateRuns.h"

#include "imaging/HuffmanCode.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace tembra {

namespace {

using Bytes = std::span<const unsigned char>;

// So much shares a code: enough to be worth its description, and short enough for the code to suit it.
constexpr std::size_t blockSize = 48 * 1024;
// Of a block's description, amply.
constexpr std::size_t mostBlockOverhead = 512;
constexpr std::size_t shortestRun = 3;
constexpr std::size_t longestRun = 258;
constexpr std::size_t literals = 256;
constexpr std::size_t endOfBlock = 256;
constexpr std::size_t allSymbols = 286;
constexpr unsigned longestCode = 15;

// How a run's length is written (RFC 1951, 3.2.5).
struct RunSymbol {
    std::uint16_t symbol = 0;
    unsigned char extraBits = 0;
    unsigned char extra = 0;
};

constexpr std::array<RunSymbol, longestRun + 1> makeRunSymbols() {
    std::array<RunSymbol, longestRun + 1> symbols{};
    std::size_t length = shortestRun;
    for (std::size_t i = 0; i < 28; ++i) {
        const std::size_t bits = i < 8 ? 0 : i / 4 - 1;
        for (std::size_t extra = 0; extra < std::size_t{1} << bits && length <= longestRun; ++extra)
            symbols[length++] = {static_cast<std::uint16_t>(257 + i), static_cast<unsigned char>(bits),
                                 static_cast<unsigned char>(extra)};
    }
    symbols[longestRun] = {285, 0, 0};
    return symbols;
}

constexpr auto runSymbols = makeRunSymbols();

class BitWriter {
public:
    explicit BitWriter(std::span<unsigned char> room) : m_room(room) {}

    // At most 32 bits.
    void write(std::uint32_t bits, unsigned count) {
        m_bits |= std::uint64_t{bits} << m_count;
        add(count);
    }
    void align() { add((8 - m_count % 8) % 8); }
    // How many bytes there are, the last one filled with zeros.
    std::size_t finish() {
        for (; m_count > 0; m_count -= std::min(8U, m_count)) {
            m_room[m_size++] = static_cast<unsigned char>(m_bits);
            m_bits >>= 8;
        }
        return m_size;
    }

private:
    void add(unsigned count) {
        m_count += count;
        if (m_count < 32)
            return;
        qToLittleEndian(static_cast<std::uint32_t>(m_bits), m_room.data() + m_size);
        m_size += 4;
        m_bits >>= 32;
        m_count -= 32;
    }

    std::span<unsigned char> m_room;
    std::size_t m_size = 0;
    std::uint64_t m_bits = 0;
    unsigned m_count = 0;
};

// A byte, or behind them a run's length.
using Token = std::uint16_t;

class RunDeflater {
public:
    RunDeflater(Bytes data, std::span<unsigned char> room) : m_data(data), m_writer(room) {
        m_tokens.reserve(blockSize);
    }

    std::size_t run(bool isLast) {
        while (m_position < m_data.size()) {
            readBlock();
            writeBlock(isLast && m_position == m_data.size());
        }
        if (isLast)
            return m_writer.finish();
        // An empty block that is stored as it is begins on a whole byte, with its length and the opposite of
        // it.
        m_writer.write(0, 3);
        m_writer.align();
        m_writer.write(0xffff'0000, 32);
        return m_writer.finish();
    }

private:
    void readBlock() {
        m_tokens.clear();
        m_counts.fill(0);
        const std::size_t end = std::min(m_data.size(), m_position + blockSize);
        while (m_position < end) {
            const std::size_t length = m_position > 0 ? runAt(end) : 0;
            if (length < shortestRun) {
                const unsigned char byte = m_data[m_position++];
                ++m_counts[byte];
                m_tokens.push_back(byte);
                continue;
            }
            ++m_counts[runSymbols[length].symbol];
            m_tokens.push_back(static_cast<Token>(literals + length));
            m_position += length;
        }
        m_counts[endOfBlock] = 1;
    }

    // How many bytes from here on are like the one before.
    [[nodiscard]] std::size_t runAt(std::size_t end) const {
        const unsigned char byte = m_data[m_position - 1];
        const std::size_t most = std::min(longestRun, end - m_position);
        std::size_t length = 0;
        while (length < most && m_data[m_position + length] == byte)
            ++length;
        return length;
    }

    void writeBlock(bool isLast) {
        const auto lengths = huffmanLengths(m_counts, longestCode);
        const auto codes = huffmanCodes(lengths);
        m_writer.write(isLast ? 1 : 0, 1);
        m_writer.write(2, 2);
        writeLengths(lengths);
        for (const Token token : m_tokens) {
            if (token < literals) {
                m_writer.write(codes[token], lengths[token]);
                continue;
            }
            const RunSymbol run = runSymbols[token - literals];
            m_writer.write(codes[run.symbol], lengths[run.symbol]);
            // With it the distance of one byte, by the one code that there is for distances.
            m_writer.write(run.extra, run.extraBits + 1U);
        }
        m_writer.write(codes[endOfBlock], lengths[endOfBlock]);
    }

    // Describes the codes (RFC 1951, 3.2.7).
    void writeLengths(const std::vector<unsigned char> &lengths) {
        constexpr std::array<std::size_t, 19> order{16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                    11, 4,  12, 3, 13, 2, 14, 1, 15};
        std::vector<unsigned char> all = lengths;
        all.push_back(1);
        std::array<std::uint32_t, order.size()> counts{};
        for (const unsigned char length : all)
            ++counts[length];
        const auto lengthLengths = huffmanLengths(counts, 7);
        const auto codes = huffmanCodes(lengthLengths);
        m_writer.write(allSymbols - 257, 5);
        m_writer.write(0, 5);
        m_writer.write(static_cast<std::uint32_t>(order.size()) - 4, 4);
        for (const std::size_t symbol : order)
            m_writer.write(lengthLengths[symbol], 3);
        for (const unsigned char length : all)
            m_writer.write(codes[length], lengthLengths[length]);
    }

    Bytes m_data;
    BitWriter m_writer;
    std::size_t m_position = 0;
    std::vector<Token> m_tokens;
    std::array<std::uint32_t, allSymbols> m_counts{};
};

} // namespace

std::size_t deflateRunsBound(std::size_t size) {
    // A code of more than 256 symbols takes nine bits for a byte at worst.
    return size + size / 8 + (size / blockSize + 2) * mostBlockOverhead;
}

std::size_t deflateRuns(Bytes data, bool isLast, std::span<unsigned char> room) {
    return RunDeflater(data, room).run(isLast);
}

} // namespace tembra
