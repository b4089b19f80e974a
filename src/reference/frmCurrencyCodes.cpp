#include "reference/frmCurrencyCodes.h"

#include <QShortcut>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "reference/RecordDialog.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"

using namespace Reference;

namespace {

const QString BaseMark = "*";
const QString InsertFailed = "***** SQL error on ID_CURRENCY_CODE (Insert) *****";
// The delete runs under the update's line as well.
const QString UpdateFailed = "***** SQL error on ID_CURRENCY_CODE (Update) *****";
// The load names a table that does not exist; log readers know the line in these letters.
const QString SelectFailed = "***** SQL error on ID_ISO_CURRENCY_CODE (Select) *****";

QString UpdateOf() {
  return "UPDATE " + Sql::Table("ID_CURRENCY_CODE") + " ";
}

// A rate as the grid shows it; NULL stays empty.
QString RateOnScreen(const QString& rate) {
  return rate.isEmpty() ? rate : Numbers::Format(Numbers::Val(rate), "####0.0000");
}

}  // namespace

frmCurrencyCodes::frmCurrencyCodes(QWidget* parent) : Screen("frmCurrencyCodes", "Ostana - Currency Codes", parent) {
  BuildControls();
  ConnectControls();
}

void frmCurrencyCodes::BuildControls() {
  ShapeGrid(*grdCurrencyCode, {"",
                               "grdCurrencyCode",
                               {{"", 195},
                                {"Code", 480},
                                {"Description", 1875},
                                {"Country", 1875},
                                {"Base", 450},
                                Amount("Exchange", 810),
                                {"Symbol", 495}}});
  grdCurrencyCode->setAccessibleName("Currencies");
  grdCurrencyCode->setAccessibleDescription("Space makes the selected currency the base currency");
  grdCurrencyCode->setToolTip("A click on the Base column, or Space, makes a currency the base currency");

  auto* const entry = new QWidget(this);
  Form::Rows rows(entry);
  rows.Add(lblCurrencyCode, txtCurrencyCode);
  rows.Add(lblDescription, txtDescription);
  rows.Add(lblCountry, txtCountry);
  rows.Add(lblExchangeRate, txtExchangeRate);
  rows.Add(lblSymbol, cmbSymbol);
  Form::Require({txtCurrencyCode, txtDescription, txtCountry, txtExchangeRate, cmbSymbol});
  QVBoxLayout* const column = Form::Column(this, {entry});
  column->addWidget(grdCurrencyCode, 1);
  column->addLayout(Form::ButtonRow({nullptr, cmdAdd, cmdUpdate, cmdDelete, cmdClose}));
  resize(640, 520);
}

