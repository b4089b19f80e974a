// Tests of an entry, and the statements that write.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "reference/LibraryMessages.h"
#include "reference/RecordDialog.h"
#include "reference/frmNotifyPatronMessages.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

using namespace Reference;

namespace {

const QString UpdateFailed = "***** SQL error on ID_PATRON_MESSAGE (Update) *****";

// The id behind a queue's description, NULL for "(None)".
QString EventOf(const CodeComboBox& box) {
  return Sql::NumberOr(box.Code(), "Null");
}

QString Flag(const OptionGroup& required) {
  return required.IsSet(0) ? "N'Y'" : "N'N'";
}

}  // namespace

// --- Tests ---

bool frmNotifyPatronMessages::RefuseEmpty(const QLabel* label, QWidget* field) {
  return Refuse(this, Form::PlainCaption(label->text()) + " is a required field.", MessageStyle::Stop, field);
}

bool frmNotifyPatronMessages::FieldsAreComplete() {
  if (txtCode->Text().isEmpty()) return RefuseEmpty(lblCode, txtCode);
  if (txtDescription->Text().isEmpty()) return RefuseEmpty(lblDescription, txtDescription);
  return SubjectMessageAndRejectCode();
}

// Close names code and description in words of its own.
bool frmNotifyPatronMessages::FieldsAreCompleteOnClose() {
  if (txtCode->Text().isEmpty()) return Refuse(this, "Code is a required field.", MessageStyle::Stop, txtCode);
  if (txtDescription->Text().isEmpty())
    return Refuse(this, "Description is a required field.", MessageStyle::Stop, txtDescription);
  return SubjectMessageAndRejectCode();
}

bool frmNotifyPatronMessages::SubjectMessageAndRejectCode() {
  if (txtSubject->Text().isEmpty()) return RefuseEmpty(lblSubject, txtSubject);
  if (txtMessage->Text().isEmpty()) return RefuseEmpty(lblMessage, txtMessage);
  const bool required = rdResponseRequired->IsSet(Yes) || rdDocumentRequired->IsSet(Yes);
  if (required && cmbExceptionCode->Code().isEmpty()) return RefuseEmpty(lblExceptionCode, cmbExceptionCode);
  return true;
}

bool frmNotifyPatronMessages::IsNewMessage() {
  for (int row = 1; row < grdPatronMessage->Rows(); ++row) {
    if (grdPatronMessage->Text(row, Library) != txtLibrarySymbol->Text()) continue;
    if (grdPatronMessage->Text(row, MessageCode) == txtCode->Text())
      return Refuse(this, "This Code already exists.\n", MessageStyle::Stop, txtCode);
    if (grdPatronMessage->Text(row, Description) == txtDescription->Text())
      return Refuse(this, "This Description already exists.\n", MessageStyle::Stop, txtDescription);
  }
  return true;
}

// What Update and Close test alike once the fields are complete.
bool frmNotifyPatronMessages::MayBeUpdated(qint32& libraryId) {
  const Grid& grid = *grdPatronMessage;
  const QString code = mintCurrentRow > 0 ? grid.Text(mintCurrentRow, MessageCode) : QString();
  const QString symbol = mintCurrentRow > 0 ? grid.Text(mintCurrentRow, Library) : QString();
  if (txtCode->Text() != code || txtLibrarySymbol->Text() != symbol) {
    Tell(this, Words::KeyIsFixed, MessageStyle::Stop);
    txtCode->SetText(code);
    txtLibrarySymbol->SetText(symbol);
    txtCode->setFocus();
    return false;
  }
  for (int row = 1; row < grid.Rows(); ++row)
    if (row != mintCurrentRow && grid.Text(row, Library) == symbol &&
        grid.Text(row, Description) == txtDescription->Text())
      return Refuse(this, "Description already exists for this Library Symbol.", MessageStyle::Stop, txtDescription);
  return LibraryMessages::IsKnownLibrary(this, *txtLibrarySymbol, libraryId);
}

// --- Add ---

void frmNotifyPatronMessages::cmdAdd_Click() {
  Procedure procedure("frmNotifyPatronMessages.cmdAdd_Click", this);
  procedure.OnFailure(UnableToAdd).Finally([this] { txtCode->setFocus(); }).Run([this] {
    fields_.TrimAll();
    qint32 libraryId = 0;
    if (!FieldsAreComplete() || !LibraryMessages::IsKnownLibrary(this, *txtLibrarySymbol, libraryId) || !IsNewMessage())
      return;
    const QString description = Sql::National(txtDescription->Text());
    // Every language starts with a copy of the description.
    const Sql::LanguagePieces languages = Sql::LanguageColumns("PATRON_MESSAGE_DESC_", description);
    ExecuteInTransaction(
        "INSERT INTO " + Sql::Table("ID_PATRON_MESSAGE") +
            " (LIBRARY_ID, PATRON_MESSAGE, PATRON_MESSAGE_DESC, PATRON_MESSAGE_EVENT_ID, PATRON_MESSAGE_SUB, "
            "PATRON_MESSAGE_MSG, PATRON_MESSAGE_RESPONSE, PATRON_MESSAGE_DOCUMENT, PATRON_RESPONSE_EVENT_ID, "
            "PATRON_RESPONSE_EXCEPTION" +
            languages.columns + ") VALUES(" + Sql::Number(libraryId) + ", " + Sql::National(txtCode->Text()) + ", " +
            description + ", " + EventOf(*cmbHoldQueue) + ", " + Sql::National(txtSubject->Text()) + ", " +
            Sql::National(txtMessage->Text()) + ", " + Flag(*rdResponseRequired) + ", " + Flag(*rdDocumentRequired) +
            ", " + EventOf(*cmbRespondedQueue) + ", " + Sql::NationalOr(cmbExceptionCode->Code(), "Null") +
            languages.values + ")",
        "***** SQL error on ID_PATRON_MESSAGE (Insert) *****");
    mintCurrentRow = grdPatronMessage->AddRow(QStringList(Exception));
    WriteRow(mintCurrentRow);
    grdPatronMessage->SetRowQuietly(mintCurrentRow);
    record_.Settled();
    Tell(this, Words::Added, MessageStyle::Information);
  });
}

