// Reading and showing; what writes stands in frmNotifyPatronMessagesEdits.cpp.
#include "reference/frmNotifyPatronMessages.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "reference/LibraryMessages.h"
#include "reference/RecordDialog.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

using namespace Reference;

namespace {

const QString NoneEntry = "(None)";
const QString SelectFailed = "***** SQL error on ID_PATRON_MESSAGE (Select) *****";
const QString PopulateName = "frmNotifyPatronMessages.PopulateForm";

// Both lists find a row by its description, so a second one of the same words cannot be offered.
bool IsDuplicate(QWidget* form, const CodeComboBox& box, const QString& code, const QString& description,
                 const QString& table, const QString& consequence) {
  if (box.IndexOfText(description) < 0) return false;
  Tell(form, table + "\n\n" + code + " - " + description + "\n\n" + consequence, MessageStyle::Stop);
  return true;
}

// A code that is in no list is kept; "(None)" stands for it, as in the grid.
void ShowCode(CodeComboBox* box, const QString& code) {
  if (code.isEmpty())
    box->SetIndex(0);
  else
    box->Hold(code, NoneEntry);
}

QString DescriptionOrNone(const CodeComboBox& box, const QString& code) {
  return code.isEmpty() || box.IndexOfCode(code) < 0 ? NoneEntry : box.DescriptionOf(code);
}

}  // namespace

frmNotifyPatronMessages::frmNotifyPatronMessages(QWidget* parent)
    : Screen("frmNotifyPatronMessages", "Ostana - Notify Patron Messages", parent) {
  BuildControls();
  ConnectControls();
}

void frmNotifyPatronMessages::BuildControls() {
  ShapeGrid(*grdPatronMessage, {"",
                                "grdPatronMessage",
                                {{"", 192},
                                 {"Library", 1200},
                                 {"Code", 492},
                                 {"Description", 1896},
                                 {"Hold in Queue", 1896},
                                 {"Responded Queue", 1800},
                                 {"Subject", 1896},
                                 {"Message", 1896},
                                 {"Response", 852},
                                 {"Document", 852},
                                 {"Exception", 852}}});
  grdPatronMessage->setAccessibleName("Patron messages");
  txtMessage->SetLines(6);

  auto* const entry = new QWidget(this);
  Form::Rows rows(entry);
  rows.Add("lblShowMessages", "Sho&w Messages from:", cmbShowMessages);
  rows.Add("lblLibrarySymbol", "&Library Symbol:", txtLibrarySymbol, cmdFindLibrary);
  rows.Add(lblCode, txtCode);
  rows.Add(lblDescription, txtDescription);
  rows.Add(lblSubject, txtSubject);
  rows.Add(lblMessage, txtMessage);
  rows.Add("lblResponseRequired", "Response Required:", rdResponseRequired->Row());
  rows.Beside("lblDocumentRequired", "Document Required:", rdDocumentRequired->Row());
  rows.Add(lblHoldQueue, cmbHoldQueue);
  rows.Add(lblRespondedQueue, cmbRespondedQueue);
  rows.Add(lblExceptionCode, cmbExceptionCode);
  Form::Require({txtCode, txtDescription, txtSubject, txtMessage});
  QVBoxLayout* const column = Form::Column(this, {entry});
  column->addWidget(grdPatronMessage, 1);
  column->addLayout(Form::ButtonRow({nullptr, cmdAdd, cmdUpdate, cmdDelete, cmdClear, cmdClose}));
  resize(1100, 740);
}

