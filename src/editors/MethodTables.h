#pragma once

#include <QString>
#include <vector>

// A yes-or-no of a method: an option pair in a frame, and its column of the table.
struct MethodFlag {
  QString frame;
  QString option;
  QString caption;
  QString column;
  QString heading;      // of the grid's column, 1000 twips wide
  bool hidden = false;  // in the grid
};

// What one table of methods has of its own: names, limits, and the words of its statements. Every table has a
// one-character code as key, a description in each language, an address that nobody edits, and one to three flags.
struct MethodTable {
  QString grid;
  QString codeBox;
  QString descriptionBox;
  int descriptionLimit;
  int descriptionTwips;    // in the grid
  QString accessibleName;  // of the grid
  QString table;
  QString codeColumn;               // "..._DESC" and "..._ADDR" begin with it
  std::vector<MethodFlag> flags;    // in the order of the grid, from column 3 on, and of the INSERT
  std::vector<size_t> updateOrder;  // of the flags in the UPDATE, which is another one
  QString updateYes;                // a flag in the UPDATE; every INSERT writes N'Y' or NULL
  QString updateNo;
  bool mailIsAlwaysActive;  // method M cannot be switched off
  QString buttonMode;       // set on entering; empty leaves the letter in force
};

const MethodTable& DeliveryMethods();
const MethodTable& MessagingMethods();
const MethodTable& RequestMethods();
