#include "editors/Audit.h"

#include <QSignalBlocker>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Editing.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

Audit::Audit(frmTabulon& shell)
    : TabPage(shell),
      locations_{txt10aCode,
                 txt10aDescription,
                 grd10aTable,
                 &locationForm_,
                 "ID_STAT_LOCATION",
                 "STAT_LOCATION",
                 "***** SQL error on ID_STAT_LOCATION (Select) *****",
                 "***** SQL error on OSTANA.ID_STAT_LOCATION (INSERT INTO) *****"},
      // The failure line of the INSERT names another table; log readers know it so.
      functions_{txt10bCode,
                 txt10bDescription,
                 grd10bTable,
                 &functionForm_,
                 "ID_STAT_FUNCTION",
                 "STAT_FUNCTION",
                 "***** SQL error on OSTANA.ID_STAT_FUNCTION (Select) *****",
                 "***** SQL error on OSTANA.ID_EXCEPTION_CODE (INSERT INTO) *****"} {
  BuildControls();
  ConnectControls();
}

void Audit::BuildControls() {
  sstab10Audit->setObjectName("sstab10Audit");
  auto* const locations = new QWidget;
  auto* const functions = new QWidget;
  BuildSubTab(locations, locations_, "a");
  BuildSubTab(functions, functions_, "b");
  sstab10Audit->addTab(locations, "Status Location");
  sstab10Audit->addTab(functions, "Status Function");
  grd10aTable->setAccessibleName("Status locations");
  grd10bTable->setAccessibleName("Status functions");
  Form::Column(this, {sstab10Audit});
}

void Audit::BuildSubTab(QWidget* page, const Kind& kind, const QString& letter) {
  auto* const boxes = new QWidget(page);
  Form::Rows rows(boxes);
  rows.Add("lbl10" + letter + "Code", "Code:", kind.code);
  rows.Add("lbl10" + letter + "Description", "Description:", kind.description);
  if (&kind == &functions_) rows.Add("lbl10Display", "Display for Patron:", opt10Display->Row());
  Form::Require({kind.code, kind.description});
  Form::Column(page, {boxes})->addWidget(kind.grid, 1);
}

void Audit::ConnectControls() {
  for (const Kind* kind : {&locations_, &functions_}) {
    const int twips = kind == &functions_ ? 6000 : 8020;
    kind->form->Edits(kind->code, {kind->codeColumn, "Code", 1000}, Trim::BothUpper)
        .Edits(kind->description, {kind->codeColumn + "_DESC+", "Description", twips});
    connect(kind->grid, &Grid::SelChange, this, [this, kind] { SelChange(*kind); });
    KeepRowOnSort(kind->grid);
  }
  functionForm_.Edits(opt10Display, {"STAT_FUNCTION_DISP", "Display", 1000}, "N");
  connect(sstab10Audit, &QTabWidget::currentChanged, this, &Audit::sstab10Audit_Click);
}

// --- Entering the tab and its sub-tabs ---

void Audit::sstab10Audit_Click() {
  mbSubTabClicked_ = true;
  Audit_Tab();
}

void Audit::Audit_Tab() {
  Procedure procedure("frmTabulon.Audit_Tab", this);
  procedure.Run([this] {
    if (!mbSubTabClicked_) {
      const QSignalBlocker once(sstab10Audit);
      sstab10Audit->setCurrentIndex(LocationTab);
    }
    mbSubTabClicked_ = false;
    gstrButtonMode = "U";
    Audit_Clear();
    ConfigureGrdTable();
    LoadDataInGrid();
    shell().EnableButtons(gstrButtonMode);
    // The mode hides Add, which these codes have nevertheless.
    shell().ShowAdd(true);
    const Kind& kind = Current();
    kind.form->SelectFirstRow([&] { SelChange(kind); });
    kind.description->setFocus();
  });
}

void Audit::LoadGrid() {
  const Kind& kind = Current();
  kind.form->Load("SELECT   * FROM " + Sql::Table(kind.table) + " ORDER BY " + kind.codeColumn + "_DESC",
                  kind.selectFailure);
}

