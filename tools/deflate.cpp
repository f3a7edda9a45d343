// Compresses: LZ77 with chains of equal hashes, fixed Huffman code.
#include "deflate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

constexpr std::size_t shortestMatch = 3;
constexpr std::size_t longestMatch = 258;
constexpr std::size_t window = 32768;  // bytes that a match may reach back
constexpr int chainLimit = 128;        // candidates tried for each match
constexpr std::uint32_t hashSize = 1U << 15;
constexpr std::ptrdiff_t none = -1;

// Where the lengths and distances of each code begin, and how many more bits tell them exactly.
struct Range {
  std::uint32_t first;
  std::uint32_t extraBits;
};
constexpr std::array<Range, 29> lengthCodes = {
    {{3, 0},  {4, 0},  {5, 0},  {6, 0},   {7, 0},   {8, 0},   {9, 0},   {10, 0},  {11, 1}, {13, 1},
     {15, 1}, {17, 1}, {19, 2}, {23, 2},  {27, 2},  {31, 2},  {35, 3},  {43, 3},  {51, 3}, {59, 3},
     {67, 4}, {83, 4}, {99, 4}, {115, 4}, {131, 5}, {163, 5}, {195, 5}, {227, 5}, {258, 0}}};
constexpr std::array<Range, 30> distanceCodes = {
    {{1, 0},     {2, 0},     {3, 0},     {4, 0},      {5, 1},      {7, 1},     {9, 2},     {13, 2},
     {17, 3},    {25, 3},    {33, 4},    {49, 4},     {65, 5},     {97, 5},    {129, 6},   {193, 6},
     {257, 7},   {385, 7},   {513, 8},   {769, 8},    {1025, 9},   {1537, 9},  {2049, 10}, {3073, 10},
     {4097, 11}, {6145, 11}, {8193, 12}, {12289, 12}, {16385, 13}, {24577, 13}}};

class BitWriter {
 public:
  // The lowest bit goes first.
  void put(std::uint32_t value, std::uint32_t count) {
    for (std::uint32_t i = 0; i < count; ++i) {
      m_byte |= ((value >> i) & 1U) << m_used;
      if (++m_used == 8) {
        finishByte();
      }
    }
  }
  // Huffman codes go with their highest bit first.
  void putCode(std::uint32_t code, std::uint32_t count) {
    for (std::uint32_t i = count; i > 0; --i) {
      put((code >> (i - 1)) & 1U, 1);
    }
  }
  std::string finish() {
    if (m_used > 0) {
      finishByte();
    }
    return std::move(m_bytes);
  }

 private:
  void finishByte() {
    m_bytes += static_cast<char>(m_byte);
    m_byte = 0;
    m_used = 0;
  }

  std::string m_bytes;
  std::uint32_t m_byte = 0;
  std::uint32_t m_used = 0;
};

// A literal byte, the end of the block (256) or a length, in the fixed code.
void putSymbol(BitWriter& bits, std::uint32_t symbol) {
  if (symbol < 144) {
    bits.putCode(0x30 + symbol, 8);
  } else if (symbol < 256) {
    bits.putCode(0x190 + symbol - 144, 9);
  } else if (symbol < 280) {
    bits.putCode(symbol - 256, 7);
  } else {
    bits.putCode(0xc0 + symbol - 280, 8);
  }
}

template <std::size_t count>
std::uint32_t codeOf(const std::array<Range, count>& codes, std::uint32_t value) {
  const auto next =
      std::upper_bound(codes.begin(), codes.end(), value,
                       [](std::uint32_t wanted, const Range& range) { return wanted < range.first; });
  return static_cast<std::uint32_t>(next - codes.begin()) - 1;
}

void putMatch(BitWriter& bits, std::uint32_t length, std::uint32_t distance) {
  const std::uint32_t lengthCode = codeOf(lengthCodes, length);
  putSymbol(bits, 257 + lengthCode);
  bits.put(length - lengthCodes[lengthCode].first, lengthCodes[lengthCode].extraBits);
  const std::uint32_t distanceCode = codeOf(distanceCodes, distance);
  bits.putCode(distanceCode, 5);
  bits.put(distance - distanceCodes[distanceCode].first, distanceCodes[distanceCode].extraBits);
}

struct Match {
  std::size_t length = 0;
  std::size_t distance = 0;
};

// Remembers where each three bytes stood before.
class Matcher {
 public:
  explicit Matcher(std::string_view bytes)
      : m_bytes(bytes), m_newest(hashSize, none), m_older(bytes.size(), none) {}

  void remember(std::size_t at) {
    if (at + shortestMatch <= m_bytes.size()) {
      const std::uint32_t hash = hashAt(at);
      m_older[at] = m_newest[hash];
      m_newest[hash] = static_cast<std::ptrdiff_t>(at);
    }
  }

  Match longestAt(std::size_t at) const {
    Match best;
    if (at + shortestMatch > m_bytes.size()) {
      return best;
    }
    std::ptrdiff_t candidate = m_newest[hashAt(at)];
    for (int tried = 0; candidate != none && tried < chainLimit; ++tried) {
      const auto from = static_cast<std::size_t>(candidate);
      if (at - from > window) {
        break;
      }
      const std::size_t length = lengthOf(from, at);
      if (length >= shortestMatch && length > best.length) {
        best = {length, at - from};
      }
      candidate = m_older[from];
    }
    return best;
  }

 private:
  std::uint32_t hashAt(std::size_t at) const {
    const auto byte = [this](std::size_t i) {
      return static_cast<std::uint32_t>(static_cast<unsigned char>(m_bytes[i]));
    };
    return ((byte(at) << 16 | byte(at + 1) << 8 | byte(at + 2)) * 0x9e3779b1U) >> 17;
  }
  std::size_t lengthOf(std::size_t from, std::size_t at) const {
    const std::size_t limit = std::min(longestMatch, m_bytes.size() - at);
    std::size_t length = 0;
    while (length < limit && m_bytes[from + length] == m_bytes[at + length]) {
      ++length;
    }
    return length;
  }

  std::string_view m_bytes;
  std::vector<std::ptrdiff_t> m_newest;
  std::vector<std::ptrdiff_t> m_older;
};

std::uint32_t adler32(std::string_view bytes) {
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (const char byte : bytes) {
    a = (a + static_cast<unsigned char>(byte)) % 65521U;
    b = (b + a) % 65521U;
  }
  return b << 16 | a;
}

}  // namespace

std::string zlibStream(std::string_view bytes) {
  BitWriter bits;
  bits.put(1, 1);  // the only block
  bits.put(1, 2);  // of the fixed code
  Matcher matcher(bytes);
  for (std::size_t at = 0; at < bytes.size();) {
    const Match match = matcher.longestAt(at);
    const std::size_t taken = std::max<std::size_t>(match.length, 1);
    if (match.length > 0) {
      putMatch(bits, static_cast<std::uint32_t>(match.length), static_cast<std::uint32_t>(match.distance));
    } else {
      putSymbol(bits, static_cast<unsigned char>(bytes[at]));
    }
    for (std::size_t i = 0; i < taken; ++i) {
      matcher.remember(at + i);
    }
    at += taken;
  }
  putSymbol(bits, 256);
  std::string stream = "\x78\x9c" + bits.finish();
  const std::uint32_t sum = adler32(bytes);
  for (int shift = 24; shift >= 0; shift -= 8) {
    stream += static_cast<char>((sum >> shift) & 0xffU);
  }
  return stream;
}