void frmCurrencyCodes::ConnectControls() {
  fields_.Add(txtCurrencyCode, Code, Trim::BothUpper)
      .Add(txtDescription, Description)
      .Add(txtCountry, Country)
      .Add(txtExchangeRate, Exchange)
      .AddText(cmbSymbol, Symbol);
  MarkEdits(record_, txtCurrencyCode, txtDescription, txtCountry, txtExchangeRate, cmbSymbol);
  txtCurrencyCode->UpperCaseAsTyped();
  MakeNumeric(*txtExchangeRate, lblExchangeRate, "9999.9999", "###0.0000");
  connect(cmdAdd, &QPushButton::clicked, this, &frmCurrencyCodes::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmCurrencyCodes::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmCurrencyCodes::cmdDelete_Click);
  connect(cmdClose, &QPushButton::clicked, this, &frmCurrencyCodes::cmdClose_Click);
  connect(grdCurrencyCode, &Grid::SelChange, this, &frmCurrencyCodes::grdCurrencyCode_SelChange);
  connect(grdCurrencyCode, &Grid::CellClick, this, &frmCurrencyCodes::grdCurrencyCode_Click);
  // The click on the Base column for those who work without the mouse.
  connect(new QShortcut(Qt::Key_Space, grdCurrencyCode, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
          this, [this] {
            if (grdCurrencyCode->Row() > 0) grdCurrencyCode_Click(grdCurrencyCode->Row(), Base);
          });
  Reference::ApplyRights(rights_, {cmdAdd, cmdUpdate, cmdDelete});
  KeepRowOnSort(grdCurrencyCode);
  connect(grdCurrencyCode, &Grid::AfterSort, this, [this] { mintCurrentRow = grdCurrencyCode->Row(); });
}

// --- Showing ---

void frmCurrencyCodes::PopulateForm() {
  Procedure procedure("frmCurrencyCodes.PopulateForm", this);
  // The symbols are fixed: they are there also when the currencies cannot be read.
  cmbSymbol->Clear();
  for (const char* symbol : {"$", "€", "£", "¥", "¢"}) cmbSymbol->Add(QString::fromUtf8(symbol));
  procedure.OnFailure(LoadingFormFailed).Run([this] {
    const QString suffix = gclsOF->LanguageSuffix();
    FillGrid(*grdCurrencyCode,
             QString("SELECT   * ") + "FROM " + Sql::Table("ID_CURRENCY_CODE") + " " + "ORDER BY CURRENCY_CODE_DESC" +
                 suffix,
             SelectFailed, [&](Recordset& rows) {
               return QStringList{Value(rows, "CURRENCY_CODE"),
                                  Value(rows, "CURRENCY_CODE_DESC" + suffix),
                                  Value(rows, "CURRENCY_COUNTRY"),
                                  Value(rows, "CURRENCY_BASE"),
                                  RateOnScreen(Value(rows, "CURRENCY_EXCHANGE")),
                                  Value(rows, "CURRENCY_SYMBOL")};
             });
    mbBaseChanged = false;
    ShowRow(grdCurrencyCode->Rows() > 1 ? 1 : 0);
  });
}

void frmCurrencyCodes::Form_Activate() {
  if (grdCurrencyCode->Rows() > 1) {
    mbToldEmpty = false;
    return;
  }
  if (mbToldEmpty) return;
  mbToldEmpty = true;
  const QString message = "The Currency Code table has not been initialized.";
  gclsOF->WriteLog("frmCurrencyCodes.Form_Activate", message, "L");
  Tell(this, message, MessageStyle::Stop);
}

void frmCurrencyCodes::ShowRow(int row) {
  mintCurrentRow = row;
  grdCurrencyCode->SetRowQuietly(row);
  if (row > 0) {
    fields_.FillFromRow(*grdCurrencyCode, row);
  } else {
    fields_.Clear();
    cmbSymbol->SetIndex(-1);
  }
  record_.Settled();
}

void frmCurrencyCodes::grdCurrencyCode_SelChange() {
  const int row = grdCurrencyCode->Row();
  if (gbSkipGridEvents || row == 0) return;
  if (WantsChangesApplied(this, record_, rights_)) cmdUpdate_Click();
  ShowRow(row);
}

// --- Tests of an entry ---

bool frmCurrencyCodes::FieldsAreComplete() {
  if (txtCurrencyCode->Text().size() < 3)
    return Refuse(this, "Currency Code is required and must be 3 characters long.", MessageStyle::Stop,
                  txtCurrencyCode);
  if (txtDescription->Text().isEmpty())
    return Refuse(this, "Description is a required field.", MessageStyle::Stop, txtDescription);
  if (txtCountry->Text().isEmpty()) return Refuse(this, "Country is a required field.", MessageStyle::Stop, txtCountry);
  // A sign or a point alone passes the key filter and is no rate.
  if (!Numbers::IsNumeric(txtExchangeRate->Text()))
    return Refuse(this, "Exchange Rate is a required field.", MessageStyle::Stop, txtExchangeRate);
  if (cmbSymbol->Text().trimmed().isEmpty())
    return Refuse(this, "Symbol is a required field.", MessageStyle::Stop, cmbSymbol);
  return true;
}

bool frmCurrencyCodes::IsNewRecord() {
  const QString code = txtCurrencyCode->Text();
  const QString description = txtDescription->Text();
  for (int row = 1; row < grdCurrencyCode->Rows(); ++row) {
    if (grdCurrencyCode->Text(row, Code) == code)
      return Refuse(this, "This record already exists.\n" + code, MessageStyle::Stop, txtCurrencyCode);
    if (grdCurrencyCode->Text(row, Description) == description)
      return Refuse(this, "This record already exists.\n" + description, MessageStyle::Stop, txtDescription);
  }
  return true;
}

bool frmCurrencyCodes::IsKnownRecord() {
  const int row = grdCurrencyCode->FindRow(txtCurrencyCode->Text(), Code);
  if (row == 0) return Refuse(this, Words::NoSuchCode, MessageStyle::Stop, txtCurrencyCode);
  if (StandsElsewhere(*grdCurrencyCode, txtDescription->Text(), Description, row))
    return Refuse(this, Words::SameDescription, MessageStyle::Stop, txtDescription);
  return true;
}

// --- Add, Update, Close ---

QString frmCurrencyCodes::RateInSql() const {
  return Sql::WithPoint(txtExchangeRate->Text());
}

void frmCurrencyCodes::cmdAdd_Click() {
  Procedure procedure("frm.CurrencyCodes.cmdAdd_Click", this);
  procedure.OnFailure(UnableToAdd).Finally([this] { txtCurrencyCode->setFocus(); }).Run([this] {
    fields_.TrimAll();
    if (!FieldsAreComplete() || !IsNewRecord()) return;
    const QString description = Sql::National(txtDescription->Text());
    const Sql::LanguagePieces languages = Sql::LanguageColumns("CURRENCY_CODE_DESC_", description);
    ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_CURRENCY_CODE") +
                             " (CURRENCY_CODE, CURRENCY_CODE_DESC, CURRENCY_COUNTRY, CURRENCY_EXCHANGE, "
                             "CURRENCY_SYMBOL" +
                             languages.columns + ") VALUES(" + Sql::National(txtCurrencyCode->Text()) + ", " +
                             description + ", " + Sql::National(txtCountry->Text()) + ", " + RateInSql() + ", " +
                             Sql::National(cmbSymbol->Text()) + languages.values + ")",
                         InsertFailed);
    mintCurrentRow = grdCurrencyCode->AddRow(QStringList(Symbol));
    WriteGridRow(mintCurrentRow);
    grdCurrencyCode->SetRowQuietly(mintCurrentRow);
    // A base mark that was moved in the grid is still to be stored.
    record_.Settled();
    Tell(this, Words::Added, MessageStyle::Information);
  });
}

