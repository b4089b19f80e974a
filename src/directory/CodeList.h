#pragma once

#include <QString>
#include <vector>

class CodeComboBox;

// A list of codes and the boxes that show it.
struct CodeList {
  QString select;  // code and description
  QString failureLine;
  std::vector<CodeComboBox*> boxes;
  QString none = {};     // the first entry; empty where there is none
  QString leftOut = {};  // a code that is no entry

  // An AdoError leaves the boxes with the none entry alone: a part of a list would take codes for unknown that are not.
  void Fill() const;
};

// The select of a table by its descriptions in the working language; `opening` as in "SELECT   ", `where` with a blank
// behind it.
QString SelectCodes(const QString& opening, const QString& code, const QString& table, const QString& where = {});
