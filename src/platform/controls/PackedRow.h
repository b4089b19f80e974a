#pragma once

#include <QStringView>
#include <cstddef>
#include <memory>
#include <span>

// One row of a grid in one heap block: a number, the number of cells, where each cell ends, and the text of all cells
// as UTF-16 one after the other. A row of 8 cells costs 44 bytes beyond its text, the allocator's own share left out.
class PackedRow {
 public:
  explicit PackedRow(std::span<const QStringView> cells, qint64 data = 0);

  int Cells() const { return static_cast<int>(*Count()); }
  QStringView Cell(int cell) const;
  // UTF-16 units of all cells together.
  qsizetype Length() const { return Cells() == 0 ? 0 : Ends()[Cells() - 1]; }
  qint64 Data() const { return *Number(); }
  void SetData(qint64 data) { *Number() = data; }
  // Packs the row again with another text in one cell.
  void SetCell(int cell, QStringView text);

 private:
  // The block: a 64-bit number, the count of cells, the end of each cell in UTF-16 units, the text.
  qint64* Number() const { return reinterpret_cast<qint64*>(block_.get()); }
  quint32* Count() const { return reinterpret_cast<quint32*>(block_.get() + sizeof(qint64)); }
  quint32* Ends() const { return Count() + 1; }
  char16_t* Text() const { return reinterpret_cast<char16_t*>(Ends() + *Count()); }

  std::unique_ptr<std::byte[]> block_;
};
