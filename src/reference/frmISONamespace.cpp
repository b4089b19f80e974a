#include "reference/frmISONamespace.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "reference/RecordDialog.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

using namespace Reference;

namespace {

const QString UpdateLine = "***** SQL error on ID_ISO_NAMESPACE (Update) *****";

QString UpdateOf() {
  return "UPDATE " + Sql::Table("ID_ISO_NAMESPACE") + " ";
}

// Digits, letters and the underscore enter a namespace; Backspace and Enter keep their meaning.
char16_t NamespaceKey(char16_t key) {
  const bool letter = (key >= u'A' && key <= u'Z') || (key >= u'a' && key <= u'z');
  const bool digit = key >= u'0' && key <= u'9';
  if (letter || digit || key == u'_' || key == 8 || key == 13) return key;
  Prompts().Beep();
  return 0;
}

char16_t FieldNameKey(char16_t key) {
  if (key != u'\'') return key;
  Prompts().Beep();
  return 0;
}

}  // namespace

frmISONamespace::frmISONamespace(QWidget* parent)
    : Screen("frmISONamespace", "Ostana - ISO Namespace Registration", parent) {
  BuildControls();
  ConnectControls();
}

void frmISONamespace::BuildControls() {
  ShapeGrid(*grdNameSpace,
            {"", "grdNameSpace", {{"", 195}, {"Namespace", 1320}, {"Description", 3165}, {"Field Name", 1695}}});
  grdNameSpace->setAccessibleName("Namespaces");
  auto* const entry = new QWidget(this);
  Form::Rows rows(entry);
  rows.Add("lblNameSpace", "&Namespace:", txtNameSpace);
  rows.Add("lblDescription", "D&escription:", txtDescription);
  rows.Add("lblFieldName", "&Field Name:", txtFieldName);
  Form::Require({txtNameSpace, txtDescription, txtFieldName});
  QVBoxLayout* const column = Form::Column(this, {entry});
  column->addWidget(grdNameSpace, 1);
  column->addLayout(Form::ButtonRow({nullptr, cmdAdd, cmdUpdate, cmdDelete, cmdClose}));
  resize(600, 440);
}

void frmISONamespace::ConnectControls() {
  fields_.Add(txtNameSpace, Namespace).Add(txtDescription, Description).Add(txtFieldName, FieldName);
  MarkEdits(record_, txtNameSpace, txtDescription, txtFieldName);
  txtNameSpace->SetKeyPress(NamespaceKey);
  txtFieldName->SetKeyPress(FieldNameKey);
  txtFieldName->UpperCaseAsTyped();
  connect(cmdAdd, &QPushButton::clicked, this, &frmISONamespace::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmISONamespace::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmISONamespace::cmdDelete_Click);
  connect(cmdClose, &QPushButton::clicked, this, &frmISONamespace::cmdClose_Click);
  connect(grdNameSpace, &Grid::SelChange, this, &frmISONamespace::grdNameSpace_SelChange);
  Reference::ApplyRights(rights_, {cmdAdd, cmdUpdate, cmdDelete});
  KeepRowOnSort(grdNameSpace);
  connect(grdNameSpace, &Grid::AfterSort, this, [this] { mintCurrentRow = grdNameSpace->Row(); });
}

// --- Showing ---

void frmISONamespace::PopulateForm() {
  Procedure procedure("frmISONameSpace.PopulateForm", this);
  procedure.OnFailure(LoadingFieldsFailed).Run([this] {
    // Read in the default language, whatever the working language; only Update follows the suffix.
    FillGrid(*grdNameSpace,
             QString("SELECT   * ") + "FROM " + Sql::Table("ID_ISO_NAMESPACE") + " " + "ORDER BY ISO_NAMESPACE_DESC",
             "***** SQL error on ID_ISO_NAMESPACE (Select) *****", [](Recordset& rows) {
               return QStringList{Value(rows, "ISO_NAMESPACE"), Value(rows, "ISO_NAMESPACE_DESC"),
                                  Value(rows, "ISO_NAMESPACE_ADDR")};
             });
    ShowRow(grdNameSpace->Rows() > 1 ? 1 : 0);
  });
}

