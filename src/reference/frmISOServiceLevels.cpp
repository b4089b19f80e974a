#include "reference/frmISOServiceLevels.h"

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

frmISOServiceLevels::frmISOServiceLevels(QWidget* parent)
    : Screen("frmISOServiceLevels", "Ostana - ISO Levels of Service", parent) {
  BuildControls();
  connect(cmbServiceLevel, &CodeComboBox::Click, this, &frmISOServiceLevels::cmbServiceLevel_Click);
  connect(grdServiceLevel, &Grid::SelChange, this, &frmISOServiceLevels::grdServiceLevel_SelChange);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmISOServiceLevels::cmdUpdate_Click);
  connect(cmdClose, &QPushButton::clicked, this, &frmISOServiceLevels::cmdClose_Click);
  KeepRowOnSort(grdServiceLevel);
}

void frmISOServiceLevels::BuildControls() {
  ShapeGrid(*grdServiceLevel,
            {"",
             "grdServiceLevel",
             {{"", 195}, {"Symbol", 705}, {"Handling", 1425}, {"Search", 900}, {"Service Level", 960}}});
  grdServiceLevel->setAccessibleName("ISO service symbols");
  auto* const entry = new QWidget(this);
  Form::Rows(entry).Add("lblServiceLevel", "&Service Level:", cmbServiceLevel);
  QVBoxLayout* const column = Form::Column(this, {entry});
  column->addWidget(grdServiceLevel, 1);
  column->addLayout(Form::ButtonRow({nullptr, cmdUpdate, cmdClose}));
  resize(480, 420);
}

void frmISOServiceLevels::PopulateForm() {
  Procedure procedure("frmISOServiceLevels.PopulateForm", this);
  procedure.OnFailure(LoadingFieldsFailed).Run([this] {
    Record::Reading reading(record_);
    reading.Replaces();
    const QString suffix = gclsOF->LanguageSuffix();
    // No entry stands for NULL: a level can be changed, not taken away.
    FillCombo(*cmbServiceLevel, {},
              "SELECT   SERVICE_LEVEL, SERVICE_LEVEL_DESC" + suffix + " " + "FROM " + Sql::Table("ID_SERVICE_LEVEL") +
                  " ORDER BY SERVICE_LEVEL_DESC" + suffix,
              "***** SQL error on ID_SERVICE_LEVEL (Select) *****", 1, 0);
    FillGrid(*grdServiceLevel,
             QString("SELECT   ISO_SERVICE_SYMBOL, ISO_SERVICE_HANDLING, ISO_SERVICE_SEARCH, SERVICE_LEVEL ") +
                 "FROM " + Sql::Table("ID_ISO_SERVICE_LEVEL"),
             "***** SQL error on ID_ISO_SERVICE_LEVEL (Select) *****", [](Recordset& rows) {
               return QStringList{Value(rows, 0), Value(rows, 1), Value(rows, 2), Value(rows, 3)};
             });
    reading.Ended();
    ShowRow(grdServiceLevel->Rows() > 1 ? 1 : 0);
  });
  cmdUpdate->setEnabled(record_.MayBeWritten() && rights_.update);
}

void frmISOServiceLevels::Form_Activate() {
  if (grdServiceLevel->Rows() > 1 || mbToldEmpty) return;
  mbToldEmpty = true;
  const QString message = "The ISO Service Levels table has not been initialized.";
  gclsOF->WriteLog("frmISOServiceLevels.Form_Activate", message, "L");
  Tell(this, message, MessageStyle::Stop);
}

void frmISOServiceLevels::ShowRow(int row) {
  grdServiceLevel->SetRowQuietly(row);
  const QString level = row > 0 ? grdServiceLevel->Text(row, ServiceLevel) : QString();
  cmbServiceLevel->Hold(level);
}

void frmISOServiceLevels::grdServiceLevel_SelChange() {
  if (!gbSkipGridEvents && grdServiceLevel->Row() > 0) ShowRow(grdServiceLevel->Row());
}

void frmISOServiceLevels::cmbServiceLevel_Click() {
  if (grdServiceLevel->Row() == 0) return;
  grdServiceLevel->SetText(grdServiceLevel->Row(), ServiceLevel, cmbServiceLevel->Code());
  record_.Touched();
}

void frmISOServiceLevels::cmdUpdate_Click() {
  Procedure procedure("frmISOServiceLevels.cmdUpdate_Click", this);
  procedure.OnFailure(Words::UpdateFailed).Run([this] {
    if (!mbRecordChanged()) {
      Tell(this, Words::NothingChanged + "\n", MessageStyle::Stop);
      return;
    }
    RewriteTable();
  });
}

void frmISOServiceLevels::cmdClose_Click() {
  bool leave = true;
  Procedure procedure("frmISOServiceLevels.cmdClose_Click", this);
  procedure.OnFailure(Words::UpdateFailed).Run([&] {
    if (!WantsChangesApplied(this, record_, rights_)) return;
    leave = false;
    RewriteTable();
    leave = true;
  });
  if (leave) Unload();
}

void frmISOServiceLevels::RewriteTable() {
  if (!record_.MayBeWritten()) return;  // what was not read whole replaces nothing
  const QString table = Sql::Table("ID_ISO_SERVICE_LEVEL");
  Transaction transaction(gclsOF->Connection());
  Execute(QString("DELETE ") + "FROM " + table, "***** SQL error on ID_ISO_SERVICE_LEVEL (Delete) *****");
  for (int row = 1; row < grdServiceLevel->Rows(); ++row) {
    const auto cell = [&](int column) { return gclsOF->SqlEscape(grdServiceLevel->Text(row, column)); };
    Execute(QString("INSERT ") + "INTO " + table + " " + "VALUES   ('" + cell(ServiceSymbol) + "', '" + cell(Handling) +
                "', '" + cell(Search) + "', " + Sql::PlainOr(grdServiceLevel->Text(row, ServiceLevel), "NULL") + ")",
            "***** SQL error on ID_ISO_SERVICE_LEVEL (Insert) *****");
  }
  transaction.Commit();
  Tell(this, Words::Updated, MessageStyle::Information);
  record_.Settled();
}
