#include "editors/CodeTables.h"

#include <algorithm>

#include "core/Languages.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/ado/Recordset.h"
#include "shell/FindLibrary.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"
#include "shell/Screen.h"
#include "shell/frmTabulon.h"

CodeTables::CodeTables(frmTabulon& shell) : TabPage(shell) {
  BuildControls();
  ConnectControls();
  ShowSpecialControls();
}

void CodeTables::BuildControls() {
  auto* const choices = new QWidget(this);
  Form::Rows rows(choices);
  rows.Add("lbl0Tables", "Code &Table:", cmb0Tables);
  rows.Add("lbl0Code", "C&ode:", txt0Code);
  rows.Add("lbl0Description", "D&escription:", txt0Description);
  rows.Add(lbl0CurrentLanguage, cmb0CurrentLanguage, chk0DefaultLanguage);
  rows.Add(lbl0aDisplay, fra0aDisplay);
  rows.Add(lbl0Display, fra0Display);
  rows.Add(lbl0bDisplay, fra0bDisplay);

  cmb0Tables->OpenByArrows();
  grd0TableDesc->setAccessibleName("Rows of the code table");
  Form::Require({txt0Code});
  Form::Column(this, {choices})->addWidget(grd0TableDesc, 1);
}

void CodeTables::ConnectControls() {
  connect(cmb0Tables, &CodeComboBox::Click, this, &CodeTables::cmb0Tables_Click);
  connect(cmb0CurrentLanguage, &CodeComboBox::Click, this, &CodeTables::cmb0CurrentLanguage_Click);
  connect(cmd0FindLibrary, &QPushButton::clicked, this, &CodeTables::cmd0FindLibrary_Click);
  connect(grd0TableDesc, &Grid::SelChange, this, &CodeTables::grd0TableDesc_SelChange);
  // Which columns the rows come from is read off the table.
  form_.Edits(txt0Code, {"", "", 1770})
      .Edits(txt0Description, {"", "Description", 5000})
      .Shows({"", "Delivery Type", 1300})
      .Shows({"", "Web", 800})
      .Edits(txt0LibrarySymbol, {"", "Library Symbol", 1600})
      .Shows({"", "Default", 900})
      .Shows({"", "Library Id", 0, true});
  connect(opt0Display, &OptionGroup::Click, this, [this](int index) { Compare(WebFlag, index == 0 ? "Y" : ""); });
  connect(opt0DeliveryType, &OptionGroup::Click, this,
          [this](int index) { Compare(DeliveryType, index == 0 ? "C" : "L"); });
  connect(chk0DefaultLanguage, &QCheckBox::clicked, this,
          [this](bool checked) { Compare(DefaultLanguage, checked ? "Y" : ""); });
  KeepRowOnSort(grd0TableDesc);
}

void CodeTables::Compare(int column, const QString& value) {
  gstrErrorMessage.clear();
  const int row = grd0TableDesc->Row();
  record().Compared(row == 0 || grd0TableDesc->Text(row, column) != value);
}

// --- Entering the tab and choosing a table ---

void CodeTables::CodeTables_Tab() {
  Procedure procedure("frmTabulon.CodeTables_Tab", this);
  procedure.Run([this] {
    gstrButtonMode = "O";
    gbSkipGridEvents = true;
    grd0TableDesc->SetRow(0);
    const QString description = "TABLES_DESC" + gclsOF->LanguageSuffix();
    gstrTableNames = gstrTableDescriptions = gstrViewOnlyFlags = QStringList{QString()};
    cmb0Tables->Clear();
    cmb0Tables->AddNone("(none)");
    OpenRows(*grsTable, "SELECT   * FROM " + Sql::Table("ID_TABLES") + " ORDER BY " + description,
             "***** SQL error on OSTANA.ID_TABLES (SELECT) *****");
    for (; !grsTable->EOF_(); grsTable->MoveNext()) {
      cmb0Tables->Add(Value(*grsTable, description), Value(*grsTable, "TABLES"));
      gstrTableNames.append(Value(*grsTable, "TABLES"));
      gstrTableDescriptions.append(Value(*grsTable, description));
      gstrViewOnlyFlags.append(Value(*grsTable, "VIEW_ONLY_FLAG"));
    }
    grsTable->Close();
  });
  FillLanguages();
  shell().EnableButtons(gstrButtonMode);
  cmb0Tables->SetIndex(0);
  ForgetTable();
  form_.Clear();
  grd0TableDesc->Clear();
  grd0TableDesc->SetColWidth(Marker, 310);
}

