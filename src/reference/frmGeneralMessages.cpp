#include "reference/frmGeneralMessages.h"

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

const QString SelectFailed = "***** SQL error on ID_GENERAL_MESSAGE (Select) *****";
const QString UpdateFailed = "***** SQL error on ID_GENERAL_MESSAGE (Update) *****";

QString UpdateOf() {
  return "UPDATE " + Sql::Table("ID_GENERAL_MESSAGE") + " ";
}

}  // namespace

frmGeneralMessages::frmGeneralMessages(QWidget* parent)
    : Screen("frmGeneralMessages", "Ostana - General Messages", parent) {
  BuildControls();
  ConnectControls();
}

void frmGeneralMessages::BuildControls() {
  ShapeGrid(
      *grdGeneralMessage,
      {"",
       "grdGeneralMessage",
       {{"", 195}, {"Library", 1200}, {"Code", 495}, {"Description", 4005}, {"Subject", 2295}, {"Message", 4005}}});
  grdGeneralMessage->setAccessibleName("General messages");
  auto* const entry = new QWidget(this);
  Form::Rows rows(entry);
  rows.Add("lblShowMessages", "Sho&w Messages from:", cmbShowMessages);
  rows.Add("lblLibrarySymbol", "&Library Symbol:", txtLibrarySymbol, cmdFindLibrary);
  rows.Add("lblCode", "C&ode:", txtCode);
  rows.Add("lblDescription", "D&escription:", txtDescription);
  rows.Add("lblSubject", "&Subject:", txtSubject);
  rows.Add("lblMessage", "&Message:", txtMessage);
  Form::Require({txtCode, txtDescription, txtMessage});
  QVBoxLayout* const column = Form::Column(this, {entry});
  column->addWidget(grdGeneralMessage, 1);
  column->addLayout(Form::ButtonRow({nullptr, cmdAdd, cmdUpdate, cmdDelete, cmdClose}));
  resize(900, 640);
}

void frmGeneralMessages::ConnectControls() {
  fields_.Add(txtLibrarySymbol, Library)
      .Add(txtCode, MessageCode, Trim::BothUpper)
      .Add(txtDescription, Description)
      .Add(txtSubject, Subject)
      .Add(txtMessage, Message);
  MarkEdits(record_, txtLibrarySymbol, txtCode, txtDescription, txtSubject, txtMessage);
  txtCode->UpperCaseAsTyped();
  connect(cmbShowMessages, &CodeComboBox::Click, this, &frmGeneralMessages::cmbShowMessages_Click);
  connect(cmdFindLibrary, &QPushButton::clicked, this, &frmGeneralMessages::cmdFindLibrary_Click);
  connect(cmdAdd, &QPushButton::clicked, this, &frmGeneralMessages::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmGeneralMessages::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmGeneralMessages::cmdDelete_Click);
  connect(cmdClose, &QPushButton::clicked, this, &frmGeneralMessages::cmdClose_Click);
  connect(grdGeneralMessage, &Grid::SelChange, this, &frmGeneralMessages::grdGeneralMessage_SelChange);
  Reference::ApplyRights(rights_, {cmdAdd, cmdUpdate, cmdDelete});
  KeepRowOnSort(grdGeneralMessage);
  connect(grdGeneralMessage, &Grid::AfterSort, this, [this] { mintCurrentRow = grdGeneralMessage->Row(); });
}

// --- Showing ---

void frmGeneralMessages::PopulateForm() {
  Procedure procedure("frmGeneralMessages.PopulateForm", this);
  procedure.OnFailure(LoadingFormFailed).Run([this] {
    LibraryMessages::FillFilter(*cmbShowMessages, "ID_GENERAL_MESSAGE", SelectFailed);
    LoadMessages({});
  });
}

void frmGeneralMessages::LoadMessages(const QString& symbol) {
  const QString order = symbol.isEmpty()
                            ? QString("ORDER BY L.LIBRARY_SYMBOL")
                            : "AND LIBRARY_SYMBOL=" + Sql::Plain(symbol) + " " + "ORDER BY GENERAL_MESSAGE";
  FillGrid(*grdGeneralMessage,
           "SELECT   L.LIBRARY_SYMBOL, GM.GENERAL_MESSAGE, GM.GENERAL_MESSAGE_DESC, GM.GENERAL_MESSAGE_SUB, "
           "GM.GENERAL_MESSAGE_MSG FROM " +
               Sql::Table("ID_GENERAL_MESSAGE") + " GM, " + Sql::Table("ID_LIBRARY") +
               " L WHERE GM.LIBRARY_ID = L.LIBRARY_ID " + order,
           SelectFailed, [](Recordset& rows) {
             return QStringList{Value(rows, 0), Value(rows, 1), Value(rows, 2), Value(rows, 3), Value(rows, 4)};
           });
  ShowRow(grdGeneralMessage->Rows() > 1 ? 1 : 0);
}