void frmISONamespace::Form_Activate() {
  if (grdNameSpace->Rows() > 1) {
    mbToldEmpty = false;
    return;
  }
  if (mbToldEmpty) return;
  mbToldEmpty = true;
  // Words and log name are those of the service level screen.
  const QString message = "The ISO Service Levels table has not been initialized.";
  gclsOF->WriteLog("frmISOServiceLevels.Form_Activate", message, "L");
  Tell(this, message, MessageStyle::Stop);
}

void frmISONamespace::ShowRow(int row) {
  mintCurrentRow = row;
  grdNameSpace->SetRowQuietly(row);
  if (row > 0)
    fields_.FillFromRow(*grdNameSpace, row);
  else
    fields_.Clear();
  record_.Settled();
}

void frmISONamespace::grdNameSpace_SelChange() {
  const int row = grdNameSpace->Row();
  if (gbSkipGridEvents || row == 0) return;
  if (WantsChangesApplied(this, record_, rights_)) cmdUpdate_Click();
  ShowRow(row);
}

// --- Tests of an entry ---

bool frmISONamespace::IsNewRecord() {
  if (grdNameSpace->FindRow(txtNameSpace->Text(), Namespace) > 0)
    return Refuse(this, "This record already exists.", MessageStyle::Stop, txtNameSpace);
  if (grdNameSpace->FindRow(txtDescription->Text(), Description) > 0)
    return Refuse(this, "This record already exists.", MessageStyle::Stop, txtDescription);
  return true;
}

bool frmISONamespace::IsKnownRecord() {
  const int row = grdNameSpace->FindRow(txtNameSpace->Text(), Namespace);
  if (row == 0) return Refuse(this, Words::NoSuchCode, MessageStyle::Stop, txtNameSpace);
  if (StandsElsewhere(*grdNameSpace, txtDescription->Text(), Description, row))
    return Refuse(this, Words::SameDescription, MessageStyle::Stop, txtDescription);
  return true;
}

bool frmISONamespace::MayBeUpdated() {
  if (!IsKnownRecord()) return false;
  if (txtNameSpace->Text().isEmpty())
    return Refuse(this, "Namespace is a required field.", MessageStyle::Stop, txtNameSpace);
  if (txtDescription->Text().isEmpty())
    return Refuse(this, "Description is a required field.", MessageStyle::Stop, txtDescription);
  if (txtFieldName->Text().isEmpty())
    return Refuse(this, "Field Name is a required field.", MessageStyle::Stop, txtFieldName);
  return true;
}

bool frmISONamespace::MayBeUpdatedOnClose() {
  if (txtNameSpace->Text().isEmpty())
    return Refuse(this, "NameSpace is a required field", MessageStyle::Stop, txtNameSpace);
  if (txtDescription->Text().isEmpty())
    return Refuse(this, "Description is a required field.", MessageStyle::Stop, txtDescription);
  if (txtFieldName->Text().isEmpty())
    return Refuse(this, "Field Name is a required field.", MessageStyle::Stop, txtFieldName);
  return IsKnownRecord();
}

// --- Add, Update, Delete, Close ---

void frmISONamespace::cmdAdd_Click() {
  Procedure procedure("frmISONameSpace.cmdAdd_Click", this);
  procedure.OnFailure("Unable to add a new record.\n\n" + Texts::NotifySupport).Run([this] {
    fields_.TrimAll();
    if (txtNameSpace->Text().isEmpty()) {
      Refuse(this, "Namespace is a required field.", MessageStyle::Stop, txtNameSpace);
      return;
    }
    if (!IsNewRecord()) return;
    if (txtDescription->Text().isEmpty()) {
      Refuse(this, "Description is a required field", MessageStyle::Stop, txtDescription);
      return;
    }
    if (txtFieldName->Text().isEmpty()) {
      Refuse(this, "Field Name is a required field", MessageStyle::Stop, txtFieldName);
      return;
    }
    const QString description = Sql::National(txtDescription->Text());
    // The language columns bear the currency table's name. Sites that keep several languages add columns of that name
    // to this table, or the database refuses the row.
    const Sql::LanguagePieces languages = Sql::LanguageColumns("CURRENCY_CODE_DESC_", description);
    ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_ISO_NAMESPACE") +
                             " (ISO_NAMESPACE, ISO_NAMESPACE_DESC, ISO_NAMESPACE_ADDR" + languages.columns +
                             ") VALUES(" + Sql::National(txtNameSpace->Text()) + ", " + description + ", " +
                             Sql::National(txtFieldName->Text()) + languages.values + ")",
                         "***** SQL error on ID_ISO_NAMESPACE (Insert) *****");
    mintCurrentRow = grdNameSpace->AddRow(QStringList(FieldName));
    fields_.WriteRow(*grdNameSpace, mintCurrentRow);
    grdNameSpace->SetRowQuietly(mintCurrentRow);
    record_.Settled();
    Tell(this, Words::Added, MessageStyle::Information);
  });
}

