#pragma once

#include <QTabWidget>
#include <array>

#include "shell/TabPage.h"

class ExceptionCodes;
class ExceptionGroups;
class IsoRejects;
class ValidExceptions;

// Tab "Exceptions": four sub-tabs about exception codes. It fills the lists that they share, hands the shell's buttons
// on to the one in front, and carries a code picked on one sub-tab over to another.
class Exceptions : public TabPage {
  Q_OBJECT

 public:
  enum SubTab { CodesTab, ValidTab, GroupsTab, IsoTab };

  explicit Exceptions(frmTabulon& shell);

  // The tab is entered: first sub-tab, lists and rows anew.
  void EnterTab();
  bool Exception_Add() { return Front().Add(); }
  bool Exception_Update() { return Front().Update(); }
  bool Exception_Delete() { return Front().Delete(); }
  bool Exception_Clear() { return Front().Clear(); }

  Record& CurrentRecord() override { return Front().CurrentRecord(); }
  ButtonCondition Condition() const override { return Front().Condition(); }
  void ConfigureGrid() override { Front().ConfigureGrid(); }
  void LoadGrid() override { Front().LoadGrid(); }

 private:
  void Exception_Tab();
  void PopulateRejectComboBoxes();
  void RefillKeepingChoices();
  void sstab8Exception_Click(SubTab left);
  void EnterCodes(SubTab left);
  void EnterValid();
  void EnterGroups();
  void EnterIso();
  // Without an event.
  void ShowFirstSubTab();
  SubPage& Front() const { return *pages_.at(front_); }

  ExceptionCodes* const codes_;
  ValidExceptions* const valid_;
  ExceptionGroups* const groups_;
  IsoRejects* const iso_;
  std::array<SubPage*, 4> pages_;  // in the order of SubTab
  SubTab front_ = CodesTab;
  bool isoListsFresh_ = false;  // the lists were filled when "ISO Reject Codes" was visited
  QTabWidget* const sstab8Exception = new QTabWidget(this);
};
