#include "reference/frmItemType.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "reference/RecordDialog.h"
#include "shell/Editing.h"
#include "shell/GridTable.h"
#include "shell/Lists.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"

using namespace Reference;

namespace {

constexpr double HighestCharge = 999.99;  // currency amount
const QString NoneEntry = "(none)";

// A text that is no entry of the list is shown and has no code.
bool IsChosen(const CodeComboBox& list) {
  return !list.IsEmptyOrNone() && list.Chosen().has_value();
}

// A charge as grid and box show it; NULL stays empty.
QString ChargeOnScreen(const QString& charge) {
  return charge.isEmpty() ? charge : Numbers::Format(Numbers::Val(charge), "##0.00");
}

}  // namespace

frmItemType::frmItemType(QWidget* parent) : Screen("frmItemType", "Ostana - Item Type", parent) {
  sstabItemType->setObjectName("sstabItemType");
  BuildControls();
  ConnectControls();
}

void frmItemType::BuildControls() {
  ShapeGrid(*grdItemType,
            {"",
             "grdItemType",
             {{"", 195}, {"Item Type", 1005}, Amount("Charge", 795), {"Fixed", 705}, {"Description", 960}}});
  ShapeGrid(*grdAccessItemType, {"", "grdAccessItemType", {{"", 195}, {"Item Type"}}});
  grdItemType->setAccessibleName("Item types");
  grdAccessItemType->setAccessibleName("Item types of the group");

  auto* const typeEntry = new QWidget(this);
  Form::Rows typeRows(typeEntry);
  typeRows.Add("lblItemType", "&Item Type:", txtItemType);
  typeRows.Add("lblCharge", "C&harge:", txtCharge);
  typeRows.Add("lblFixedCharge", "Fixed Charge:", optFixedCharge->Row());
  typeRows.Add("lblDescription", "D&escription:", txtDescription);
  auto* const typePage = new QWidget(this);
  Form::Column(typePage, {typeEntry})->addWidget(grdItemType, 1);
  sstabItemType->addTab(typePage, "Item Type");

  auto* const accessEntry = new QWidget(this);
  Form::Rows accessRows(accessEntry);
  accessRows.Add("lblAccessGroup", "User &Group:", cmbAccessGroup);
  accessRows.Add("lblAccessItemType", "&Item Type:", cmbAccessItemType);
  auto* const accessPage = new QWidget(this);
  Form::Column(accessPage, {accessEntry})->addWidget(grdAccessItemType, 1);
  sstabItemType->addTab(accessPage, "Item Types by User Group");

  Form::Require({txtItemType, txtDescription, cmbAccessGroup, cmbAccessItemType});
  QVBoxLayout* const column = Form::Column(this);
  column->addWidget(sstabItemType, 1);
  column->addLayout(Form::ButtonRow({nullptr, cmdAdd, cmdUpdate, cmdDelete, cmdClose}));
  resize(600, 520);
}

void frmItemType::ConnectControls() {
  MarkEdits(record_, txtItemType, txtCharge, txtDescription, optFixedCharge);
  txtItemType->UpperCaseAsTyped();
  txtCharge->SetRule(NumericRule(QString::number(HighestCharge), "##0.00", true, true, false));
  txtCharge->SetKeyPress([this](char16_t key) { return FilterNumericKey(key, *txtCharge, false, false); });
  txtCharge->SetLeaveCheck([this] { return ChargeMayStay(); });
  connect(sstabItemType, &QTabWidget::currentChanged, this, &frmItemType::sstabItemType_Click);
  connect(cmbAccessGroup, &CodeComboBox::Click, this, &frmItemType::PopulateItemTypeGrid);
  connect(grdItemType, &Grid::SelChange, this, &frmItemType::grdItemType_SelChange);
  connect(grdAccessItemType, &Grid::SelChange, this, &frmItemType::grdAccessItemType_SelChange);
  connect(cmdAdd, &QPushButton::clicked, this, &frmItemType::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmItemType::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmItemType::cmdDelete_Click);
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(); });
  Reference::ApplyRights(rights_, {cmdAdd, cmdUpdate, cmdDelete});
  KeepRowOnSort(grdItemType);
  KeepRowOnSort(grdAccessItemType);
}