void CodeTables::cmb0Tables_Click() {
  CodeTables_Clear();
  ConfigureGrdTable();
  LoadDataInGrid();
  shell().EnableButtons(gstrButtonMode);
  gbSkipGridEvents = false;
  if (grd0TableDesc->Rows() > 1) {
    grd0TableDesc->SetRowQuietly(1);
    grd0TableDesc_SelChange();
  }
  txt0Code->setFocus();
}

QString CodeTables::TableName() const {
  return gstrTableNames.value(cmb0Tables->Index());
}

void CodeTables::ConfigureGrid() {
  gstrButtonMode = "O";
  form_.Shape();
  ForgetTable();
  if (!TableSelected()) return;
  {
    const Record::Filling filling(record());
    txt0Code->SetText({});
    txt0Description->SetText({});
  }
  ReadTable();
  ShowSpecialControls();
}

// What is known of a table is never taken for another one's, also where that one cannot be read.
void CodeTables::ForgetTable() {
  special_ = {};
  gstrCodeColumn.clear();
  gstrDescColumn.clear();
  baseDescColumn_.clear();
  ShowSpecialControls();
}

void CodeTables::ReadTable() {
  const QString table = TableName();
  Recordset rows;
  rows.MaxRecords = 1;
  OpenRows(rows, "SELECT   * FROM    " + Sql::Table(table), "***** SQL error on " + table + " (Select) *****");
  special_.ackStatement = table == "ID_ACK_STATEMENT";
  const Field code = rows.Fields(0);
  const Field description = rows.Fields(special_.ackStatement ? 2 : 1);
  gstrCodeColumn = code.Name();
  gintCodeColumnType = code.Type();
  baseDescColumn_ = description.Name();
  gstrDescColumn = baseDescColumn_ + gclsOF->LanguageSuffix();
  special_.webFlag = QStringList{"PUBLICATION_TYPE", "SERVICE_LEVEL", "SERVICE_TYPE"}.contains(gstrCodeColumn);
  special_.deliveryType = gstrCodeColumn == "SERVICE_TYPE";
  special_.catalogLibrary = gstrCodeColumn == "CATALOG_CODE";
  special_.language = gstrCodeColumn == "LANGUAGE_CODE";
  special_.exception = gstrCodeColumn == "EXCEPTION_CODE";
  txt0Code->SetMaxLength(code.DefinedSize());
  txt0Description->SetMaxLength(description.DefinedSize());
  grd0TableDesc->SetHeading(Code, "Code");
  grd0TableDesc->SetHeading(Description, special_.ackStatement ? "Statement" : "Description");
}

void CodeTables::ShowSpecialControls() {
  const bool library = special_.catalogLibrary || special_.ackStatement;
  const auto show = [](bool shown, std::initializer_list<QWidget*> controls) {
    for (QWidget* control : controls) control->setVisible(shown);
  };
  show(special_.webFlag, {lbl0Display, fra0Display});
  show(special_.deliveryType, {lbl0aDisplay, fra0aDisplay});
  show(library, {lbl0bDisplay, fra0bDisplay});
  show(special_.language, {lbl0CurrentLanguage, cmb0CurrentLanguage, chk0DefaultLanguage});
  grd0TableDesc->HideCol(DeliveryType, !special_.deliveryType);
  grd0TableDesc->HideCol(WebFlag, !special_.webFlag);
  grd0TableDesc->HideCol(LibrarySymbol, !library);
  grd0TableDesc->HideCol(DefaultLanguage, !special_.language);
  grd0TableDesc->HideCol(LibraryId, true);
}