void frmCurrencyCodes::WriteGridRow(int row) {
  fields_.WriteRow(*grdCurrencyCode, row);
  grdCurrencyCode->SetText(row, Exchange, RateOnScreen(txtExchangeRate->Text()));
}

void frmCurrencyCodes::cmdUpdate_Click() {
  Procedure procedure("frmCurrencyCodes.cmdUpdate_Click", this);
  procedure.Finally([this] { txtCurrencyCode->setFocus(); }).Run([this] {
    if (!mbRecordChanged() && !mbBaseChanged) {
      Tell(this, Words::NothingChanged, MessageStyle::Stop);
      return;
    }
    fields_.TrimAll();
    if (!IsKnownRecord() || !FieldsAreComplete()) return;
    Transaction transaction(gclsOF->Connection());
    if (mbBaseChanged) {
      ClearStoredBase();
      if (!UpdateRecord(this,
                        UpdateOf() + "SET      CURRENCY_BASE = N'*' " +
                            "WHERE    CURRENCY_CODE = " + Sql::National(grdCurrencyCode->Text(BaseRow(), Code)),
                        UpdateFailed, txtCurrencyCode))
        return;
    }
    if (mbRecordChanged() && !UpdateRecord(this, NationalUpdate(), UpdateFailed, txtCurrencyCode)) return;
    transaction.Commit();
    if (mbRecordChanged()) WriteGridRow(grdCurrencyCode->FindRow(txtCurrencyCode->Text(), Code));
    record_.Settled();
    mbBaseChanged = false;
    Tell(this, Words::Updated, MessageStyle::Information);
  });
}

QString frmCurrencyCodes::NationalUpdate() const {
  const QString code = Sql::National(txtCurrencyCode->Text());
  return UpdateOf() + "SET      CURRENCY_CODE = " + code + ", " + "CURRENCY_CODE_DESC" + gclsOF->LanguageSuffix() +
         " = " + Sql::National(txtDescription->Text()) + ", " +
         "CURRENCY_COUNTRY = " + Sql::National(txtCountry->Text()) + ", " + "CURRENCY_EXCHANGE = " + RateInSql() +
         ", " + "CURRENCY_SYMBOL = " + Sql::National(cmbSymbol->Text()) + " " + "WHERE    CURRENCY_CODE = " + code;
}

// Close writes plain literals and the description of the default language.
QString frmCurrencyCodes::PlainUpdate() const {
  const QString code = Sql::Plain(txtCurrencyCode->Text());
  return UpdateOf() + "SET      CURRENCY_CODE = " + code + ", " +
         "CURRENCY_CODE_DESC = " + Sql::Plain(txtDescription->Text()) + ", " +
         "CURRENCY_COUNTRY = " + Sql::Plain(txtCountry->Text()) + ", " + "CURRENCY_EXCHANGE = " + RateInSql() + ", " +
         "CURRENCY_SYMBOL = " + Sql::Plain(cmbSymbol->Text()) + " " + "WHERE    CURRENCY_CODE = " + code;
}