// --- Update and Close ---

QString frmNotifyPatronMessages::SetClause() const {
  return "PATRON_MESSAGE = " + Sql::National(txtCode->Text()) + ", " +
         "PATRON_MESSAGE_SUB = " + Sql::National(txtSubject->Text()) + ", " +
         "PATRON_MESSAGE_EVENT_ID = " + EventOf(*cmbHoldQueue) + ", " + "PATRON_MESSAGE_DESC" +
         gclsOF->LanguageSuffix() + " = " + Sql::National(txtDescription->Text()) + ", " +
         "PATRON_MESSAGE_MSG = " + Sql::National(txtMessage->Text()) + ", " +
         "PATRON_MESSAGE_RESPONSE = " + Flag(*rdResponseRequired) + ", " +
         "PATRON_MESSAGE_DOCUMENT = " + Flag(*rdDocumentRequired) + ", " +
         "PATRON_RESPONSE_EVENT_ID = " + EventOf(*cmbRespondedQueue) + ", ";
}

void frmNotifyPatronMessages::cmdUpdate_Click() {
  Procedure procedure("frmNotifyPatronMessages.cmdUpdate_Click", this);
  procedure.Finally([this] { txtCode->setFocus(); }).Run([this] {
    if (!mbRecordChanged()) {
      Tell(this, Words::NothingChanged, MessageStyle::Stop);
      return;
    }
    fields_.TrimAll();
    qint32 libraryId = 0;
    if (!FieldsAreComplete() || !MayBeUpdated(libraryId)) return;
    Transaction transaction(gclsOF->Connection());
    if (!UpdateRecord(this,
                      "UPDATE " + Sql::Table("ID_PATRON_MESSAGE") + " " + "SET      " + SetClause() +
                          "PATRON_RESPONSE_EXCEPTION = " + Sql::NationalOr(cmbExceptionCode->Code(), "Null") + " " +
                          "WHERE    LIBRARY_ID = " + Sql::Number(libraryId) + " " + "AND      PATRON_MESSAGE = N'" +
                          gclsOF->SqlEscape(txtCode->Text()) + "'",
                      UpdateFailed, txtCode))
      return;
    transaction.Commit();
    WriteRow(mintCurrentRow);
    record_.Settled();
    Tell(this, Words::Updated, MessageStyle::Information);
  });
}

void frmNotifyPatronMessages::cmdClose_Click() {
  bool leave = true;
  Procedure procedure("frmNotifyPatronMessages.cmdClose_Click", this);
  procedure.OnFailure(Texts::NotifySupport).Finally([this] { txtCode->setFocus(); }).Run([&] {
    if (!WantsChangesApplied(this, record_, rights_)) return;
    leave = false;
    fields_.TrimAll();
    qint32 libraryId = 0;
    if (!FieldsAreCompleteOnClose() || !MayBeUpdated(libraryId)) return;
    const QString library = Sql::Number(libraryId);
    Transaction transaction(gclsOF->Connection());
    // The reject code is a literal here in any case: "(None)" is stored as an empty text, not as NULL.
    if (!UpdateRecord(this,
                      "UPDATE " + Sql::Table("ID_PATRON_MESSAGE") + " " + "SET      LIBRARY_ID = " + library + ", " +
                          SetClause() + "PATRON_RESPONSE_EXCEPTION = " + Sql::National(cmbExceptionCode->Code()) + " " +
                          "WHERE    PATRON_MESSAGE = N'" + gclsOF->SqlEscape(txtCode->Text()) + "'" +
                          "         AND LIBRARY_ID = " + library,
                      UpdateFailed, txtCode))
      return;
    transaction.Commit();
    record_.Settled();
    Tell(this, Words::Updated, MessageStyle::Information);
    leave = true;
  });
  if (leave) Unload();
}

// --- Delete ---

void frmNotifyPatronMessages::cmdDelete_Click() {
  LibraryMessages::cmdDelete_Click(
      Shared(), "***** SQL error on ID_PATRON_MESSAGE (Delete) *****", [this](int row, qint32 libraryId) {
        return QString("DELETE ") + "FROM " + Sql::Table("ID_PATRON_MESSAGE") + " " + "WHERE    PATRON_MESSAGE = N'" +
               gclsOF->SqlEscape(grdPatronMessage->Text(row, MessageCode)) + "' " +
               "AND      LIBRARY_ID = " + Sql::Number(libraryId);
      });
}