void CodeTables::LoadGrid() {
  if (!TableSelected()) return;
  const QString table = TableName();
  const QString order = special_.ackStatement ? "LIBRARY_ID, ACK_CODE " : gstrCodeColumn;
  FillGrid(*grd0TableDesc, "SELECT * FROM " + Sql::Table(table) + " ORDER BY " + order,
           "***** SQL error on" + table + " (Select) *****", [this](Recordset& rows) { return CellsOf(rows); });
  if (special_.catalogLibrary || special_.ackStatement) {
    // Many rows share few libraries; each is asked for once.
    QMap<QString, QString> symbols;
    for (int row = 1; row < grd0TableDesc->Rows(); ++row) {
      const QString id = grd0TableDesc->Text(row, LibraryId);
      if (id.isEmpty()) continue;
      if (!symbols.contains(id))
        symbols[id] =
            FirstValue("SELECT   LIBRARY_SYMBOL FROM " + Sql::Table("ID_LIBRARY") + " WHERE    LIBRARY_ID = " + id,
                       "***** SQL error on ID_LIBRARY  (Select) *****");
      grd0TableDesc->SetText(row, LibrarySymbol, symbols[id]);
    }
  }
  gstrButtonMode = gstrViewOnlyFlags.value(cmb0Tables->Index());
}

QStringList CodeTables::CellsOf(Recordset& rows) const {
  QStringList cells(LibraryId);
  cells[Code - 1] = Value(rows, 0);
  cells[Description - 1] = Value(rows, gstrDescColumn);
  if (special_.deliveryType) cells[DeliveryType - 1] = Value(rows, "DELIVERY_TYPE");
  if (special_.webFlag) cells[WebFlag - 1] = Value(rows, "WEB_FLAG");
  if (special_.catalogLibrary) cells[LibraryId - 1] = Value(rows, "CATALOG_LIBRARY_ID");
  if (special_.ackStatement) cells[LibraryId - 1] = Value(rows, "LIBRARY_ID");
  if (special_.language) cells[DefaultLanguage - 1] = Value(rows, "LANGUAGE_CODE_DEFAULT");
  return cells;
}

void CodeTables::grd0TableDesc_SelChange() {
  const int row = grd0TableDesc->Row();
  if (gbSkipGridEvents || row == 0) return;
  form_.ShowRow(row);
  opt0DeliveryType->Select(grd0TableDesc->Text(row, DeliveryType) == "C" ? 0 : 1);
  opt0Display->Select(grd0TableDesc->Text(row, WebFlag) == "Y" ? 0 : 1);
  chk0DefaultLanguage->setChecked(grd0TableDesc->Text(row, DefaultLanguage) == "Y");
  txt0Code->setFocus();
}

// --- Values and keys ---

bool CodeTables::CodeIsNumeric() const {
  switch (gintCodeColumnType) {
    case AdoType::VarChar:
    case AdoType::VarWChar:
    case AdoType::Char:
    case AdoType::WChar:
      return false;
    default:
      return true;
  }
}

QString CodeTables::QuotedCode(const QString& code) const {
  return CodeQuote() + gclsOF->SqlEscape(code) + CodeQuote();
}

int CodeTables::RowOfCode(const QString& code) const {
  // Two libraries may share a code: the row on screen goes before the first one found.
  const int current = grd0TableDesc->Row();
  if (current > 0 && grd0TableDesc->Text(current, Code) == code) return current;
  return grd0TableDesc->FindRow(code, Code);
}

QString CodeTables::WebFlagValue() const {
  return opt0Display->IsSet(0) ? "'Y'" : "Null";
}
QString CodeTables::DefaultFlagValue() const {
  return chk0DefaultLanguage->isChecked() ? "'Y'" : "Null";
}
QString CodeTables::DeliveryTypeValue() const {
  return opt0DeliveryType->IsSet(0) ? "'C'" : "'L'";
}

// --- Add ---

bool CodeTables::CodeTables_Add() {
  return Procedure("frmTabulon.CodeTables_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    QString code;
    if (!CodeIsValid(code)) return false;
    qint32 libraryId = 0;
    if (special_.ackStatement && !gclsOF->FindLibraryId(txt0LibrarySymbol->Trimmed(), libraryId))
      return Refuse("Please enter a Valid Library Symbol.", MessageStyle::Warning, txt0LibrarySymbol);
    if (IsDuplicate(code, libraryId)) {
      Tell("This record already exists", MessageStyle::Warning);
      grd0TableDesc->SetRowQuietly(0);
      const Record::Filling filling(record());
      txt0Code->SetText({});
      txt0Description->SetText({});
      txt0Code->setFocus();
      return false;
    }
    Execute(InsertStatement(code, libraryId), "***** SQL error on OSTANA." + TableName() + " (INSERT INTO) *****");
    ReloadAndSelect(code, libraryId);
    Tell("Record Added", MessageStyle::Information);
    txt0Code->setFocus();
    return true;
  });
}