// --- Showing ---

void frmItemType::Form_Load() {
  optFixedCharge->Select(No);
  LoadDataInGrid();
  PopulateAccessGroupCombo();
  record_.Settled();
}

void frmItemType::LoadDataInGrid() {
  Procedure procedure("frmItemType.LoadDataInGrid", this);
  procedure.Run([this] {
    FillGrid(*grdItemType,
             QString("SELECT   * ") + "FROM " + Sql::Table("ID_ITEM_TYPE") + " " + "ORDER BY ITEM_TYPE_DESC",
             "***** SQL error on ID_ITEM_TYPE (Select) *****", [](Recordset& rows) {
               return QStringList{Value(rows, "ITEM_TYPE"), ChargeOnScreen(Value(rows, "ITEM_CHARGE")),
                                  Value(rows, "ITEM_CHARGE_FIXED"), Value(rows, "ITEM_TYPE_DESC")};
             });
  });
}

void frmItemType::PopulateAccessGroupCombo() {
  Procedure procedure("frmItemType.PopulateAccessGroupCombo", this);
  procedure.Run([this] {
    const QString description = "ACCESS_GROUP_DESC" + gclsOF->LanguageSuffix();
    cmbAccessGroup->Clear();
    cmbAccessGroup->AddNone(NoneEntry);
    ForEachRow("SELECT * FROM " + Sql::Table("ID_ACCESS_GROUP") + " ORDER BY " + description,
               "***** SQL error on ID_ACCESS_GROUP (Select) *****",
               [&](Recordset& rows) { cmbAccessGroup->Add(Value(rows, description), Value(rows, "ACCESS_GROUP")); });
    cmbAccessGroup->SetIndex(0);
  });
  // Each list fails for itself.
  Procedure("frmItemType.PopulateAccessGroupCombo", this).Run([this] { FillAccessItemTypes(); });
}

// Every type, whichever group is chosen.
void frmItemType::FillAccessItemTypes() {
  const QString chosen = cmbAccessItemType->Code();
  FillCombo(*cmbAccessItemType, NoneEntry,
            "SELECT ITEM_TYPE, ITEM_TYPE_DESC FROM " + Sql::Table("ID_ITEM_TYPE") + " ORDER BY ITEM_TYPE_DESC",
            "***** SQL error on ID_ITEM_TYPE (Select) *****", 1, 0);
  if (chosen.isEmpty() || !cmbAccessItemType->SetCode(chosen)) cmbAccessItemType->SetIndex(0);
}

void frmItemType::PopulateItemTypeGrid() {
  Procedure procedure("frmItemType.PopulateItemTypeGrid", this);
  procedure.Run([this] {
    if (cmbAccessGroup->IsEmptyOrNone()) {
      grdAccessItemType->Clear();
      return;
    }
    FillGrid(*grdAccessItemType,
             QString("SELECT   ITEM_TYPE_DESC ") + "FROM " + Sql::Table("ID_ITEM_TYPE") + " " +
                 "WHERE    ITEM_TYPE IN " + "(SELECT ITEM_TYPE FROM " + Sql::Table("ID_ACCESS_ITEM_TYPE") +
                 " WHERE ACCESS_GROUP = " + Sql::Plain(cmbAccessGroup->Code()) + ") " + "ORDER BY ITEM_TYPE_DESC",
             "***** SQL error on ID_ITEM_TYPE/ID_ACCESS_ITEM_TYPE (Select) *****",
             [](Recordset& rows) { return QStringList{Value(rows, 0)}; });
  });
}

