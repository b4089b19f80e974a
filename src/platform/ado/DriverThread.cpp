#include "platform/ado/DriverThread.h"

#include <QScopedValueRollback>
#include <chrono>
#include <optional>
#include <utility>

#include "platform/ado/AdoError.h"

using Clock = std::chrono::steady_clock;

// What the hook sees of a call.
class DriverThread::Pending : public Waiting {
 public:
  explicit Pending(DriverThread& thread) : thread_(thread) {}

  bool Done() const override {
    {
      const std::lock_guard<std::mutex> lock(thread_.mutex_);
      if (thread_.done_) return true;
    }
    if (cancelled_ && !givenUp_ && Clock::now() - *cancelled_ >= GivenUpAfter) {
      givenUp_ = true;
      thread_.giveUp_();
    }
    return false;
  }
  std::chrono::milliseconds Elapsed() const override {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begun_);
  }
  void Cancel() override {
    if (cancelled_) return;
    cancelled_ = Clock::now();
    thread_.stop_();
  }

 private:
  DriverThread& thread_;
  const Clock::time_point begun_ = Clock::now() - Patience();
  std::optional<Clock::time_point> cancelled_;
  mutable bool givenUp_ = false;
};

DriverThread::DriverThread(std::function<void()> stop, std::function<void()> giveUp)
    : stop_(std::move(stop)), giveUp_(std::move(giveUp)) {
  if (Waiting::CurrentHook()) thread_ = std::thread([this] { Serve(); });
}

DriverThread::~DriverThread() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    ends_ = true;
  }
  changed_.notify_all();
  thread_.join();
}

void DriverThread::Call(const std::function<void()>& job) {
  if (!thread_.joinable() || std::this_thread::get_id() == thread_.get_id()) return job();
  std::unique_lock<std::mutex> lock(mutex_);
  if (busy_) {
    throw AdoError(AdoNumber::Unspecified, QStringLiteral("Another statement of this connection is under way."),
                   QStringLiteral("Connection"));
  }
  const QScopedValueRollback busy(busy_, true);
  job_ = &job;
  done_ = false;
  changed_.notify_all();
  Await(lock);
  if (std::exception_ptr thrown = std::exchange(thrown_, nullptr)) std::rethrow_exception(thrown);
}

void DriverThread::Await(std::unique_lock<std::mutex>& lock) {
  const auto done = [this] { return done_; };
  const Waiting::Hook& hook = Waiting::CurrentHook();
  if (hook && !changed_.wait_for(lock, Waiting::Patience(), done)) {
    lock.unlock();
    Pending call(*this);
    hook(call);
    lock.lock();
  }
  changed_.wait(lock, done);
}

void DriverThread::Serve() {
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return job_ || ends_; });
    if (!job_) return;
    const std::function<void()>& job = *std::exchange(job_, nullptr);
    lock.unlock();
    std::exception_ptr thrown;
    try {
      job();
    } catch (...) {
      thrown = std::current_exception();
    }
    lock.lock();
    thrown_ = std::move(thrown);
    done_ = true;
    changed_.notify_all();
  }
}