bool CodeTables::CodeIsValid(QString& code) {
  if (txt0Code->Trimmed().isEmpty()) return Refuse("Please enter a Valid Code.", MessageStyle::Warning, txt0Code);
  const Record::Filling trimming(record());
  code = txt0Code->TrimUpperInPlace();
  txt0Description->TrimInPlace();
  if (!CodeIsNumeric()) return true;
  if (!Numbers::IsNumeric(code)) return Refuse("Please enter a Valid Code.", MessageStyle::Warning, txt0Code);
  if (Numbers::HasFraction(code)) return Refuse("Please enter a valid Code.", MessageStyle::Warning, txt0Code);
  // The number goes bare into the statement and is looked for in the grid: "+7" and "7.0" are 7.
  code = Numbers::Whole(code);
  return true;
}

bool CodeTables::IsDuplicate(const QString& code, qint32 libraryId) const {
  if (special_.ackStatement) return grd0TableDesc->FindRow({{Code, code}, {LibraryId, QString::number(libraryId)}}) > 0;
  return grd0TableDesc->FindRow(code, Code) > 0;
}

QString CodeTables::InsertStatement(const QString& code, qint32 libraryId) const {
  const QString description = Sql::PlainOr(txt0Description->Text(), "NULL");
  const Sql::LanguagePieces languages = Sql::LanguageColumns(baseDescColumn_ + "_", description);
  const QString into = "INSERT INTO " + Sql::Table(TableName()) + " ";
  const QString quoted = QuotedCode(code);
  QString extraColumns, extraValues;
  if (special_.webFlag) {
    extraColumns = ", WEB_FLAG";
    extraValues = ", " + WebFlagValue();
  } else if (special_.language) {
    extraColumns = ", LANGUAGE_CODE_DEFAULT";
    extraValues = ", " + DefaultFlagValue();
  }
  if (special_.ackStatement)
    return into + "(ACK_CODE, LIBRARY_ID, " + baseDescColumn_ + languages.columns + ") VALUES(" + quoted + "," +
           Sql::Number(libraryId) + "," + description + languages.values + ")";
  if (special_.exception || special_.catalogLibrary)
    return into + (special_.exception ? "(EXCEPTION_CODE, " : "(CATALOG_CODE, ") + baseDescColumn_ + languages.columns +
           extraColumns + ") VALUES(" + quoted + "," + description + languages.values + extraValues + ")";
  const QString deliveryColumn = special_.deliveryType ? ", DELIVERY_TYPE" : "";
  const QString deliveryValue = special_.deliveryType ? ", " + DeliveryTypeValue() : "";
  return into + "(" + gstrCodeColumn + ", " + baseDescColumn_ + languages.columns + deliveryColumn + extraColumns +
         ") VALUES(" + quoted + ", " + description + languages.values + deliveryValue + extraValues + ")";
}

void CodeTables::ReloadAndSelect(const QString& code, qint32 libraryId) {
  LoadDataInGrid();
  const SkipGridEvents skip;
  grd0TableDesc->SetRowQuietly(special_.ackStatement
                                   ? grd0TableDesc->FindRow({{Code, code}, {LibraryId, QString::number(libraryId)}})
                                   : grd0TableDesc->FindRow(code, Code));
}

// --- Update ---

bool CodeTables::CodeTables_Update() {
  return Procedure("frmTabulon.CodeTables_Update", this)
      .OnFailure("An error has occurred updating the table.\n\nIf the error persists notify support.")
      .Answers([&] {
        form_.TrimAll();
        const int row = grd0TableDesc->Row();
        qint32 libraryId = 0;
        if (!MayUpdate(row) || !LibraryIsValid(libraryId)) return false;
        if (ExecuteInTransaction(UpdateStatement(txt0Code->Text(), row, libraryId),
                                 "***** SQL error on OSTANA." + TableName() + " (Update) *****") == 0)
          return Refuse(Texts::NoSuchCode, MessageStyle::Warning, txt0Code);
        WriteBack(row, libraryId);
        Tell("Record Updated", MessageStyle::Information);
        return true;
      });
}