void frmNotifyPatronMessages::ConnectControls() {
  fields_.Add(txtLibrarySymbol, Library)
      .Add(txtCode, MessageCode, Trim::BothUpper)
      .Add(txtDescription, Description)
      .AddText(cmbHoldQueue, HoldQueue)
      .AddText(cmbRespondedQueue, RespondedQueue)
      .Add(txtSubject, Subject)
      .Add(txtMessage, Message)
      .Add(rdResponseRequired, Response, "N")
      .Add(rdDocumentRequired, Document, "N")
      .AddText(cmbExceptionCode, Exception);
  MarkEdits(record_, txtLibrarySymbol, txtCode, txtDescription, txtSubject, txtMessage, rdResponseRequired,
            rdDocumentRequired, cmbHoldQueue, cmbRespondedQueue, cmbExceptionCode);
  txtCode->UpperCaseAsTyped();
  for (OptionGroup* const pair : {rdResponseRequired, rdDocumentRequired})
    connect(pair, &OptionGroup::Click, this, &frmNotifyPatronMessages::EnableQueues);
  connect(cmbShowMessages, &CodeComboBox::Click, this, &frmNotifyPatronMessages::cmbShowMessages_Click);
  connect(cmdFindLibrary, &QPushButton::clicked, this, &frmNotifyPatronMessages::cmdFindLibrary_Click);
  connect(cmdAdd, &QPushButton::clicked, this, &frmNotifyPatronMessages::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmNotifyPatronMessages::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmNotifyPatronMessages::cmdDelete_Click);
  connect(cmdClear, &QPushButton::clicked, this, &frmNotifyPatronMessages::cmdClear_Click);
  connect(cmdClose, &QPushButton::clicked, this, &frmNotifyPatronMessages::cmdClose_Click);
  connect(grdPatronMessage, &Grid::SelChange, this, &frmNotifyPatronMessages::grdPatronMessage_SelChange);
  Reference::ApplyRights(rights_, {cmdAdd, cmdUpdate, cmdDelete, cmdClear});
  KeepRowOnSort(grdPatronMessage);
  connect(grdPatronMessage, &Grid::AfterSort, this, [this] { mintCurrentRow = grdPatronMessage->Row(); });
}

// --- Reading ---

void frmNotifyPatronMessages::PopulateForm() {
  Procedure procedure(PopulateName, this);
  procedure.OnFailure(LoadingFormFailed).Run([this] {
    gclsOF->WriteLog(PopulateName + " - Start", {}, "L");
    LibraryMessages::FillFilter(*cmbShowMessages, "ID_PATRON_MESSAGE", SelectFailed);
    FillQueues();
    FillRejectCodes();
    LoadMessages({});
    gclsOF->WriteLog(PopulateName + " - Reading " + QString::number(grdPatronMessage->Rows() - 1) + " rows.", {}, "L");
    ShowRow(grdPatronMessage->Rows() > 1 ? 1 : 0);
    gclsOF->WriteLog(PopulateName + " - End", {}, "L");
  });
}

void frmNotifyPatronMessages::FillQueues() {
  for (CodeComboBox* const box : {cmbHoldQueue, cmbRespondedQueue}) {
    box->Clear();
    box->AddNone(NoneEntry);
  }
  ForEachRow("SELECT   EVENT_ID, EVENT_DESC" + gclsOF->LanguageSuffix() + " FROM " + Sql::Table("ID_EVENT") +
                 " WHERE    EVENT_ID > 0 ORDER BY EVENT_ID",
             "***** SQL error on ID_EVENT (Select) *****", [this](Recordset& rows) {
               const QString id = Value(rows, 0);
               const QString description = Value(rows, 1);
               // Such an event heads a group; no request ever waits in it.
               if (id.endsWith("000")) return;
               if (IsDuplicate(this, *cmbHoldQueue, id, description,
                               "There is a duplicate event description in the RequestFlow table.",
                               "This event will not display in the list of valid Queues."))
                 return;
               cmbHoldQueue->Add(description, id);
               cmbRespondedQueue->Add(description, id);
             });
}

void frmNotifyPatronMessages::FillRejectCodes() {
  const QString suffix = gclsOF->LanguageSuffix();
  cmbExceptionCode->Clear();
  cmbExceptionCode->AddNone(NoneEntry);
  ForEachRow("SELECT   EXCEPTION_CODE, EXCEPTION_CODE_DESC" + suffix + " FROM " + Sql::Table("ID_EXCEPTION_CODE") +
                 " " + "ORDER    BY EXCEPTION_CODE_DESC" + suffix,
             "***** SQL error on ID_EXCEPTION_CODE (Select) *****", [this](Recordset& rows) {
               const QString code = Value(rows, 0);
               const QString description = Value(rows, 1);
               if (IsDuplicate(this, *cmbExceptionCode, code, description,
                               "There is a duplicate description in the Exception Code table.",
                               "This code will not display in the list of valid Reject codes."))
                 return;
               cmbExceptionCode->Add(description, code);
             });
}

