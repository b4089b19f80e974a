#pragma once

#include "shell/TabPage.h"

// One sub-tab of "Delivery/Messaging": a page with a grid, fields and operations of its own. The tab hands the shell's
// buttons on to the page in front. Operations answer true when they went through.
class DeliveryPage : public TabPage {
  Q_OBJECT

 public:
  using TabPage::TabPage;

  // The page comes to the front: rows anew, the first of them on show, the focus in the code box.
  virtual void Enter() = 0;
  virtual bool Add() = 0;
  virtual bool Update() = 0;
  virtual bool Delete() = 0;
  virtual bool Clear() = 0;
};
