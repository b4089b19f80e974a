#pragma once

#include "schema/TableDifference.h"
#include "site/Rewind.h"

// Takes recorded transactions back: all of their changes, the newest first, or none of them.
class Undo {
 public:
  // `keepSecrets`: passwords and card data that the history does not know stay as they are, or are empty in rows that
  // come back; without it their change cannot be taken back. Reads within the transaction of the caller.
  Undo(Connection& connection, const std::vector<int>& transactions, bool keepSecrets);

  // Why it cannot be done: what has changed since, by whom and when. Empty when it can be tried.
  const QStringList& Refusals() const { return refusals_; }
  // What would be written, as tabulon-db compare tells it.
  QStringList Lines() const;
  // The same, a change for each row.
  std::vector<HistoryChange> AsChanges() const;
  // What of it the history does not know, a sentence each.
  const QStringList& Notes() const { return notes_; }
  size_t Rows() const;
  // Writes it, within the transaction of the caller. AdoError with what the database refuses.
  void Run();

 private:
  void Read(const std::vector<HistoryTransaction>& transactions);
  void RefuseMissing(const std::vector<int>& ids, const std::vector<HistoryTransaction>& found);
  QString Refused(const Rewind::Mismatch& mismatch, const std::vector<HistoryTransaction>& undone);
  void TellUnknown(const Rewind& rewind);

  Connection& connection_;
  const bool keepSecrets_;
  std::vector<TableContent> now_;
  std::vector<TableDifference> differences_;
  QStringList refusals_;
  QStringList notes_;
};
