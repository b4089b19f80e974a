#pragma once

#include <QTabWidget>
#include <array>

#include "shell/TabPage.h"

// Tab "Delivery/Messaging": the methods of delivery, messaging and requesting, and the pickup locations of the
// libraries, each a sub-tab with a page of its own. The shell's buttons act on the sub-tab in front.
class Delivery : public TabPage {
  Q_OBJECT

 public:
  explicit Delivery(frmTabulon& shell);

  // The tab or one of its sub-tabs is entered.
  void Delivery_Tab();
  bool Delivery_Add() { return Front().Add(); }
  bool Delivery_Update() { return Front().Update(); }
  bool Delivery_Delete() { return Front().Delete(); }
  bool Delivery_Clear() { return Front().Clear(); }

  Record& CurrentRecord() override { return Front().CurrentRecord(); }
  ButtonCondition Condition() const override { return Front().Condition(); }
  void ConfigureGrid() override { Front().ConfigureGrid(); }
  void LoadGrid() override { Front().LoadGrid(); }

 private:
  void sstab5Delivery_Click();
  SubPage& Front() const { return *pages_.at(static_cast<size_t>(sstab5Delivery->currentIndex())); }

  QTabWidget* const sstab5Delivery = new QTabWidget(this);
  std::array<SubPage*, 4> pages_;  // in the order of the sub-tabs
  bool subTabClicked_ = false;     // Delivery_Tab is entered by a sub-tab, not from the main tabs
};
