#pragma once

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "support/Desk.h"

class CodeComboBox;

// The desk with a handful of exception rows of its own instead of the site's, and the tab "Exceptions" in front.
//
//   codes      AAA Alpha (B, no charge), BBB Beta (C, 5.00), CCC Gamma (L, 12.50), NNN Neutral (N: rejects nothing)
//   processes  LON Loan, REN Renewal, REQ Request; an ISO supplier SUP1
//   pairs      in the order of the grid: AAA/LON, BBB/REN (two notes), AAA/REQ
//   groups     STF Staff (nothing), STU Students (AAA, BBB)
//   ISO        1 Not available, 2 At bindery, 3 Lost; AAA is sent as 1
class ExceptionDesk : public Desk {
 protected:
  enum SubTab { Codes, Valid, Groups, Iso };

  void SetUp() override;

  // Starts the program and enters the tab and one of its sub-tabs. Statements run until then are forgotten.
  void Enter(SubTab subTab = Codes);
  void Go(SubTab subTab) { SelectTab("sstab8Exception", subTab); }
  // Shows a text in a list although it may be no entry of it, as a choice made before the list changed.
  void ShowText(const QString& combo, const QString& text);
  QStringList Entries(const QString& combo) const;

  static constexpr const char* DatabaseError =
      "A database error has occurred.  Please verify your data entry\nand your Database structure.";
  static constexpr const char* Referenced =
      "An error has occurred while attempting to delete the record.\n\nThe Code is referenced by another table in the "
      "database.";
  static constexpr const char* Persists =
      "An error has occurred while attempting to delete the record.\n\nIf the error persists notify support.";
  static constexpr const char* DeleteQuestion = "Are you sure you wish to Delete this record?";
};