void frmItemType::sstabItemType_Click(int tab) {
  cmdUpdate->setEnabled(tab == ItemTypeTab && rights_.update);
  if (tab != AccessTab) return;
  Procedure procedure("frmItemType.sstabItemType_Click", this);
  procedure.Run([this] {
    if (mbItemTypesChanged) FillAccessItemTypes();
    mbItemTypesChanged = false;
  });
  PopulateItemTypeGrid();
}

void frmItemType::grdItemType_SelChange() {
  const int row = grdItemType->Row();
  if (gbSkipGridEvents || row == 0) return;
  txtItemType->SetText(grdItemType->Text(row, ItemType));
  txtCharge->SetText(grdItemType->Text(row, Charge));
  optFixedCharge->Select(grdItemType->Text(row, Fixed) == "N" ? No : Yes);
  txtDescription->SetText(grdItemType->Text(row, Description));
}

void frmItemType::grdAccessItemType_SelChange() {
  const int row = grdAccessItemType->Row();
  if (!gbSkipGridEvents && row > 0) cmbAccessItemType->SetText(grdAccessItemType->Text(row, 1));
}

// --- The buttons of both tabs ---

void frmItemType::cmdAdd_Click() {
  Procedure procedure("frmItemType.cmdAdd_Click", this);
  procedure.Run([this] { OnItemTypeTab() ? AddItemType() : AddAccess(); });
}

void frmItemType::cmdDelete_Click() {
  // Log readers know the delete under the name of another screen.
  Procedure procedure("frmItemType.Loans_Delete", this);
  procedure.Run([this] { OnItemTypeTab() ? DeleteItemType() : DeleteAccess(); });
}

void frmItemType::CloseButtonUpdate() {
  if (!mbRecordChanged() || !rights_.update) return;
  if (Confirm(this, "A record has been modified.\nDo you wish to apply the updates before continuing?"))
    cmdUpdate_Click();
}

bool frmItemType::Form_Unload() {
  CloseButtonUpdate();
  return false;
}

// --- Tests of the first tab ---

bool frmItemType::CodeIsComplete() {
  return txtItemType->TrimUpperInPlace().size() == 3 ||
         Refuse(this, "Please enter a valid 3 character Item Type.", MessageStyle::Stop, txtItemType);
}

bool frmItemType::DescriptionIsGiven() {
  return !txtDescription->TrimInPlace().isEmpty() ||
         Refuse(this, "Please enter a Description.", MessageStyle::Stop, txtDescription);
}

bool frmItemType::ChargeMayStay() {
  const QString text = txtCharge->Trimmed();
  if (Numbers::IsBlank(text)) {
    txtCharge->SetText({});
    return true;
  }
  const double value = Numbers::Val(text);
  // The box may cut the formatted value to its limit; the message tells the value as it was entered.
  QString why;
  if (value > HighestCharge)
    why = Numbers::Format(value, "000.00") + " may not be greater than " + Numbers::Format(HighestCharge, "000.00");
  if (value < 0) why = Numbers::Format(value, "00.00") + " may not be less than " + Numbers::Format(0, "00.00");
  txtCharge->SetText(Numbers::Format(value, "##0.00"));
  if (why.isEmpty()) return true;
  Tell(this, why, MessageStyle::Stop);
  txtCharge->SelectAllAndFocus();
  return false;
}

// --- Item types ---

QString frmItemType::ChargeInSql() const {
  return Sql::NumberOr(txtCharge->Text(), "Null");
}

QString frmItemType::FixedFlag() const {
  if (Numbers::IsBlank(txtCharge->Text())) return {};
  return optFixedCharge->IsSet(Yes) ? "Y" : "N";
}

QString frmItemType::FixedInSql(const QString& prefix) const {
  const QString flag = FixedFlag();
  return flag.isEmpty() ? QString("Null") : prefix + "'" + flag + "'";
}

