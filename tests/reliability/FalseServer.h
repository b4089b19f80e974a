#pragma once

#include <QByteArray>
#include <atomic>
#include <mutex>
#include <optional>
#include <thread>

#include "platform/ado/ConnectionSettings.h"

// Stands at a port of loopback, speaks as a server of that engine does and asks for the password in clear. Keeps what
// it is answered.
class FalseServer {
 public:
  // With the certificate of that PEM file, or without encryption.
  FalseServer(Engine engine, std::optional<QString> certificate);
  ~FalseServer();
  FalseServer(const FalseServer&) = delete;
  FalseServer& operator=(const FalseServer&) = delete;

  int Port() const { return port_; }
  // How many came, and what they said to the question for the password.
  int Visitors() const { return visitors_; }
  QByteArray Heard() const;

 private:
  struct Visit;
  void Serve();

  const Engine engine_;
  const std::optional<QString> certificate_;
  int listener_ = -1, port_ = 0;
  std::atomic<int> visitors_{0};
  mutable std::mutex mutex_;
  QByteArray heard_;
  std::thread thread_;
};
