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
      locations_{txt10aCode,      txt10aDescription,
                 grd10aTable,     "ID_STAT_LOCATION",
                 "STAT_LOCATION", "***** SQL error on OSTANA.ID_STAT_LOCATION (INSERT INTO) *****"},
      // The failure line names another table; log readers know it so.
      functions_{txt10bCode,      txt10bDescription,
                 grd10bTable,     "ID_STAT_FUNCTION",
                 "STAT_FUNCTION", "***** SQL error on OSTANA.ID_EXCEPTION_CODE (INSERT INTO) *****"} {
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
    WatchField(record(), kind->code, kind->grid, Code);
    WatchField(record(), kind->description, kind->grid, Description);
    connect(kind->grid, &Grid::SelChange, this, [this, kind] { SelChange(*kind); });
    KeepRowOnSort(kind->grid);
  }
  connect(opt10Display, &OptionGroup::Click, this, &Audit::opt10Display_Click);
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
    if (kind.grid->Rows() > 1) {
      kind.grid->SetRowQuietly(1);
      gbSkipGridEvents = false;
      SelChange(kind);
    }
    kind.description->setFocus();
  });
}

void Audit::SelChange(const Kind& kind) {
  const int row = kind.grid->Row();
  if (gbSkipGridEvents || row == 0) return;
  {
    const FillingFields filling;
    kind.code->SetText(kind.grid->Text(row, Code));
    kind.description->SetText(kind.grid->Text(row, Description));
    if (&kind == &functions_) {
      const QString flag = kind.grid->Text(row, Display);
      opt10Display->Select(flag == "Y" ? 0 : flag == "N" ? 1 : -1);
    }
  }
  record().Settled();
}

void Audit::opt10Display_Click() {
  gstrErrorMessage.clear();
  const int row = grd10bTable->Row();
  const QString flag = row == 0 ? QString() : grd10bTable->Text(row, Display);
  // "Yes" over a stored N is no change here, and "No" over anything but Y is one: the test of all option pairs.
  record().Compared((opt10Display->IsSet(0) && flag.isEmpty()) || (opt10Display->IsSet(1) && flag != "Y"));
}

// --- Add ---

bool Audit::Audit_Add() {
  bool done = false;
  Procedure procedure("frmTabulon.Audit_Add", this);
  procedure.OnFailure(Texts::DatabaseError).Run([&] {
    const Kind& kind = Current();
    const QString code = kind.code->TrimUpperInPlace();
    kind.description->TrimInPlace();
    if (code.isEmpty()) {
      Refuse("Please enter a Valid Code.", MessageStyle::Warning, kind.code);
      return;
    }
    if (kind.description->Text().isEmpty()) {
      Refuse("Please enter a Valid Description.", MessageStyle::Warning, kind.description);
      return;
    }
    if (kind.grid->FindRow(code, Code) > 0) {
      Refuse("This record already exists", MessageStyle::Warning, kind.code);
      return;
    }
    ExecuteInTransaction(InsertStatement(kind), kind.insertFailure);
    LoadDataInGrid();
    kind.grid->SetRowQuietly(kind.grid->FindRow(code, Code));
    Tell("Record Added", MessageStyle::Information);
    done = true;
  });
  return done;
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
  bool done = false;
  Procedure procedure("frmTabulon.Audit_Update", this);
  procedure.OnFailure(Texts::DatabaseError).Run([&] {
    const Kind& kind = Current();
    const QString code = kind.code->TrimUpperInPlace();
    const QString description = kind.description->TrimInPlace();
    const bool flag = &kind == &functions_;
    const int row = kind.grid->FindRow(code, Code);
    if (row > 0 && description == kind.grid->Text(row, Description) &&
        (!flag || FlagLetter() == kind.grid->Text(row, Display))) {
      Refuse("Nothing has been changed", MessageStyle::Warning, kind.description);
      return;
    }
    if (row == 0) {
      Refuse("This Code does not exist in the table.  Please select a Valid Code to Update.", MessageStyle::Stop,
             kind.code);
      return;
    }
    // The failure line of both sub-tabs names the first one's table.
    ExecuteInTransaction(UpdateStatement(kind), "***** SQL error on OSTANA.ID_STAT_LOCATION (UPDATE) *****");
    kind.grid->SetText(row, Description, description);
    if (flag) kind.grid->SetText(row, Display, FlagLetter());
    Tell("Record Updated", MessageStyle::Information);
    kind.description->setFocus();
    done = true;
  });
  return done;
}

QString Audit::UpdateStatement(const Kind& kind) const {
  const QString flag = &kind == &functions_ ? ", STAT_FUNCTION_DISP = " + Sql::National(FlagLetter()) : QString();
  return "UPDATE   " + Sql::Table(kind.table) + " " + "SET      " + kind.codeColumn + "_DESC" +
         gclsOF->LanguageSuffix() + " = " + Sql::NationalOr(kind.description->Text(), "NULL") + flag + " " +
         "WHERE    " + kind.codeColumn + " = " + Sql::National(kind.code->Text());
}

bool Audit::Audit_Clear() {
  const Kind& kind = Current();
  kind.grid->SetRowQuietly(0);
  {
    const FillingFields filling;
    kind.code->SetText({});
    kind.description->SetText({});
    if (&kind == &functions_) opt10Display->Unset();
  }
  record().Settled();
  return true;
}