void Audit::SelChange(const Kind& kind) {
  const int row = kind.grid->Row();
  if (!gbSkipGridEvents && row > 0) kind.form->ShowRow(row);
}

// --- Add ---

bool Audit::Audit_Add() {
  return Procedure("frmTabulon.Audit_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    const Kind& kind = Current();
    kind.form->TrimAll();
    const QString code = kind.code->Text();
    if (code.isEmpty()) return Refuse("Please enter a Valid Code.", MessageStyle::Warning, kind.code);
    if (kind.description->Text().isEmpty())
      return Refuse("Please enter a Valid Description.", MessageStyle::Warning, kind.description);
    if (kind.RowOf(code) > 0) return Refuse("This record already exists", MessageStyle::Warning, kind.code);
    ExecuteInTransaction(InsertStatement(kind), kind.insertFailure);
    LoadDataInGrid();
    ShowStored(kind, code);
    Tell("Record Added", MessageStyle::Information);
    return true;
  });
}

// The row of the code becomes current. A pair that was unset shows the letter that was stored for it.
void Audit::ShowStored(const Kind& kind, const QString& code) {
  const int row = kind.RowOf(code);
  kind.grid->SetRowQuietly(row);
  if (row > 0) kind.form->ShowRow(row);
}

QString Audit::InsertStatement(const Kind& kind) const {
  const QString description = Sql::National(kind.description->Text());
  // The language columns of both tables are named after the first one's.
  const Sql::LanguagePieces languages = Sql::LanguageColumns("STAT_LOCATION_DESC_", description);
  const bool flag = &kind == &functions_;
  return "INSERT INTO " + Sql::Table(kind.table) + " (" + kind.codeColumn + ", " + kind.codeColumn + "_DESC" +
         (flag ? ", STAT_FUNCTION_DISP" : "") + languages.columns + ") " + "VALUES(" +
         Sql::National(kind.code->Text()) + ", " + description + (flag ? ", " + Sql::National(FlagLetter()) : "") +
         languages.values + ")";
}

// --- Update ---

bool Audit::Audit_Update() {
  return Procedure("frmTabulon.Audit_Update", this).OnFailure(Texts::DatabaseError).Answers([&] {
    const Kind& kind = Current();
    kind.form->TrimAll();
    const bool flag = &kind == &functions_;
    const int row = kind.RowOf(kind.code->Text());
    if (row > 0 && kind.description->Text() == kind.form->Cell(row, kind.codeColumn + "_DESC+") &&
        (!flag || FlagLetter() == kind.form->Cell(row, "STAT_FUNCTION_DISP")))
      return Refuse("Nothing has been changed", MessageStyle::Warning, kind.description);
    // The failure line of both sub-tabs names the first one's table.
    if (row == 0 ||
        ExecuteInTransaction(UpdateStatement(kind), "***** SQL error on OSTANA.ID_STAT_LOCATION (UPDATE) *****") == 0)
      return Refuse(Texts::NoSuchCode, MessageStyle::Stop, kind.code);
    if (flag) opt10Display->Select(FlagLetter() == "Y" ? 0 : 1);
    kind.form->WriteRow(row);
    Tell("Record Updated", MessageStyle::Information);
    kind.description->setFocus();
    return true;
  });
}

QString Audit::UpdateStatement(const Kind& kind) const {
  const QString flag = &kind == &functions_ ? ", STAT_FUNCTION_DISP = " + Sql::National(FlagLetter()) : QString();
  return "UPDATE   " + Sql::Table(kind.table) + " " + "SET      " + kind.codeColumn + "_DESC" +
         gclsOF->LanguageSuffix() + " = " + Sql::NationalOr(kind.description->Text(), "NULL") + flag + " " +
         "WHERE    " + kind.codeColumn + " = " + Sql::National(kind.code->Text());
}

bool Audit::Audit_Clear() {
  Current().grid->SetRowQuietly(0);
  Current().form->Clear();
  return true;
}