void frmItemType::WriteRow(int row) {
  grdItemType->SetText(row, ItemType, txtItemType->Text());
  grdItemType->SetText(row, Charge, ChargeOnScreen(txtCharge->Trimmed()));
  grdItemType->SetText(row, Fixed, FixedFlag());
  grdItemType->SetText(row, Description, txtDescription->Text());
}

bool frmItemType::RowIsOnScreen(int row) const {
  const auto same = [&](const TextBox* box, Column column) {
    return box->Trimmed() == grdItemType->Text(row, column).trimmed();
  };
  // Without a charge the flag is NULL, whichever option is set.
  const Answer fixed = grdItemType->Text(row, Fixed) == "N" ? No : Yes;
  const bool sameFlag = txtCharge->Trimmed().isEmpty() || optFixedCharge->IsSet(fixed);
  return same(txtItemType, ItemType) && same(txtCharge, Charge) && sameFlag && same(txtDescription, Description);
}

void frmItemType::AddItemType() {
  if (!CodeIsComplete()) return;
  const QString description = txtDescription->TrimInPlace();
  for (int row = 1; row < grdItemType->Rows(); ++row) {
    const bool sameCode = grdItemType->Text(row, ItemType) == txtItemType->Text();
    if (!sameCode && grdItemType->Text(row, Description) != description) continue;
    Refuse(this, "This record already exists", MessageStyle::Stop, sameCode ? txtItemType : txtDescription);
    return;
  }
  if (!DescriptionIsGiven()) return;
  ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_ITEM_TYPE") +
                           " (ITEM_TYPE, ITEM_CHARGE, ITEM_CHARGE_FIXED, ITEM_TYPE_DESC) VALUES(" +
                           Sql::Plain(txtItemType->Text()) + ", " + ChargeInSql() + ", " + FixedInSql("N") + ", " +
                           Sql::Plain(description) + ")",
                       "***** SQL error on ID_ITEM_TYPE (Insert) *****");
  const int row = grdItemType->AddRow(QStringList(Description));
  WriteRow(row);
  grdItemType->SetRowQuietly(row);
  record_.Settled();
  mbItemTypesChanged = true;
  Tell(this, "Record Added", MessageStyle::Information);
}

void frmItemType::cmdUpdate_Click() {
  Procedure procedure("frmItemType.cmdUpdate_Click", this);
  procedure.Run([this] {
    if (!mbRecordChanged()) {
      Tell(this, Words::NothingChanged, MessageStyle::Stop);
      return;
    }
    if (!CodeIsComplete()) return;
    if (Numbers::Val(txtCharge->Trimmed()) > HighestCharge) {
      Refuse(this, "Maximum Item Charge of 999.99 has been exceeded.", MessageStyle::Stop, txtCharge);
      return;
    }
    if (!DescriptionIsGiven()) return;
    const int row = grdItemType->FindRow(txtItemType->Text(), ItemType);
    if (row == 0) {
      Refuse(this, "This Item Type does not exist in the system.", MessageStyle::Stop, txtItemType);
      return;
    }
    if (StandsElsewhere(*grdItemType, txtDescription->Text(), Description, row)) {
      Refuse(this, "The Description must be unique.", MessageStyle::Stop, txtDescription);
      return;
    }
    Transaction transaction(gclsOF->Connection());
    if (!UpdateRecord(this,
                      "UPDATE " + Sql::Table("ID_ITEM_TYPE") + " " + "SET      ITEM_CHARGE = " + ChargeInSql() + ", " +
                          "ITEM_CHARGE_FIXED = " + FixedInSql({}) + ", " +
                          "ITEM_TYPE_DESC = " + Sql::Plain(txtDescription->Text()) + " " +
                          "WHERE    ITEM_TYPE = " + Sql::Plain(txtItemType->Text()),
                      "***** SQL error on ID_ITEM_TYPE (Update) *****", txtItemType,
                      "This Item Type does not exist in the system."))
      return;
    transaction.Commit();
    WriteRow(row);
    record_.Settled();
    mbItemTypesChanged = true;
    Tell(this, "Record Updated", MessageStyle::Information);
  });
}