void frmNotifyPatronMessages::LoadMessages(const QString& symbol) {
  const QString order = symbol.isEmpty() ? QString("ORDER BY L.LIBRARY_SYMBOL, PM.PATRON_MESSAGE")
                                         : "AND LIBRARY_SYMBOL=" + Sql::Plain(symbol) + " " + "ORDER BY PATRON_MESSAGE";
  codes_.clear();
  FillGrid(*grdPatronMessage,
           "SELECT   L.LIBRARY_SYMBOL, PM.PATRON_MESSAGE, PM.PATRON_MESSAGE_DESC" + gclsOF->LanguageSuffix() +
               ", PM.PATRON_MESSAGE_EVENT_ID, PM.PATRON_RESPONSE_EVENT_ID, PM.PATRON_MESSAGE_SUB, "
               "PM.PATRON_MESSAGE_MSG, PM.PATRON_MESSAGE_RESPONSE, PM.PATRON_MESSAGE_DOCUMENT, "
               "PM.PATRON_RESPONSE_EXCEPTION FROM " +
               Sql::Table("ID_PATRON_MESSAGE") + " PM, " + Sql::Table("ID_LIBRARY") +
               " L WHERE PM.LIBRARY_ID = L.LIBRARY_ID " + order,
           SelectFailed, [this](Recordset& rows) {
             const Codes codes{Value(rows, 3), Value(rows, 4), Value(rows, 9)};
             codes_.push_back(codes);
             return QStringList{Value(rows, 0),
                                Value(rows, 1),
                                Value(rows, 2),
                                DescriptionOrNone(*cmbHoldQueue, codes.holdQueue),
                                DescriptionOrNone(*cmbRespondedQueue, codes.respondedQueue),
                                Value(rows, 5),
                                Value(rows, 6),
                                Value(rows, 7),
                                Value(rows, 8),
                                DescriptionOrNone(*cmbExceptionCode, codes.exception)};
           });
  for (int row = 1; row < grdPatronMessage->Rows(); ++row) grdPatronMessage->SetRowData(row, row);
}

// --- Showing ---

void frmNotifyPatronMessages::ShowRow(int row) {
  mintCurrentRow = row;
  grdPatronMessage->SetRowQuietly(row);
  if (row > 0) {
    fields_.FillFromRow(*grdPatronMessage, row);
    const Codes& codes = codes_.at(static_cast<size_t>(grdPatronMessage->RowData(row) - 1));
    ShowCode(cmbHoldQueue, codes.holdQueue);
    ShowCode(cmbRespondedQueue, codes.respondedQueue);
    ShowCode(cmbExceptionCode, codes.exception);
  } else {
    ClearFields();
  }
  EnableQueues();
  record_.Settled();
}

void frmNotifyPatronMessages::WriteRow(int row) {
  fields_.WriteRow(*grdPatronMessage, row);
  if (grdPatronMessage->RowData(row) == 0) {
    codes_.push_back({});
    grdPatronMessage->SetRowData(row, static_cast<qint64>(codes_.size()));
  }
  codes_.at(static_cast<size_t>(grdPatronMessage->RowData(row) - 1)) = {cmbHoldQueue->Code(), cmbRespondedQueue->Code(),
                                                                        cmbExceptionCode->Code()};
}

void frmNotifyPatronMessages::ClearFields() {
  fields_.Clear();
  rdResponseRequired->Select(No);
  rdDocumentRequired->Select(No);
}

void frmNotifyPatronMessages::EnableQueues() {
  const bool required = rdResponseRequired->IsSet(Yes) || rdDocumentRequired->IsSet(Yes);
  for (QLabel* const label : {lblHoldQueue, lblRespondedQueue, lblExceptionCode}) label->setEnabled(required);
  for (CodeComboBox* const box : {cmbHoldQueue, cmbRespondedQueue, cmbExceptionCode}) {
    box->setEnabled(required);
    if (!required) box->SetIndex(0);
  }
}

LibraryMessages::MessageScreen frmNotifyPatronMessages::Shared() {
  return {"frmNotifyPatronMessages",
          this,
          grdPatronMessage,
          txtLibrarySymbol,
          txtCode,
          &record_,
          &rights_,
          &mintCurrentRow,
          [this](int row) { ShowRow(row); }};
}

void frmNotifyPatronMessages::cmbShowMessages_Click() {
  LibraryMessages::cmbShowMessages_Click(
      Shared(), *cmbShowMessages, [this] { PopulateForm(); },
      [this](const QString& symbol) {
        LoadMessages(symbol);
        ShowRow(grdPatronMessage->Rows() > 1 ? 1 : 0);
      });
}

void frmNotifyPatronMessages::grdPatronMessage_SelChange() {
  LibraryMessages::RowChosen(Shared(), [this] { cmdUpdate_Click(); });
}

void frmNotifyPatronMessages::cmdFindLibrary_Click() {
  LibraryMessages::cmdFindLibrary_Click(Shared());
}

void frmNotifyPatronMessages::cmdClear_Click() {
  ClearFields();
  EnableQueues();
  txtCode->setFocus();
}
