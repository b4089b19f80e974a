#pragma once

#include "reliability/ReliabilityDesk.h"
#include "support/DelayingProxy.h"

// A desk far from its server: the settings file of the program names a delaying proxy, the second client of the case
// takes the short way. SQLite has no network; there its cases are skipped.
class FarDesk : public ReliabilityDesk {
 protected:
  static bool HasNetwork() { return TestDatabase::TestEngine() != Engine::Sqlite; }

  void SetUp() override {
    ReliabilityDesk::SetUp();
    if (!HasNetwork()) return;
    proxy_ = std::make_unique<DelayingProxy>(Database().Settings(), std::chrono::milliseconds(0));
    const ConnectionSettings settings = proxy_->Settings();
    Setting("Database", "Host", settings.host);
    Setting("Database", "Port", QString::number(settings.port));
  }
  void TearDown() override {
    ReliabilityDesk::TearDown();
    proxy_.reset();
  }

  DelayingProxy& Proxy() { return *proxy_; }

 private:
  std::unique_ptr<DelayingProxy> proxy_;
};
