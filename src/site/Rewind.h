#pragma once

#include <unordered_map>

#include "site/HistoryList.h"

// Takes recorded changes back in rows that were read, without writing anything. What the rows hold must be what each
// change left behind.
class Rewind {
 public:
  // Why a change cannot be taken back.
  struct Mismatch {
    HistoryChange change;
    QString reason;
  };
  // A password or card datum that the history does not know: it stays as it is, or is empty in a row that comes back.
  struct Unknown {
    const SchemaTable* table;
    QString row;  // "LIBRARY_ID 12"
    QString column;
  };

  // The rows of a table that the changes concern; others may be among them.
  void Add(TableContent content);
  // The newest change first. False when it does not fit; the rows then stay as they were before it.
  bool TakeBack(const HistoryChange& change);

  const std::optional<Mismatch>& Failure() const { return failure_; }
  std::vector<Unknown> UnknownSecrets() const;
  // The tables with the rows as they were before.
  std::vector<TableContent> Contents() const;

 private:
  struct Former {
    Row cells;
    std::vector<bool> unknown;  // secrets that the history does not know
  };
  struct Table {
    TableContent content;  // without its rows
    std::vector<int> key;  // positions
    bool keyIsUnique = false;
    std::unordered_multimap<QString, Former> rows;  // by key
  };
  using Place = std::unordered_multimap<QString, Former>::iterator;

  bool TakeBackAdded(Table& table, const HistoryChange& change);
  bool TakeBackRemoved(Table& table, const HistoryChange& change);
  bool TakeBackChanged(Table& table, const HistoryChange& change);
  bool Fail(const HistoryChange& change, const QString& reason);
  static QString KeyOf(const Table& table, const Row& row);
  // A row of that key which holds the values; the end when there is none.
  static Place Find(Table& table, const QString& key, const HistoryValues& values, bool whole);

  std::map<const SchemaTable*, Table> tables_;
  std::optional<Mismatch> failure_;
};
