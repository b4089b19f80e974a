#include "reference/frmServiceCode.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "reference/RecordDialog.h"
#include "shell/Editing.h"
#include "shell/GridTable.h"
#include "shell/Lists.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

using namespace Reference;

namespace {

const QString NoneEntry = "(none)";

// The regions are fixed: no table holds them.
void AddRegions(CodeComboBox& box) {
  box.Clear();
  box.AddNone(NoneEntry);
  box.Add("European Union", "EU");
  box.Add("Rest of World", "RW");
  box.Add("United Kingdom", "UK");
  box.SetIndex(0);
}

void ShowCode(CodeComboBox& box, const QString& code) {
  if (code.isEmpty())
    box.SetIndex(0);
  else
    box.Hold(code);
}

char16_t DigitKey(char16_t key) {
  if ((key >= u'0' && key <= u'9') || key == 8 || key == 13) return key;
  Prompts().Beep();
  return 0;
}

}  // namespace

frmServiceCode::frmServiceCode(QWidget* parent) : Screen("frmServiceCode", "Ostana - Service Code", parent) {
  sstabServiceCode->setObjectName("sstabServiceCode");
  BuildControls();
  ConnectControls();
}

void frmServiceCode::BuildControls() {
  ShapeGrid(*grdServiceCode, {"",
                              "grdServiceCode",
                              {{"", 195},
                               {"Service Code", 1095},
                               {"Region", 1305},
                               {"Delivery Method", 1545},
                               {"Service Level", 1200},
                               {"System Source", 1200},
                               {"Item Type", 795}}});
  ShapeGrid(*grdCountryCode, {"", "grdCountryCode", {{"", 195}, {"Country Code", 1305}}});
  grdServiceCode->setAccessibleName("Service codes");
  grdCountryCode->setAccessibleName("Countries of the region");

  auto* const codeEntry = new QWidget(this);
  Form::Rows codeRows(codeEntry);
  codeRows.Add("lblServiceCode", "&Service Code:", txtServiceCode);
  codeRows.Add("lblCountryRegion", "Re&gion:", cmbCountryRegion);
  codeRows.Add("lblDeliveryMethod", "Delivery &Method:", cmbDeliveryMethod);
  codeRows.Add("lblServiceLevel", "Service &Level:", cmbServiceLevel);
  codeRows.Add("lblSystemSource", "S&ystem Source:", cmbSystemSource);
  codeRows.Add("lblItemType", "Item &Type:", cmbItemType);
  auto* const codePage = new QWidget(this);
  Form::Column(codePage, {codeEntry})->addWidget(grdServiceCode, 1);
  sstabServiceCode->addTab(codePage, "Service Code");

  auto* const countryEntry = new QWidget(this);
  Form::Rows countryRows(countryEntry);
  countryRows.Add("lblRegion", "Re&gion:", cmbRegion);
  countryRows.Add("lblCountryCode", "Country C&ode:", txtCountryCode);
  auto* const countryPage = new QWidget(this);
  Form::Column(countryPage, {countryEntry})->addWidget(grdCountryCode, 1);
  sstabServiceCode->addTab(countryPage, "Country Region");

  Form::Require({txtServiceCode, cmbRegion, txtCountryCode});
  QVBoxLayout* const column = Form::Column(this);
  column->addWidget(sstabServiceCode, 1);
  column->addLayout(Form::ButtonRow({nullptr, cmdAdd, cmdUpdate, cmdDelete, cmdClear, cmdClose}));
  resize(720, 600);
}

void frmServiceCode::ConnectControls() {
  MarkEdits(serviceCode_, txtServiceCode, cmbCountryRegion, cmbDeliveryMethod, cmbServiceLevel, cmbSystemSource,
            cmbItemType);
  MarkEdits(country_, txtCountryCode);
  txtServiceCode->UpperCaseAsTyped();
  txtServiceCode->SelectAllOnFocus();
  txtCountryCode->SetKeyPress(DigitKey);
  txtCountryCode->SelectAllOnFocus();
  connect(sstabServiceCode, &QTabWidget::currentChanged, this, &frmServiceCode::sstabServiceCode_Click);
  connect(cmbRegion, &CodeComboBox::Click, this, &frmServiceCode::LoadCountryCodeGrid);
  connect(grdServiceCode, &Grid::SelChange, this, &frmServiceCode::grdServiceCode_SelChange);
  connect(grdCountryCode, &Grid::SelChange, this, &frmServiceCode::grdCountryCode_SelChange);
  connect(cmdAdd, &QPushButton::clicked, this, &frmServiceCode::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmServiceCode::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmServiceCode::cmdDelete_Click);
  connect(cmdClear, &QPushButton::clicked, this, [this] {
    ClearFields();
    Front().Settled();
  });
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(); });
  Reference::ApplyRights(rights_, {cmdAdd, cmdUpdate, cmdDelete, cmdClear});
  KeepRowOnSort(grdServiceCode);
  KeepRowOnSort(grdCountryCode);
}

