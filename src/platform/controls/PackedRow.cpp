#include "platform/controls/PackedRow.h"

#include <cstring>
#include <vector>

PackedRow::PackedRow(std::span<const QStringView> cells, qint64 data) {
  qsizetype length = 0;
  for (const QStringView cell : cells) length += cell.size();
  block_ = std::make_unique_for_overwrite<std::byte[]>(sizeof(qint64) + (1 + cells.size()) * sizeof(quint32) +
                                                       static_cast<std::size_t>(length) * sizeof(char16_t));
  *Number() = data;
  *Count() = static_cast<quint32>(cells.size());
  quint32 end = 0;
  quint32* ends = Ends();
  char16_t* text = Text();
  for (const QStringView cell : cells) {
    if (!cell.isEmpty())
      std::memcpy(text + end, cell.utf16(), static_cast<std::size_t>(cell.size()) * sizeof(char16_t));
    end += static_cast<quint32>(cell.size());
    *ends++ = end;
  }
}

QStringView PackedRow::Cell(int cell) const {
  const quint32* ends = Ends();
  const quint32 begin = cell == 0 ? 0 : ends[cell - 1];
  return {Text() + begin, static_cast<qsizetype>(ends[cell] - begin)};
}

void PackedRow::SetCell(int cell, QStringView text) {
  std::vector<QStringView> cells;
  cells.reserve(static_cast<std::size_t>(Cells()));
  for (int i = 0; i < Cells(); ++i) cells.push_back(i == cell ? text : Cell(i));
  PackedRow packed(cells, Data());
  block_ = std::move(packed.block_);
}
