// A picture in memory: scaling by dropping or repeating pixels, as GDI's COLORONCOLOR mode does.
#include <vector>

#include "graphics/linux/surface.h"

namespace {

using Wide = std::int64_t;

// The source index for each target index of one direction of the scaler.
std::vector<int> enlargedIndexes(int from, int to) {
  std::vector<int> indexes(static_cast<std::size_t>(to));
  for (int i = 0; i < to; ++i) {
    indexes[static_cast<std::size_t>(i)] = static_cast<int>(((2 * Wide{i} + 1) * from - 1) / (2 * Wide{to}));
  }
  return indexes;
}

// Where the run of source rows or columns that shrinks to one target index begins.
int startOfRun(int index, int from, int to) {
  return static_cast<int>((2 * Wide{index} * from + to) / (2 * Wide{to}));
}

std::vector<int> sourceRows(int from, int to) {
  if (to >= from) {
    return enlargedIndexes(from, to);
  }
  std::vector<int> rows(static_cast<std::size_t>(to));
  for (int i = 0; i < to; ++i) {
    rows[static_cast<std::size_t>(i)] = startOfRun(i, from, to);
  }
  return rows;
}

// Deliberate: of a run of columns the last one stays where of a run of rows the first one does, and a picture
// that shrinks to a single column keeps the last but one. The platform's scaler does so, and both must look
// alike.
std::vector<int> sourceColumns(int from, int to) {
  if (to >= from) {
    return enlargedIndexes(from, to);
  }
  if (to == 1) {
    return {from - 2};
  }
  std::vector<int> columns(static_cast<std::size_t>(to));
  for (int i = 0; i < to; ++i) {
    columns[static_cast<std::size_t>(i)] = startOfRun(i + 1, from, to) - 1;
  }
  return columns;
}

}  // namespace

void Surface::stretchFrom(const Surface& source) {
  if (source.m_width <= 0 || source.m_height <= 0 || m_width <= 0 || m_height <= 0) {
    return;
  }
  const std::vector<int> rows = sourceRows(source.m_height, m_height);
  const std::vector<int> columns = sourceColumns(source.m_width, m_width);
  for (int y = 0; y < m_height; ++y) {
    const std::uint32_t* from = source.row(rows[static_cast<std::size_t>(y)]);
    std::uint32_t* to = row(y);
    touched(y, 0, m_width);
    for (const int column : columns) {
      *to++ = from[column];
    }
  }
}
