#pragma once

#include <chrono>
#include <functional>

// A call of the database's driver that takes its time. Where a hook is set, the driver works in a thread of the
// connection's own, and the thread that asked stays free to show that it waits. Without one a call blocks.
class Waiting {
 public:
  using Hook = std::function<void(Waiting&)>;

  virtual ~Waiting() = default;
  virtual bool Done() const = 0;
  virtual std::chrono::milliseconds Elapsed() const = 0;
  // Asks the engine to stop the statement. When it has not answered within `GivenUpAfter`, the next call of Done ends
  // the link, and the statement fails as on a lost one.
  virtual void Cancel() = 0;

  static constexpr std::chrono::seconds GivenUpAfter{5};

  // Called when a call takes longer than `patience`, on the thread that made it; returns when it is Done. Connections
  // opened from now on know it. An empty hook brings blocking calls back.
  static void SetHook(Hook hook, std::chrono::milliseconds patience = std::chrono::seconds(2));
  static const Hook& CurrentHook();
  static std::chrono::milliseconds Patience();
};
