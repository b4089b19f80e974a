#pragma once

#include "editors/ExceptionChoice.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

class ExceptionCodes;

// Sub-tab "ISO Reject Codes": the reason of the interlibrary loan protocol that an exception code is sent as, one for
// each code. Its buttons are off; the operations are reached from the Options menu.
class IsoRejects : public SubPage {
  Q_OBJECT

 public:
  IsoRejects(frmTabulon& shell, const ExceptionCodes& codes);

  void ConfigureGrid() override { form_.Shape(); }
  ButtonCondition Condition() const override { return {false, false, false, true}; }
  void LoadGrid() override;
  bool Add() override;
  bool Update() override;
  bool Delete() override;
  bool Clear() override;
  void CompareAgain() override;

  // As the tab is entered: nothing chosen.
  void Reset();
  // Makes the row of the code on show current again after a load.
  void FindChoice();
  // Shows a code picked on another sub-tab with its row; does nothing without a choice.
  void Carry(const ExceptionChoice& choice);
  // The reject type of an ISO reason on show; none while the reason is empty.
  ExceptionChoice Choice() const;

  // Filled from outside, together with the lists of "Valid Exceptions".
  CodeComboBox* const cmb8RejectType = new CodeComboBox(this, "cmb8RejectType");
  CodeComboBox* const cmb8ISOMessage = new CodeComboBox(this, "cmb8ISOMessage");

 private:
  enum Column { Marker, Code, Description, IsoReject };

  void BuildControls();
  void cmb8RejectType_Click();
  void grd8ISO_SelChange();
  void EmptyIsoMessage() { cmb8ISOMessage->SetIndex(-1); }
  bool IsoMessageIsNoNumber(const QString& words);
  bool EntryIsValid();
  bool RecordIsChosen();
  // Number of the ISO reason with the text on show; 0 when no row has it in the working language.
  QString IsoUnfilled() const;

  const ExceptionCodes& codes_;

  TextBox* const txt8RejectTypeCode = new TextBox(this, "txt8RejectTypeCode");
  Grid* const grd8ISO = new Grid(this, "grd8ISO", 4);
  GridForm form_{grd8ISO, record()};
};