void frmCurrencyCodes::cmdClose_Click() {
  bool leave = true;
  Procedure procedure("frmCurrencyCodes.cmdClose_Click", this);
  procedure.Finally([this] { txtCurrencyCode->setFocus(); }).Run([&] {
    // A moved base alone is no edit of the record: nothing is asked and the table keeps its base.
    if (!WantsChangesApplied(this, record_, rights_)) return;
    leave = false;
    fields_.TrimAll();
    if (!IsKnownRecord() || !FieldsAreComplete()) return;
    const double rate = Numbers::Val(txtExchangeRate->Text());
    if (rate <= 0 || rate >= 100000) {
      Refuse(this, "Exchange Rate value must be greater than 0 and less than 100000", MessageStyle::Stop,
             txtExchangeRate);
      return;
    }
    Transaction transaction(gclsOF->Connection());
    if (!UpdateRecord(this, PlainUpdate(), UpdateFailed, txtCurrencyCode)) return;
    transaction.Commit();
    record_.Settled();
    Tell(this, Words::Updated, MessageStyle::Information);
    leave = true;
  });
  if (leave) Unload();
}

// --- The base ---

int frmCurrencyCodes::BaseRow() const {
  return grdCurrencyCode->FindRow(BaseMark, Base);
}

void frmCurrencyCodes::MarkBase(int row) {
  for (int other = 1; other < grdCurrencyCode->Rows(); ++other) grdCurrencyCode->SetText(other, Base, {});
  grdCurrencyCode->SetText(row, Base, BaseMark);
}

void frmCurrencyCodes::grdCurrencyCode_Click(int row, int col) {
  if (col != Base || !Confirm(this, "Are you sure you wish to change the base.")) return;
  if (grdCurrencyCode->Text(row, Base) == BaseMark) return;
  MarkBase(row);
  mbBaseChanged = true;
}

void frmCurrencyCodes::ClearStoredBase() {
  Execute(UpdateOf() + "SET      CURRENCY_BASE = NULL " + "WHERE    CURRENCY_BASE = N'*'", UpdateFailed);
}

// --- Delete ---

void frmCurrencyCodes::cmdDelete_Click() {
  Procedure procedure("frmCurrencyCodes.cmdDelete_Click", this);
  procedure.Finally([this] { txtCurrencyCode->setFocus(); }).Run([this] {
    const int row = mintCurrentRow;
    if (row == 0 || !Confirm(this, Words::DeleteQuestion)) return;
    const bool wasBase = grdCurrencyCode->Text(row, Base) == BaseMark;
    const bool last = grdCurrencyCode->Rows() == 2;
    const QString successor = last ? QString() : grdCurrencyCode->Text(row == 1 ? 2 : 1, Code);

    Transaction transaction(gclsOF->Connection());
    if (!DeleteRecord(this,
                      QString("DELETE ") + "FROM " + Sql::Table("ID_CURRENCY_CODE") + " " +
                          "WHERE   CURRENCY_CODE = '" + gclsOF->SqlEscape(grdCurrencyCode->Text(row, Code)) + "'",
                      UpdateFailed, txtCurrencyCode))
      return;
    if (!last && !StoreBaseAfterDelete(wasBase, successor)) return;
    transaction.Commit();

    grdCurrencyCode->RemoveRow(row);
    if (last) mbBaseChanged = false;
    if (wasBase && !last) {
      MarkBase(1);
      mbBaseChanged = false;
      Tell(this,
           "Base Currency is now set to first record in the table.\nTo change this, just click on the base column of "
           "the record you,\nwish to set as the base currency.",
           MessageStyle::Information);
    }
    Tell(this, Words::Deleted, MessageStyle::Information);
    ShowRow(last ? 0 : 1);
  });
}

// The grid may be behind the table: a moved mark is not stored yet, and other clients move it as well.
bool frmCurrencyCodes::StoreBaseAfterDelete(bool wasBase, const QString& successor) {
  bool stored = false;
  FirstValue("SELECT   CURRENCY_CODE FROM " + Sql::Table("ID_CURRENCY_CODE") + " WHERE    CURRENCY_BASE = N'*'",
             SelectFailed, &stored);
  if (wasBase && stored) ClearStoredBase();
  if (!wasBase && (stored || BaseRow() == 0)) return true;
  return UpdateRecord(this,
                      UpdateOf() + "SET      CURRENCY_BASE = '*'" + " " + "WHERE    CURRENCY_CODE = '" +
                          gclsOF->SqlEscape(wasBase ? successor : grdCurrencyCode->Text(BaseRow(), Code)) + "'",
                      UpdateFailed, txtCurrencyCode);
}
