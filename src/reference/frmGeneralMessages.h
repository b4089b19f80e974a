#pragma once

#include <QPushButton>

#include "core/Record.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/TextBox.h"
#include "reference/LibraryMessages.h"
#include "shell/Editing.h"
#include "shell/Screen.h"

class Recordset;

// "General Messages": per library, the fixed texts with a subject that staff can send, picked by a one-character code.
// Every text is written as a plain literal.
class frmGeneralMessages : public Screen {
  Q_OBJECT

 public:
  explicit frmGeneralMessages(QWidget* parent = nullptr);

 protected:
  void Form_Load() override { PopulateForm(); }
  void CloseRequested() override { cmdClose_Click(); }

 private:
  enum Column { Marker, Library, MessageCode, Description, Subject, Message };

  void BuildControls();
  void ConnectControls();
  void PopulateForm();
  // Rows of one library, or of all when `symbol` is empty, with the first on the controls.
  void LoadMessages(const QString& symbol);
  void ShowRow(int row);

  // What the two message screens do alike is done to this.
  LibraryMessages::MessageScreen Shared();
  void cmbShowMessages_Click();
  void grdGeneralMessage_SelChange();
  void cmdFindLibrary_Click();
  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void cmdClose_Click();

  // Tests of an entry; each tells what it refuses and sets the focus.
  bool FieldsAreComplete();
  bool IsNewMessage();
  bool MayBeUpdated(qint32& libraryId);
  bool MayBeUpdatedOnClose(qint32& libraryId);

  // The record on the controls was edited.
  bool mbRecordChanged() const { return record_.Modified(); }

  Record record_;
  int mintCurrentRow = 0;  // the row on the controls
  FieldList fields_;

  CodeComboBox* const cmbShowMessages = new CodeComboBox(this, "cmbShowMessages");
  TextBox* const txtLibrarySymbol = new TextBox(this, "txtLibrarySymbol", 25);
  QPushButton* const cmdFindLibrary = Form::Button(this, "cmdFindLibrary", "&Find Library");
  TextBox* const txtCode = new TextBox(this, "txtCode", 1);
  TextBox* const txtDescription = new TextBox(this, "txtDescription", 50);
  TextBox* const txtSubject = new TextBox(this, "txtSubject", 100);
  MemoBox* const txtMessage = new MemoBox(this, "txtMessage", 1000);
  Grid* const grdGeneralMessage = new Grid(this, "grdGeneralMessage", 6);
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