// --- Showing ---

void frmServiceCode::Form_Load() {
  PopulateServiceCodeCombos();
  LoadServiceCodeGrid();
  serviceCode_.Settled();
  country_.Settled();
}

void frmServiceCode::PopulateServiceCodeCombos() {
  AddRegions(*cmbCountryRegion);
  AddRegions(*cmbRegion);
  // Each list fails for itself.
  const auto fill = [this](CodeComboBox* box, const QString& code, const QString& description, const QString& table) {
    Procedure("frmServiceCode.PopulateServiceCodeCombos", this).Run([&] {
      FillCombo(
          *box, NoneEntry,
          "SELECT   " + code + ", " + description + " " + "FROM " + Sql::Table(table) + " ORDER BY " + description,
          "***** SQL error on " + table + " (Select) *****", 1, 0);
      box->SetIndex(0);
    });
  };
  const QString suffix = gclsOF->LanguageSuffix();
  fill(cmbDeliveryMethod, "DELIV_METHOD", "DELIV_METHOD_DESC" + suffix, "ID_DELIV_METHOD");
  fill(cmbServiceLevel, "SERVICE_LEVEL", "SERVICE_LEVEL_DESC" + suffix, "ID_SERVICE_LEVEL");
  fill(cmbSystemSource, "SYSTEM_SOURCE", "SYSTEM_SOURCE_DESC" + suffix, "ID_SYSTEM_SOURCE");
  // Item types are described in one language.
  fill(cmbItemType, "ITEM_TYPE", "ITEM_TYPE_DESC", "ID_ITEM_TYPE");
}

void frmServiceCode::LoadServiceCodeGrid() {
  Procedure procedure("frmServiceCode.LoadServiceCodeGrid", this);
  procedure.Run([this] {
    FillGrid(*grdServiceCode,
             QString("SELECT   * ") + "FROM " + Sql::Table("ID_SERVICE_CODE") + " " + "ORDER BY SERVICE_CODE",
             "***** SQL error on ID_SERVICE_CODE (Select) *****", [](Recordset& rows) {
               return QStringList{Value(rows, "SERVICE_CODE"),    Value(rows, "COUNTRY_REGION"),
                                  Value(rows, "DELIVERY_METHOD"), Value(rows, "SERVICE_LEVEL"),
                                  Value(rows, "SYSTEM_SOURCE"),   Value(rows, "ITEM_TYPE")};
             });
  });
}

void frmServiceCode::LoadCountryCodeGrid() {
  Procedure procedure("frmServiceCode.LoadCountryCodeGrid", this);
  procedure.Run([this] {
    if (cmbRegion->IsEmptyOrNone()) {
      grdCountryCode->Clear();
      return;
    }
    FillGrid(*grdCountryCode,
             QString("SELECT   COUNTRY_CODE ") + "FROM " + Sql::Table("ID_COUNTRY_CODE") + " " +
                 "WHERE    COUNTRY_REGION = '" + cmbRegion->Code() + "' " + "ORDER BY COUNTRY_CODE",
             "***** SQL error on ID_COUNTRY_CODE (Select) *****",
             [](Recordset& rows) { return QStringList{Value(rows, 0)}; });
  });
}

void frmServiceCode::sstabServiceCode_Click(int tab) {
  // A country row has nothing but its key: there is nothing to update.
  cmdUpdate->setEnabled(tab == ServiceCodeTab && rights_.update);
  if (tab == CountryRegionTab) LoadCountryCodeGrid();
}

void frmServiceCode::grdServiceCode_SelChange() {
  const int row = grdServiceCode->Row();
  if (gbSkipGridEvents || row == 0) return;
  txtServiceCode->SetText(grdServiceCode->Text(row, ServiceCode));
  for (const Wildcard& wildcard : wildcards_) ShowCode(*wildcard.box, grdServiceCode->Text(row, wildcard.col));
}

