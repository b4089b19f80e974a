#pragma once

#include <QString>
#include <cstddef>
#include <memory>
#include <vector>

// Rows of text, packed: each row is one run of characters behind a small table of where its cells end. A hundred
// thousand rows of twelve cells cost a few hundred allocations.
class RowStore {
 public:
  explicit RowStore(int columns = 0) : columns_(columns) {}

  // As many cells as columns; a null text is NULL.
  void Add(const std::vector<QString>& cells);
  void Replace(size_t row, const std::vector<QString>& cells);
  size_t Count() const { return rows_.size(); }
  bool IsNull(size_t row, int column) const;
  // Null for NULL, empty but not null for an empty text.
  QString Text(size_t row, int column) const;
  size_t Bytes() const { return bytes_; }  // of all memory taken

 private:
  using End = quint32;  // where a cell ends, in characters; the highest bit says NULL
  static constexpr End NullBit = 0x80000000u;

  End EndOf(size_t row, int column) const;
  std::byte* Pack(const std::vector<QString>& cells);
  std::byte* Take(size_t size);

  int columns_;
  std::vector<const std::byte*> rows_;
  std::vector<std::unique_ptr<std::byte[]>> blocks_;
  std::byte* free_ = nullptr;
  size_t left_ = 0;
  size_t bytes_ = 0;
};