void frmISONamespace::cmdUpdate_Click() {
  Procedure procedure("frmISONameSpace.cmdUpdate_Click", this);
  procedure.OnFailure(Words::UpdateFailed).Run([this] {
    if (!mbRecordChanged()) {
      Tell(this, Words::NothingChanged, MessageStyle::Stop);
      return;
    }
    fields_.TrimAll();
    if (!MayBeUpdated()) return;
    Transaction transaction(gclsOF->Connection());
    if (!UpdateRecord(this,
                      UpdateOf() + "SET      ISO_NAMESPACE_DESC" + gclsOF->LanguageSuffix() + " = " +
                          Sql::National(txtDescription->Text()) + ", " +
                          "ISO_NAMESPACE_ADDR = " + Sql::National(txtFieldName->Text()) + " " +
                          "WHERE    ISO_NAMESPACE = " + Sql::National(txtNameSpace->Text()),
                      UpdateLine, txtNameSpace))
      return;
    transaction.Commit();
    fields_.WriteRow(*grdNameSpace, grdNameSpace->FindRow(txtNameSpace->Text(), Namespace));
    record_.Settled();
    Tell(this, Words::Updated, MessageStyle::Information);
  });
}

void frmISONamespace::cmdClose_Click() {
  bool leave = true;
  Procedure procedure("frmISONameSpace.cmdClose_Click", this);
  procedure.OnFailure(Words::UpdateFailed).Run([&] {
    if (!WantsChangesApplied(this, record_, rights_)) return;
    leave = false;
    fields_.TrimAll();
    if (!MayBeUpdatedOnClose()) return;
    Transaction transaction(gclsOF->Connection());
    if (!UpdateRecord(this,
                      UpdateOf() + "SET      ISO_NAMESPACE_DESC = " + Sql::Plain(txtDescription->Text()) + ", " +
                          "ISO_NAMESPACE_ADDR = " + Sql::Plain(txtFieldName->Text()) + " " +
                          "WHERE    ISO_NAMESPACE = " + Sql::Plain(txtNameSpace->Text()),
                      UpdateLine, txtNameSpace))
      return;
    transaction.Commit();
    record_.Settled();
    Tell(this, Words::Updated, MessageStyle::Information);
    leave = true;
  });
  if (leave) Unload();
}

void frmISONamespace::cmdDelete_Click() {
  Procedure procedure("frmISONameSpace.cmdDelete_Click", this);
  procedure.Run([this] {
    const int row = mintCurrentRow;
    if (row == 0 || !Confirm(this, Words::DeleteQuestion)) return;
    Transaction transaction(gclsOF->Connection());
    if (!DeleteRecord(this,
                      QString("DELETE ") + "FROM " + Sql::Table("ID_ISO_NAMESPACE") + " " +
                          "WHERE      ISO_NAMESPACE = '" + gclsOF->SqlEscape(grdNameSpace->Text(row, Namespace)) + "'",
                      "***** SQL error on ID_ISO_NAMESPACE (Delete) *****", txtNameSpace))
      return;
    transaction.Commit();
    grdNameSpace->RemoveRow(row);
    ShowRow(grdNameSpace->Rows() > 1 ? 1 : 0);
    Tell(this, Words::Deleted, MessageStyle::Information);
  });
}
