#include "platform/ado/RowStore.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr size_t FirstBlock = 4 * 1024;
constexpr size_t LargestBlock = 1024 * 1024;

}  // namespace

std::byte* RowStore::Take(size_t size) {
  size = (size + alignof(End) - 1) / alignof(End) * alignof(End);
  if (size > left_) {
    // A small recordset takes little, a large one few blocks.
    const size_t block = std::max(size, std::clamp(bytes_, FirstBlock, LargestBlock));
    blocks_.push_back(std::make_unique<std::byte[]>(block));
    free_ = blocks_.back().get();
    left_ = block;
    bytes_ += block;
  }
  std::byte* taken = free_;
  free_ += size;
  left_ -= size;
  return taken;
}

std::byte* RowStore::Pack(const std::vector<QString>& cells) {
  const size_t head = sizeof(End) * cells.size();
  size_t characters = 0;
  for (const QString& cell : cells) characters += size_t(cell.size());
  std::byte* row = Take(head + characters * sizeof(QChar));
  std::byte* text = row + head;
  End end = 0;
  for (size_t i = 0; i < cells.size(); ++i) {
    const QString& cell = cells[i];
    const size_t size = size_t(cell.size()) * sizeof(QChar);
    if (size > 0) std::memcpy(text, cell.constData(), size);
    text += size;
    end += End(cell.size());
    const End stored = end | (cell.isNull() ? NullBit : 0);
    std::memcpy(row + i * sizeof(End), &stored, sizeof(End));
  }
  return row;
}

void RowStore::Add(const std::vector<QString>& cells) {
  rows_.push_back(Pack(cells));
}

void RowStore::Replace(size_t row, const std::vector<QString>& cells) {
  rows_[row] = Pack(cells);
}

RowStore::End RowStore::EndOf(size_t row, int column) const {
  End end = 0;
  std::memcpy(&end, rows_[row] + size_t(column) * sizeof(End), sizeof(End));
  return end;
}

bool RowStore::IsNull(size_t row, int column) const {
  return (EndOf(row, column) & NullBit) != 0;
}

QString RowStore::Text(size_t row, int column) const {
  const End end = EndOf(row, column);
  if ((end & NullBit) != 0) return {};
  const End begin = column == 0 ? 0 : EndOf(row, column - 1) & ~NullBit;
  if (begin == end) return QString(QLatin1String(""));
  const std::byte* text = rows_[row] + sizeof(End) * size_t(columns_) + begin * sizeof(QChar);
  QString value(qsizetype(end - begin), Qt::Uninitialized);
  std::memcpy(value.data(), text, size_t(end - begin) * sizeof(QChar));
  return value;
}
