#pragma once

#include <QStringList>
#include <functional>
#include <memory>

#include "platform/ado/Dialect.h"

// The reads of the program, one of which can be made to fail: the engine gets it with a table that does not exist, so
// that driver and engine say what they say of a table that is damaged or gone. Made before the program logs on; a
// connection that stands already is left alone.
class FailingReads {
 public:
  FailingReads();
  ~FailingReads();
  FailingReads(const FailingReads&) = delete;
  FailingReads& operator=(const FailingReads&) = delete;

  // Counts from here on, and lets the read of that number fail; none with 0. `beforeWriting` runs before each
  // statement that changes rows.
  void Count(int failing = 0, std::function<void(const QString& statement)> beforeWriting = {});
  // Statements since then, as they were composed.
  const QStringList& Sent() const { return sent_; }
  // The reads among them.
  int Reads() const { return reads_; }
  bool Wrote() const { return wrote_; }
  bool Failed() const { return failing_ > 0 && reads_ >= failing_; }

  // The statement that the engine is given in the place of this one.
  QString InPlaceOf(const QString& statement) const;

 private:
  std::unique_ptr<Dialect> dialect_;
  int failing_ = 0;
  std::function<void(const QString&)> beforeWriting_;
  mutable int reads_ = 0;
  mutable bool wrote_ = false;
  mutable QStringList sent_;
};
