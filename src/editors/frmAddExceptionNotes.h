#pragma once

#include <QPushButton>

#include "core/Record.h"
#include "core/UserRights.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

// The alternative notes of one pair of exception code and process type, given in gstrNotesExceptionCode and
// gstrNotesProcessType. The list is held in the grid and replaces the stored one when the screen is closed; its first
// note becomes the pair's default.
class frmAddExceptionNotes : public Screen {
  Q_OBJECT

 public:
  explicit frmAddExceptionNotes(QWidget* parent = nullptr);

 protected:
  void Form_Load() override;
  // Escape and the window's own button leave the stored list alone.
  void CloseRequested() override { cmdCancel_Click(); }

 private:
  enum Column { Marker, Note };

  void BuildControls();
  void ConnectControls();
  void PopulateFields();
  // Rights that are missing on the main screen are missing here; a list that was not read whole is only looked at.
  void ShowButtons();
  void ShowNote();
  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void cmdClear_Click();
  void cmdCancel_Click();
  void cmdClose_Click();
  // Swaps the current note with its neighbour, -1 above or 1 below.
  void Move(int by);
  // Replaces the list of the pair in one transaction.
  void SaveNotes();
  // First row with the note, whichever line ends either has; 0 when there is none.
  int RowOfNote(const QString& note) const;
  void Refuse(const QString& text);

  FunctionRights rights_;
  Record list_;

  TextBox* const txtExceptionCode = new TextBox(this, "txtExceptionCode");
  MemoBox* const txtExceptionNote = new MemoBox(this, "txtExceptionNote", 1000);
  Grid* const grdExceptionNote = new Grid(this, "grdExceptionNote", 2);
  QPushButton* const cmdUp = Form::Button(this, "cmdUp", "", "Move the note up");
  QPushButton* const cmdDown = Form::Button(this, "cmdDown", "", "Move the note down");
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClear = Form::Button(this, "cmdClear", "Clea&r");
  QPushButton* const cmdCancel = Form::Button(this, "cmdCancel", "Ca&ncel");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