void frmServiceCode::grdCountryCode_SelChange() {
  const int row = grdCountryCode->Row();
  if (!gbSkipGridEvents && row > 0) txtCountryCode->SetText(grdCountryCode->Text(row, 1));
}

void frmServiceCode::ClearFields() {
  if (OnServiceCodeTab()) {
    txtServiceCode->SetText({});
    for (const Wildcard& wildcard : wildcards_) wildcard.box->SetIndex(0);
    txtServiceCode->setFocus();
  } else {
    txtCountryCode->SetText({});
    cmbRegion->SetIndex(0);
    LoadCountryCodeGrid();
    cmbRegion->setFocus();
  }
}

// --- The buttons of both tabs ---

void frmServiceCode::Run(const QString& handler, const std::function<void()>& body) {
  Procedure("frmServiceCode." + handler, this).LogStatement().Run(body);
}

void frmServiceCode::cmdAdd_Click() {
  Run("cmdAdd_Click", [this] { OnServiceCodeTab() ? AddServiceCode() : AddCountry(); });
}

void frmServiceCode::cmdDelete_Click() {
  Run("cmdDelete_Click", [this] { OnServiceCodeTab() ? DeleteServiceCode() : DeleteCountry(); });
}

bool frmServiceCode::CloseButtonUpdate() {
  if (!mbRecordChanged() || !rights_.update) return true;
  const int question = (MessageStyle::Question & MessageStyle::IconMask) | MessageStyle::YesNoCancel;
  const int answer =
      Tell(this, "A record has been modified.\nDo you wish to apply the updates before continuing?", question);
  if (answer == MessageAnswer::Yes) cmdUpdate_Click();
  return answer != MessageAnswer::Cancel;
}

// --- Service codes ---

QStringList frmServiceCode::EnteredValues() const {
  QStringList values(ItemType);
  values[ServiceCode - 1] = txtServiceCode->Text();
  for (const Wildcard& wildcard : wildcards_) values[wildcard.col - 1] = wildcard.box->Code();
  return values;
}

QStringList frmServiceCode::RowValues(int row) const {
  QStringList values;
  for (int col = ServiceCode; col <= ItemType; ++col) values.append(grdServiceCode->Text(row, col));
  return values;
}

void frmServiceCode::WriteRow(int row) {
  const QStringList values = EnteredValues();
  for (int col = ServiceCode; col <= ItemType; ++col) grdServiceCode->SetText(row, col, values[col - 1]);
}

QString frmServiceCode::WhereRow(int row) const {
  QString where = "WHERE    SERVICE_CODE = '" + gclsOF->SqlEscape(grdServiceCode->Text(row, ServiceCode)) + "' ";
  for (const Wildcard& wildcard : wildcards_) {
    const QString value = grdServiceCode->Text(row, wildcard.col);
    where += "AND      " + wildcard.column + " " +
             (value.isEmpty() ? QString("IS Null ") : "= '" + gclsOF->SqlEscape(value) + "' ");
  }
  return where;
}

void frmServiceCode::AddServiceCode() {
  if (txtServiceCode->TrimUpperInPlace().isEmpty()) {
    Refuse(this, "Please enter a valid character Service Code.", MessageStyle::Stop, txtServiceCode);
    return;
  }
  const QStringList values = EnteredValues();
  for (int row = 1; row < grdServiceCode->Rows(); ++row) {
    if (RowValues(row) != values) continue;
    Refuse(this, "This record already exists", MessageStyle::Stop, txtServiceCode);
    return;
  }
  QString columns, literals;
  for (const Wildcard& wildcard : wildcards_) {
    columns += ", " + wildcard.column;
    literals += ", " + Sql::PlainOr(wildcard.box->Code(), "Null");
  }
  Execute("INSERT INTO " + Sql::Table("ID_SERVICE_CODE") + " (SERVICE_CODE" + columns + ") VALUES(" +
              Sql::Plain(txtServiceCode->Text()) + literals + ")",
          "***** SQL error on ID_SERVICE_CODE (Insert) *****");
  grdServiceCode->SetRowQuietly(grdServiceCode->AddRow(values));
  serviceCode_.Settled();
  Tell(this, "Record Added", MessageStyle::Information);
}

