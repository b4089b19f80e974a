#pragma once

#include <QLabel>
#include <QPushButton>

#include "editors/ExceptionChoice.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

class ExceptionCodes;

// Sub-tab "Valid Exceptions": what happens when an exception occurs in a process, for each pair of exception code and
// process type: the message sent, where the request is rerouted to, the channel of delivery, and a note.
class ValidExceptions : public SubPage {
  Q_OBJECT

 public:
  ValidExceptions(frmTabulon& shell, const ExceptionCodes& codes);

  void ConfigureGrid() override { form_.Shape(); }
  void LoadGrid() override;
  bool Add() override;
  bool Update() override;
  bool Delete() override;
  bool Clear() override;
  void CompareAgain() override;

  // As the tab is entered: the lists on their first entries, the boxes empty.
  void Reset();
  // Makes the row of the pair on show current again after a load.
  void FindChoice();
  // The reject type chosen; none on "(none)".
  ExceptionChoice Choice() const;
  void FocusMessage() { txt8Message1->setFocus(); }

  // Filled from outside, together with the lists of "ISO Reject Codes".
  CodeComboBox* const cmb8DocumentSupply = new CodeComboBox(this, "cmb8DocumentSupply");
  CodeComboBox* const cmb8ProcessType = new CodeComboBox(this, "cmb8ProcessType");
  CodeComboBox* const cmb8Reroute1 = new CodeComboBox(this, "cmb8Reroute1");

 private:
  enum Column { Marker, Code, Process, Message, Reroute, Delivery, Note };

  void BuildControls();
  void ConnectControls();
  void grd8Document_SelChange();
  void cmb8DocumentSupply_Click();
  void cmb8ProcessType_Click();
  void cmdMoreNotes_Click();
  void NoteTouched();

  void FillFromRow(int row);
  // Everything but the reject type and its code.
  void EmptyRest();
  bool MayUpdate(int row);
  // The note may be changed here unless the pair has several; a loan has none at all.
  void SwitchNotes(qint64 notesOfPair, const QString& process);
  void RefreshNote(int row);

  // Columns 1 to 6 as the screen has them; "(none)" as reroute is an empty cell.
  QStringList OnScreen() const;
  bool IsUnchanged(int row) const;
  int RowOfChoice() const;
  bool PairIsValid();
  QString RerouteValue() const;
  QString InsertStatement(const QStringList& cells) const;
  QString UpdateStatement(const QStringList& cells, int row) const;
  QString WherePairOf(int row) const;

  bool mbSeveralNotes_ = false;  // only the notes dialog may change the notes of the current pair
  const ExceptionCodes& codes_;

  TextBox* const txt8ProcessCode = new TextBox(this, "txt8Process1(0)");
  TextBox* const txt8ProcessType = new TextBox(this, "txt8Process1(1)");
  TextBox* const txt8Type = new TextBox(this, "txt8Type");
  MemoBox* const txt8Message1 = new MemoBox(this, "txt8Message1", 1000);
  CodeComboBox* const cmb8DeliverySource = new CodeComboBox(this, "cmb8DeliverySource");
  QLabel* const lblExceptionNote = Form::Label(this, "lblExceptionNote", "Exception Note:");
  MemoBox* const txtExceptionNote = new MemoBox(this, "txtExceptionNote", 1000);
  QPushButton* const cmdMoreNotes = Form::Button(this, "cmdMoreNotes", "&More Notes");
  Grid* const grd8Document = new Grid(this, "grd8Document", 7);
  // The lists and boxes are compared by hand: what is stored of them is not what they show.
  GridForm form_{grd8Document, record()};
};
