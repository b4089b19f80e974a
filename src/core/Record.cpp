#include "core/Record.h"

void Record::Become(State state, bool modified) {
  if (state == state_ && modified == modified_) return;
  state_ = state;
  modified_ = modified;
  for (const auto& observer : observers_) observer();
}

void Record::Compared(bool differs) {
  if (filling_ == 0) Become(state_, differs);
}

void Record::Settled() {
  Become(state_, false);
}

void Record::Shown() {
  Become(State::Whole, false);
}

void Record::Gone() {
  Become(State::None, false);
}

// --- Reading ---

void Record::Reading::Replaces() {
  if (replaces_) return;
  replaces_ = true;
  ++record_.filling_;
}

void Record::Reading::Ended() {
  ended_ = true;
  record_.Shown();
}

Record::Reading::~Reading() {
  if (!replaces_) return;
  --record_.filling_;
  if (!ended_) record_.Become(State::Torn, false);
}