void frmGeneralMessages::ShowRow(int row) {
  mintCurrentRow = row;
  grdGeneralMessage->SetRowQuietly(row);
  if (row > 0)
    fields_.FillFromRow(*grdGeneralMessage, row);
  else
    fields_.Clear();
  record_.Settled();
}

LibraryMessages::MessageScreen frmGeneralMessages::Shared() {
  return {"frmGeneralMessages",
          this,
          grdGeneralMessage,
          txtLibrarySymbol,
          txtCode,
          &record_,
          &rights_,
          &mintCurrentRow,
          [this](int row) { ShowRow(row); }};
}

void frmGeneralMessages::cmbShowMessages_Click() {
  LibraryMessages::cmbShowMessages_Click(
      Shared(), *cmbShowMessages, [this] { PopulateForm(); }, [this](const QString& symbol) { LoadMessages(symbol); });
}

void frmGeneralMessages::grdGeneralMessage_SelChange() {
  LibraryMessages::RowChosen(Shared(), [this] { cmdUpdate_Click(); });
}

void frmGeneralMessages::cmdFindLibrary_Click() {
  LibraryMessages::cmdFindLibrary_Click(Shared());
}

// --- Tests of an entry ---

bool frmGeneralMessages::FieldsAreComplete() {
  if (txtCode->Text().isEmpty()) return Refuse(this, "Code is a required field.", MessageStyle::Stop, txtCode);
  if (txtDescription->Text().isEmpty())
    return Refuse(this, "Description is a required field.", MessageStyle::Stop, txtDescription);
  if (txtMessage->Text().isEmpty()) return Refuse(this, "Message is a required field.", MessageStyle::Stop, txtMessage);
  return true;
}

bool frmGeneralMessages::IsNewMessage() {
  for (int row = 1; row < grdGeneralMessage->Rows(); ++row) {
    if (grdGeneralMessage->Text(row, Library) != txtLibrarySymbol->Text()) continue;
    if (grdGeneralMessage->Text(row, MessageCode) == txtCode->Text())
      return Refuse(this, "This Code already exists.", MessageStyle::Stop, txtCode);
    if (grdGeneralMessage->Text(row, Description) == txtDescription->Text())
      return Refuse(this, "This Description already exists.", MessageStyle::Stop, txtDescription);
  }
  return true;
}

bool frmGeneralMessages::MayBeUpdated(qint32& libraryId) {
  if (!FieldsAreComplete()) return false;
  const Grid& grid = *grdGeneralMessage;
  const QString symbol = txtLibrarySymbol->Text();
  if (mintCurrentRow == 0 || txtCode->Text() != grid.Text(mintCurrentRow, MessageCode) ||
      symbol != grid.Text(mintCurrentRow, Library))
    return Refuse(this, Words::KeyIsFixed, MessageStyle::Stop, txtCode);
  for (int row = 1; row < grid.Rows(); ++row)
    if (row != mintCurrentRow && grid.Text(row, Library) == symbol &&
        grid.Text(row, Description) == txtDescription->Text())
      return Refuse(this, "Description already exists for this Library Symbol.", MessageStyle::Stop, txtDescription);
  return LibraryMessages::IsKnownLibrary(this, *txtLibrarySymbol, libraryId);
}

// On Close the row of the library and code that were entered is written, whichever was on show, and a description
// counts whatever library it belongs to.
bool frmGeneralMessages::MayBeUpdatedOnClose(qint32& libraryId) {
  if (!FieldsAreComplete()) return false;
  const int row = grdGeneralMessage->FindRow({{Library, txtLibrarySymbol->Text()}, {MessageCode, txtCode->Text()}});
  if (row == 0 && grdGeneralMessage->FindRow(txtCode->Text(), MessageCode) == 0)
    return Refuse(this, Words::NoSuchCode, MessageStyle::Stop, txtCode);
  if (StandsElsewhere(*grdGeneralMessage, txtDescription->Text(), Description, row))
    return Refuse(this, Words::SameDescription, MessageStyle::Stop, txtDescription);
  return LibraryMessages::IsKnownLibrary(this, *txtLibrarySymbol, libraryId);
}

// --- Add, Update, Delete, Close ---

