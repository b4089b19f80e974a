#pragma once

#include <QLabel>
#include <QPushButton>

#include "core/Record.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "reference/LibraryMessages.h"
#include "shell/Editing.h"
#include "shell/Screen.h"

// "Notify Patron Messages": per library, the messages that can be sent to a patron about a request. A message that
// wants a response or a document also names the queue the request waits in, the queue after the response and a reject
// code.
class frmNotifyPatronMessages : public Screen {
  Q_OBJECT

 public:
  explicit frmNotifyPatronMessages(QWidget* parent = nullptr);

 protected:
  void Form_Load() override { PopulateForm(); }
  void CloseRequested() override { cmdClose_Click(); }

 private:
  enum Column {
    Marker,
    Library,
    MessageCode,
    Description,
    HoldQueue,
    RespondedQueue,
    Subject,
    Message,
    Response,
    Document,
    Exception
  };
  enum Answer { Yes, No };  // elements of the option pairs

  void BuildControls();
  void ConnectControls();

  // Reading and showing.
  void PopulateForm();
  void FillQueues();
  void FillRejectCodes();
  // Rows of one library into the grid, or of all when `symbol` is empty.
  void LoadMessages(const QString& symbol);
  void ShowRow(int row);
  void ClearFields();
  // The codes behind a row's three descriptions; an event that heads a group, or a code that is gone, has none.
  struct Codes {
    QString holdQueue, respondedQueue, exception;
  };
  // Keeps those of the controls for the row that was written from them.
  void WriteRow(int row);
  // The three lists are of use only when a response or a document is required.
  void EnableQueues();

  // What the two message screens do alike is done to this.
  LibraryMessages::MessageScreen Shared();
  void cmbShowMessages_Click();
  void grdPatronMessage_SelChange();
  void cmdFindLibrary_Click();
  void cmdClear_Click();

  // Tests of an entry; each tells what it refuses and sets the focus.
  bool FieldsAreComplete();
  bool FieldsAreCompleteOnClose();
  bool SubjectMessageAndRejectCode();
  bool IsNewMessage();
  bool MayBeUpdated(qint32& libraryId);
  bool RefuseEmpty(const QLabel* label, QWidget* field);

  // Writing.
  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void cmdClose_Click();
  // What both updates set alike, a comma at the end.
  QString SetClause() const;

  // The record on the controls was edited.
  bool mbRecordChanged() const { return record_.Modified(); }

  Record record_;
  int mintCurrentRow = 0;     // the row on the controls
  std::vector<Codes> codes_;  // by the number kept with a grid row, which counts from 1
  FieldList fields_;

  CodeComboBox* const cmbShowMessages = new CodeComboBox(this, "cmbShowMessages");
  TextBox* const txtLibrarySymbol = new TextBox(this, "txtLibrarySymbol", 25);
  QPushButton* const cmdFindLibrary = Form::Button(this, "cmdFindLibrary", "&Find Library");
  QLabel* const lblCode = Form::Label(this, "lblCode", "C&ode:");
  TextBox* const txtCode = new TextBox(this, "txtCode", 1);
  QLabel* const lblDescription = Form::Label(this, "lblDescription", "D&escription:");
  TextBox* const txtDescription = new TextBox(this, "txtDescription", 50);
  QLabel* const lblSubject = Form::Label(this, "lblSubject", "&Subject:");
  TextBox* const txtSubject = new TextBox(this, "txtSubject", 100);
  QLabel* const lblMessage = Form::Label(this, "lblMessage", "&Message:");
  MemoBox* const txtMessage = new MemoBox(this, "txtMessage", 1000);
  OptionGroup* const rdResponseRequired =
      new OptionGroup(this, {{"rdResponseRequiredYes", "Yes"}, {"rdResponseRequiredNo", "No"}});
  OptionGroup* const rdDocumentRequired =
      new OptionGroup(this, {{"rdDocumentRequiredYes", "Yes"}, {"rdDocumentRequiredNo", "No"}});
  QLabel* const lblHoldQueue = Form::Label(this, "lblHoldQueue", "&Hold in Queue:");
  CodeComboBox* const cmbHoldQueue = new CodeComboBox(this, "cmbHoldQueue");
  QLabel* const lblRespondedQueue = Form::Label(this, "lblRespondedQueue", "Responded &Queue:");
  CodeComboBox* const cmbRespondedQueue = new CodeComboBox(this, "cmbRespondedQueue");
  QLabel* const lblExceptionCode = Form::Label(this, "lblExceptionCode", "Re&ject Code:");
  CodeComboBox* const cmbExceptionCode = new CodeComboBox(this, "cmbExceptionCode");
  Grid* const grdPatronMessage = new Grid(this, "grdPatronMessage", 11);
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClear = Form::Button(this, "cmdClear", "Clea&r");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
