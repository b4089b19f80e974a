#pragma once

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

#include "platform/ado/Waiting.h"

// Where the calls of one connection's driver run: one after the other, in a thread that is theirs alone, since a
// connection of QtSql belongs to the thread that made it. Where nobody has set a hook for waiting it is the caller's
// own.
class DriverThread {
 public:
  // `stop` asks for the end of the call under way, `giveUp` ends its link. Both come from the thread that waits.
  DriverThread(std::function<void()> stop, std::function<void()> giveUp);
  ~DriverThread();
  DriverThread(const DriverThread&) = delete;
  DriverThread& operator=(const DriverThread&) = delete;

  // Returns when the job has, and throws what it has thrown. A job may call again.
  void Call(const std::function<void()>& job);

 private:
  class Pending;

  void Serve();
  void Await(std::unique_lock<std::mutex>& lock);

  const std::function<void()> stop_, giveUp_;
  std::mutex mutex_;
  std::condition_variable changed_;
  const std::function<void()>* job_ = nullptr;  // null when there is none to run
  bool busy_ = false;                           // a call has begun and its caller has not gone on
  bool done_ = false, ends_ = false;
  std::exception_ptr thrown_;
  std::thread thread_;  // none without a hook
};