void frmItemType::DeleteItemType() {
  const int row = grdItemType->Row();
  if (row == 0 || txtItemType->Trimmed().isEmpty()) {
    Refuse(this, Words::ChooseToDelete, MessageStyle::Stop, txtItemType);
    return;
  }
  if (!RowIsOnScreen(row)) {
    Refuse(this, Words::SelectValidRecord, MessageStyle::Stop, txtItemType);
    return;
  }
  if (!Confirm(this, Texts::DeleteQuestion)) return;
  Transaction transaction(gclsOF->Connection());
  if (!DeleteRecord(this,
                    QString("DELETE ") + "FROM " + Sql::Table("ID_ITEM_TYPE") + " " + "WHERE    ITEM_TYPE = '" +
                        gclsOF->SqlEscape(grdItemType->Text(row, ItemType)) + "'",
                    "***** SQL error on ID_ITEM_TYPE (Delete) *****", txtItemType))
    return;
  transaction.Commit();
  grdItemType->RemoveRow(row);
  record_.Settled();
  mbItemTypesChanged = true;
  Tell(this, "Record Deleted", MessageStyle::Information);
}

// --- Item types by user group ---

void frmItemType::AddAccess() {
  for (CodeComboBox* list : {cmbAccessGroup, cmbAccessItemType})
    if (!IsChosen(*list)) {
      Refuse(this, Words::ChooseToAdd, MessageStyle::Stop, list);
      return;
    }
  const QString description = cmbAccessItemType->Text();
  if (grdAccessItemType->FindRow(description, 1) > 0) {
    Refuse(this, "This record already exists", MessageStyle::Stop, cmbAccessItemType);
    return;
  }
  ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_ACCESS_ITEM_TYPE") + " (ACCESS_GROUP, ITEM_TYPE) VALUES(" +
                           Sql::Plain(cmbAccessGroup->Code()) + ", " + Sql::Plain(cmbAccessItemType->Code()) + ")",
                       "***** SQL error on ID_ACCESS_ITEM_TYPE (Insert) *****");
  PopulateItemTypeGrid();
  grdAccessItemType->SetRowQuietly(grdAccessItemType->FindRow(description, 1));
  Tell(this, "Record Added", MessageStyle::Information);
}

void frmItemType::DeleteAccess() {
  const int row = grdAccessItemType->Row();
  if (cmbAccessGroup->IsEmptyOrNone() || row == 0 || cmbAccessItemType->IsEmptyOrNone()) {
    Refuse(this, Words::ChooseToDelete, MessageStyle::Stop, cmbAccessGroup);
    return;
  }
  if (!IsChosen(*cmbAccessItemType) || cmbAccessItemType->Text() != grdAccessItemType->Text(row, 1)) {
    Refuse(this, Words::SelectValidRecord, MessageStyle::Stop, cmbAccessItemType);
    return;
  }
  if (!Confirm(this, Texts::DeleteQuestion)) return;
  Transaction transaction(gclsOF->Connection());
  if (!DeleteRecord(this,
                    QString("DELETE ") + "FROM " + Sql::Table("ID_ACCESS_ITEM_TYPE") + " " +
                        "WHERE    ACCESS_GROUP = '" + gclsOF->SqlEscape(cmbAccessGroup->Code()) + "' " +
                        "AND      ITEM_TYPE = '" + gclsOF->SqlEscape(cmbAccessItemType->Code()) + "'",
                    "***** SQL error on ID_ACCESS_ITEM_TYPE (Delete) *****", cmbAccessItemType))
    return;
  transaction.Commit();
  PopulateItemTypeGrid();
  Tell(this, "Record Deleted", MessageStyle::Information);
}