void frmServiceCode::cmdUpdate_Click() {
  Run("cmdUpdate_Click", [this] {
    if (!mbRecordChanged()) {
      Tell(this, Words::NothingChanged, MessageStyle::Stop);
      return;
    }
    const int row = grdServiceCode->Row();
    if (row == 0 || txtServiceCode->TrimUpperInPlace() != grdServiceCode->Text(row, ServiceCode)) {
      Refuse(this, "This Service Code does not exist in the system.", MessageStyle::Stop, txtServiceCode);
      return;
    }
    QStringList settings;
    for (const Wildcard& wildcard : wildcards_)
      settings.append(wildcard.column + " = " + Sql::PlainOr(wildcard.box->Code(), "Null"));
    if (!UpdateRecord(
            this,
            "UPDATE " + Sql::Table("ID_SERVICE_CODE") + " " + "SET      " + settings.join(", ") + " " + WhereRow(row),
            "***** SQL error on ID_SERVICE_CODE (Update) *****", txtServiceCode,
            "This Service Code does not exist in the system."))
      return;
    WriteRow(row);
    serviceCode_.Settled();
    Tell(this, "Record Updated", MessageStyle::Information);
  });
}

void frmServiceCode::DeleteServiceCode() {
  const int row = grdServiceCode->Row();
  if (row == 0 || txtServiceCode->Trimmed().isEmpty()) {
    Refuse(this, Words::ChooseToDelete, MessageStyle::Stop, txtServiceCode);
    return;
  }
  if (EnteredValues() != RowValues(row)) {
    Refuse(this, Words::SelectValidRecord, MessageStyle::Stop, txtServiceCode);
    return;
  }
  if (!Confirm(this, Texts::DeleteQuestion)) return;
  if (!DeleteRecord(this, QString("DELETE ") + "FROM " + Sql::Table("ID_SERVICE_CODE") + " " + WhereRow(row),
                    "***** SQL error on ID_SERVICE_CODE (Delete) *****", txtServiceCode))
    return;
  grdServiceCode->RemoveRow(row);
  serviceCode_.Settled();
  Tell(this, "Record Deleted", MessageStyle::Information);
}

// --- Countries ---

void frmServiceCode::AddCountry() {
  const QString code = txtCountryCode->TrimInPlace();
  if (cmbRegion->IsEmptyOrNone() || code.isEmpty()) {
    Refuse(this, Words::ChooseToAdd, MessageStyle::Stop, cmbRegion);
    return;
  }
  bool found = false;
  const QString region = FirstValue(QString("SELECT   COUNTRY_REGION ") + "FROM " + Sql::Table("ID_COUNTRY_CODE") +
                                        " WHERE    COUNTRY_CODE = " + Sql::Plain(code),
                                    "***** SQL error on ID_COUNTRY_CODE (Select) *****", &found);
  if (found) {
    const QString description = cmbRegion->DescriptionOf(region);
    Refuse(this, "This record already exists in the '" + (description.isEmpty() ? region : description) + "' region.",
           MessageStyle::Stop, txtCountryCode);
    return;
  }
  Execute("INSERT INTO " + Sql::Table("ID_COUNTRY_CODE") + " (COUNTRY_CODE, COUNTRY_REGION) VALUES(" +
              Sql::Plain(code) + ", " + Sql::Plain(cmbRegion->Code()) + ")",
          "***** SQL error on ID_COUNTRY_CODE (Insert) *****");
  country_.Settled();
  LoadCountryCodeGrid();
  grdCountryCode->SetRowQuietly(grdCountryCode->FindRow(code, 1));
  Tell(this, "Record Added", MessageStyle::Information);
}

void frmServiceCode::DeleteCountry() {
  const int row = grdCountryCode->Row();
  const QString code = txtCountryCode->Trimmed();
  if (cmbRegion->IsEmptyOrNone() || row == 0 || code.isEmpty()) {
    Refuse(this, Words::ChooseToDelete, MessageStyle::Stop, txtCountryCode);
    return;
  }
  if (code != grdCountryCode->Text(row, 1)) {
    Refuse(this, Words::SelectValidRecord, MessageStyle::Stop, txtCountryCode);
    return;
  }
  if (!Confirm(this, Texts::DeleteQuestion)) return;
  if (!DeleteRecord(this,
                    QString("DELETE ") + "FROM " + Sql::Table("ID_COUNTRY_CODE") + " " + "WHERE    COUNTRY_CODE = '" +
                        gclsOF->SqlEscape(code) + "' " + "AND      COUNTRY_REGION = '" + cmbRegion->Code() + "'",
                    "***** SQL error on ID_COUNTRY_CODE (Delete) *****", txtCountryCode))
    return;
  country_.Settled();
  LoadCountryCodeGrid();
  Tell(this, "Record Deleted", MessageStyle::Information);
}