bool CodeTables::MayUpdate(int row) {
  const bool codeOfRow = row > 0 && grd0TableDesc->Text(row, Code) == txt0Code->Text();
  if (!codeOfRow) return Refuse(Texts::NoSuchCode, MessageStyle::Warning, txt0Code);
  if (RowIsUnchanged(row)) return Refuse("Nothing has been changed", MessageStyle::Warning, txt0Description);
  // Taking the default away is refused; a second default is not.
  if (special_.language && !chk0DefaultLanguage->isChecked() && grd0TableDesc->Text(row, DefaultLanguage) == "Y") {
    Tell("Only 1 language can be selected as the default.", MessageStyle::Warning);
    chk0DefaultLanguage->setChecked(true);
    txt0Description->setFocus();
    return false;
  }
  return true;
}

bool CodeTables::LibraryIsValid(qint32& libraryId) {
  const QString symbol = txt0LibrarySymbol->Text();
  if (special_.catalogLibrary && !symbol.isEmpty() && !gclsOF->FindLibraryId(symbol, libraryId))
    return Refuse("Please enter a Valid Library Symbol.", MessageStyle::Warning, txt0LibrarySymbol);
  return !special_.ackStatement || gclsOF->FindLibraryId(symbol, libraryId) ||
         Refuse(
             "Please enter a Valid Library Symbol. (Make sure the Library Symbol entered exists as a registered "
             "Library)",
             MessageStyle::Warning, txt0LibrarySymbol);
}

bool CodeTables::RowIsUnchanged(int row) const {
  const auto cell = [&](int column) { return grd0TableDesc->Text(row, column); };
  if (txt0Description->Text() != cell(Description)) return false;
  if (special_.webFlag && opt0Display->IsSet(0) != (cell(WebFlag) == "Y")) return false;
  if (special_.deliveryType && opt0DeliveryType->IsSet(0) != (cell(DeliveryType) == "C")) return false;
  if (special_.language && chk0DefaultLanguage->isChecked() != (cell(DefaultLanguage) == "Y")) return false;
  const bool library = special_.catalogLibrary || special_.ackStatement;
  return !library || txt0LibrarySymbol->Trimmed() == cell(LibrarySymbol);
}

QString CodeTables::UpdateStatement(const QString& code, int row, qint32 libraryId) const {
  const QString description = gstrDescColumn + " = " + Sql::PlainOr(txt0Description->Text(), "NULL");
  const QString update = "UPDATE " + Sql::Table(TableName()) + " ";
  const QString quoted = QuotedCode(code);
  if (special_.catalogLibrary)
    return update + "SET  " + description + ", " +
           "         CATALOG_LIBRARY_ID = " + (libraryId > 0 ? Sql::Number(libraryId) : QString("Null")) + " " +
           "WHERE    CATALOG_CODE = " + quoted;
  if (special_.ackStatement)
    return update + "SET  " + description + ", " + "         LIBRARY_ID = " + Sql::Number(libraryId) + " " +
           "WHERE ACK_CODE = " + quoted + " AND LIBRARY_ID = " + grd0TableDesc->Text(row, LibraryId);
  if (special_.webFlag)
    return update + "SET    " + description + ", " + "           WEB_FLAG = " + WebFlagValue() +
           (special_.deliveryType ? ", DELIVERY_TYPE = " + DeliveryTypeValue() : QString()) + " " + "WHERE " +
           gstrCodeColumn + " = " + quoted;
  if (special_.language)
    return update + "SET    " + description + ", " + "         LANGUAGE_CODE_DEFAULT = " + DefaultFlagValue() + " " +
           "WHERE    LANGUAGE_CODE = " + Sql::Plain(code);
  return update + "SET " + description + " " + "WHERE " + gstrCodeColumn + " = " + quoted;
}

