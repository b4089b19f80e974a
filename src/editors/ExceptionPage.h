#pragma once

#include "shell/TabPage.h"

// An exception code picked on one sub-tab of "Exceptions" and shown on another.
struct ExceptionChoice {
  QString code;
  QString description;
  bool Made() const { return !code.isEmpty(); }
};

// One sub-tab of "Exceptions": a page with a grid, fields and operations of its own. The tab hands the shell's buttons
// on to the page in front. Operations answer true when they went through.
class ExceptionPage : public TabPage {
  Q_OBJECT

 public:
  using TabPage::TabPage;

  virtual bool Add() = 0;
  virtual bool Update() = 0;
  virtual bool Delete() = 0;
  virtual bool Clear() = 0;
};
