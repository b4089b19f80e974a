#pragma once

#include <functional>
#include <vector>

// What stands on a screen, whether it was changed, and whether it may be written. Nobody else knows these three.
class Record {
 public:
  enum class State {
    None,   // no record is on show
    Whole,  // the record on show was read whole
    Torn    // its reading broke off: what is on show is a part of it, or of another one
  };

  Record() = default;
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  State Status() const { return state_; }
  // What was never read is never written: commands that change, replace or remove the record follow this.
  bool MayBeWritten() const { return state_ == State::Whole; }
  // A field differs from what was read. gbRecordModified is that of the page that the user works on.
  bool Modified() const { return modified_; }

  // A field was compared with what was read. Nothing while code fills the fields.
  void Compared(bool differs);
  // A field was changed, whatever stood there. Nothing while code fills the fields.
  void Touched() { Compared(true); }
  // Fields and record are the same again: stored, shown anew or dropped.
  void Settled();

  // A record stands on the screen as it was read, or none does. The fields are settled.
  void Shown();
  void Gone();

  // Told after each change of state or mark.
  void Observe(std::function<void()> observer) { observers_.push_back(std::move(observer)); }

  class Filling;
  class Reading;

 private:
  void Become(State state, bool modified);

  State state_ = State::None;
  bool modified_ = false;
  int filling_ = 0;
  std::vector<std::function<void()>> observers_;
};

// As long as it lives, code fills the fields, and changes of theirs leave the mark alone. Nests.
class Record::Filling {
 public:
  explicit Filling(Record& record) : record_(record) { ++record_.filling_; }
  ~Filling() { --record_.filling_; }
  Filling(const Filling&) = delete;
  Filling& operator=(const Filling&) = delete;

 private:
  Record& record_;
};

// Around the reading of a record. Left before it ended, by a failure or otherwise: the screen is as before while
// nothing was replaced on it, and torn from then on.
class Record::Reading {
 public:
  explicit Reading(Record& record) : record_(record) {}
  ~Reading();
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

  // From here on the screen does not show the record that stood there before. Fields may be filled.
  void Replaces();
  // The record was read whole, and its fields are filled.
  void Ended();

 private:
  Record& record_;
  bool replaces_ = false, ended_ = false;
};
