#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include "platform/ado/ConnectionSettings.h"

// A long way to a server: a port on loopback that carries every session on to the server of the settings and holds each
// request back. The program is one thread that waits inside of its driver, so the proxy has a thread of its own.
//
// A round trip is a request, in however many pieces it comes, that the server answers.
class DelayingProxy {
 public:
  explicit DelayingProxy(const ConnectionSettings& server,
                         std::chrono::milliseconds delay = std::chrono::milliseconds(50));
  ~DelayingProxy();
  DelayingProxy(const DelayingProxy&) = delete;
  DelayingProxy& operator=(const DelayingProxy&) = delete;

  // The same database, the long way.
  ConnectionSettings Settings() const;
  void SetDelay(std::chrono::milliseconds delay) { delay_ = delay.count(); }
  // Ends all sessions, as a line that breaks.
  void CutAll();
  // In the middle of a request: half of it arrives and the server never runs it; or the server has run it and the
  // answer is lost.
  enum class Break { InRequest, BeforeAnswer };
  // The session that sends the request of that number, counted from 1 and from now, breaks there. Once.
  void BreakAt(int request, Break where);
  int RoundTrips() const { return roundTrips_; }
  int Sessions() const { return sessions_; }

 private:
  struct Carrier;

  ConnectionSettings server_;
  int port_ = 0;
  std::atomic<qint64> delay_;  // milliseconds
  std::atomic<int> roundTrips_{0}, sessions_{0};
  std::atomic<bool> cuts_{false}, ends_{false};
  std::atomic<int> untilBreak_{0};  // requests; 0 when none is to break
  std::atomic<Break> break_{Break::InRequest};
  std::unique_ptr<Carrier> carrier_;
  std::thread thread_;
};