void CodeTables::WriteBack(int row, qint32 libraryId) {
  grd0TableDesc->SetText(row, Description, txt0Description->Text());
  if (special_.webFlag) grd0TableDesc->SetText(row, WebFlag, opt0Display->IsSet(0) ? "Y" : "");
  if (special_.deliveryType) grd0TableDesc->SetText(row, DeliveryType, opt0DeliveryType->IsSet(0) ? "C" : "L");
  if (special_.language) grd0TableDesc->SetText(row, DefaultLanguage, chk0DefaultLanguage->isChecked() ? "Y" : "");
  if (special_.catalogLibrary || special_.ackStatement) {
    grd0TableDesc->SetText(row, LibrarySymbol, txt0LibrarySymbol->Text());
    grd0TableDesc->SetText(row, LibraryId, libraryId > 0 ? QString::number(libraryId) : QString());
  }
}

// --- Delete and Clear ---

bool CodeTables::CodeTables_Delete() {
  const auto failure = [](const AdoError& error) {
    const bool refused = error.RefusedByReference() || error.Number() == AdoNumber::TextRefused;
    return Texts::DeleteFailed + "\n\n" + (refused ? Texts::Referenced : Texts::Persists);
  };
  return Procedure("frmTabulon.CodeTables_Delete", this).OnFailure(failure).Answers([&] {
    const QString code = txt0Code->Trimmed();
    if (code.isEmpty()) return Refuse("Please choose a record to be Deleted", MessageStyle::Warning, txt0Code);
    const int row = RowOfCode(code);
    if (row == 0) return Refuse(Texts::NoSuchRow, MessageStyle::Warning, nullptr);
    if (!Confirm(this, Texts::DeleteQuestion)) {
      txt0Code->setFocus();
      return false;
    }
    const QString from = QString("DELETE ") + "FROM " + Sql::Table(TableName()) + " ";
    // The code is quoted here even in a numeric column.
    const QString where = special_.ackStatement ? "WHERE ACK_CODE = " + Sql::Plain(code) +
                                                      " AND LIBRARY_ID= " + grd0TableDesc->Text(row, LibraryId)
                                                : "WHERE " + gstrCodeColumn + " = " + Sql::Plain(code);
    if (ExecuteInTransaction(from + where, "***** SQL error on " + TableName() + " (Delete) *****") == 0)
      return Refuse(Texts::NoSuchRow, MessageStyle::Warning, nullptr);
    LoadDataInGrid();
    CodeTables_Clear();
    Tell("Record Deleted", MessageStyle::Information);
    return true;
  });
}

bool CodeTables::CodeTables_Clear() {
  gbSkipGridEvents = true;
  grd0TableDesc->Clear();
  grd0TableDesc->SetHeading(Description, "Description");
  form_.Clear();
  opt0DeliveryType->Unset();
  opt0Display->Unset();
  txt0Code->setFocus();
  return true;
}

// --- Language and library ---

void CodeTables::FillLanguages() {
  cmb0CurrentLanguage->Clear();
  for (int index = 0; index < gcolLanguageCode.size(); ++index)
    cmb0CurrentLanguage->Add(gcolLanguageDesc[index], gcolLanguageCode[index]);
  // Without a suffix the default language is on show; the suffix itself stays empty.
  const QString suffix = gclsOF->LanguageSuffix();
  cmb0CurrentLanguage->SetCode(suffix.isEmpty() ? gstrDefaultLanguageCode : suffix.mid(1));
}

void CodeTables::cmb0CurrentLanguage_Click() {
  Procedure procedure("frmTabulon.cmb0CurrentLanguage_Click");
  procedure.Step([this] {
    const QString suffix = "_" + cmb0CurrentLanguage->Code();
    if (gclsOF->LanguageSuffix() == suffix) return;
    gclsOF->SetLanguageSuffix(suffix);
    cmb0Tables_Click();
    const QString table = TableName();
    CodeTables_Tab();
    // The order of the list follows the language: the table is found again by its name.
    cmb0Tables->SetIndex(std::max(0, static_cast<int>(gstrTableNames.indexOf(table, 1))));
    cmb0Tables_Click();
    LoadLanguageCodes(suffix);
    FillLanguages();
    shell().ShowStatus();
  });
}

void CodeTables::cmd0FindLibrary_Click() {
  Procedure procedure("frmTabulon.cmd0FindLibrary_Click", this);
  procedure.Run([this] {
    const FoundLibrary found = FindLibrary(this, MessageStyle::Warning);
    if (found.id > 0) txt0LibrarySymbol->SetText(found.symbol);
  });
}