void frmGeneralMessages::cmdAdd_Click() {
  Procedure procedure("frmGeneralMessages.cmdAdd_Click", this);
  procedure.OnFailure(UnableToAdd).Finally([this] { txtCode->setFocus(); }).Run([this] {
    fields_.TrimAll();
    qint32 libraryId = 0;
    if (!FieldsAreComplete() || !LibraryMessages::IsKnownLibrary(this, *txtLibrarySymbol, libraryId) || !IsNewMessage())
      return;
    // A message without a subject is stored with an empty text, not NULL.
    ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_GENERAL_MESSAGE") +
                             " (LIBRARY_ID, GENERAL_MESSAGE, GENERAL_MESSAGE_DESC, GENERAL_MESSAGE_SUB, "
                             "GENERAL_MESSAGE_MSG) VALUES(" +
                             Sql::Number(libraryId) + ", " + Sql::Plain(txtCode->Text()) + ", " +
                             Sql::Plain(txtDescription->Text()) + ", " + Sql::Plain(txtSubject->Text()) + ", " +
                             Sql::Plain(txtMessage->Text()) + ")",
                         "***** SQL error on ID_GENERAL_MESSAGE (Insert) *****");
    mintCurrentRow = grdGeneralMessage->AddRow(QStringList(Message));
    fields_.WriteRow(*grdGeneralMessage, mintCurrentRow);
    grdGeneralMessage->SetRowQuietly(mintCurrentRow);
    record_.Settled();
    Tell(this, Words::Added, MessageStyle::Information);
  });
}

void frmGeneralMessages::cmdUpdate_Click() {
  Procedure procedure("frmGeneralMessages.cmdUpdate_Click", this);
  procedure.Finally([this] { txtCode->setFocus(); }).Run([this] {
    if (!mbRecordChanged()) {
      Tell(this, Words::NothingChanged, MessageStyle::Stop);
      return;
    }
    fields_.TrimAll();
    qint32 libraryId = 0;
    if (!MayBeUpdated(libraryId)) return;
    const QString code = gclsOF->SqlEscape(txtCode->Text());
    Transaction transaction(gclsOF->Connection());
    if (!UpdateRecord(this,
                      UpdateOf() + "SET      GENERAL_MESSAGE = '" + code + "', " +
                          "GENERAL_MESSAGE_SUB = " + Sql::Plain(txtSubject->Text()) + ", " +
                          "GENERAL_MESSAGE_DESC = " + Sql::Plain(txtDescription->Text()) + ", " +
                          "GENERAL_MESSAGE_MSG = " + Sql::Plain(txtMessage->Text()) + " " + "WHERE    LIBRARY_ID = " +
                          Sql::Number(libraryId) + " " + "AND      GENERAL_MESSAGE = '" + code + "'",
                      UpdateFailed, txtCode))
      return;
    transaction.Commit();
    fields_.WriteRow(*grdGeneralMessage, mintCurrentRow);
    record_.Settled();
    Tell(this, Words::Updated, MessageStyle::Information);
  });
}

void frmGeneralMessages::cmdClose_Click() {
  bool leave = true;
  Procedure procedure("frmGeneralMessages.cmdClose_Click", this);
  procedure.Finally([this] { txtCode->setFocus(); }).Run([&] {
    if (!WantsChangesApplied(this, record_, rights_)) return;
    leave = false;
    fields_.TrimAll();
    qint32 libraryId = 0;
    if (!MayBeUpdatedOnClose(libraryId)) return;
    const QString code = gclsOF->SqlEscape(txtCode->Text());
    const QString library = Sql::Number(libraryId);
    Transaction transaction(gclsOF->Connection());
    if (!UpdateRecord(this,
                      UpdateOf() + "SET      LIBRARY_ID = " + library + ", " + "GENERAL_MESSAGE = '" + code + "', " +
                          "GENERAL_MESSAGE_SUB = " + Sql::Plain(txtSubject->Text()) + ", " +
                          "GENERAL_MESSAGE_DESC = " + Sql::Plain(txtDescription->Text()) + ", " +
                          "GENERAL_MESSAGE_MSG = " + Sql::Plain(txtMessage->Text()) + " " +
                          "WHERE    GENERAL_MESSAGE = '" + code + "'" + "         AND LIBRARY_ID = " + library,
                      UpdateFailed, txtCode))
      return;
    transaction.Commit();
    record_.Settled();
    Tell(this, Words::Updated, MessageStyle::Information);
    leave = true;
  });
  if (leave) Unload();
}

void frmGeneralMessages::cmdDelete_Click() {
  LibraryMessages::cmdDelete_Click(
      Shared(), "***** SQL error on ID_GENERAL_MESSAGE (Delete) *****", [this](int row, qint32 libraryId) {
        return QString("DELETE ") + "FROM " + Sql::Table("ID_GENERAL_MESSAGE") + " " + "WHERE   GENERAL_MESSAGE = '" +
               gclsOF->SqlEscape(grdGeneralMessage->Text(row, MessageCode)) + "'" +
               "        AND LIBRARY_ID=" + Sql::Number(libraryId);
      });
}
