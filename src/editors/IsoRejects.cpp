#include "editors/IsoRejects.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "editors/ExceptionCodes.h"
#include "platform/controls/FormLayout.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

namespace {

const QString Table = "ID_EXCEPTION_ISO";

QString IsoDescription() {
  return "ISO_UNFILLED_DESC" + gclsOF->LanguageSuffix();
}

}  // namespace

IsoRejects::IsoRejects(frmTabulon& shell, const ExceptionCodes& codes) : SubPage(shell), codes_(codes) {
  BuildControls();
  form_.Shows({"EXCEPTION_CODE", "Code", 1000})
      .Shows({"EXCEPTION_CODE_DESC+", "Description", 3020})
      .Shows({"ISO_UNFILLED_DESC+", "ISO Reject Code", 5000});
  connect(cmb8RejectType, &CodeComboBox::Click, this, &IsoRejects::cmb8RejectType_Click);
  connect(cmb8ISOMessage, &CodeComboBox::Click, this,
          [this] { form_.Compare("ISO_UNFILLED_DESC+", cmb8ISOMessage->Text()); });
  connect(grd8ISO, &Grid::SelChange, this, &IsoRejects::grd8ISO_SelChange);
  KeepRowOnSort(grd8ISO);
}

void IsoRejects::BuildControls() {
  txt8RejectTypeCode->setReadOnly(true);
  txt8RejectTypeCode->setFocusPolicy(Qt::ClickFocus);
  txt8RejectTypeCode->setFixedWidth(Form::FieldWidth(txt8RejectTypeCode, 5));
  txt8RejectTypeCode->setAccessibleName("Reject Type Code");
  cmb8ISOMessage->setMinimumContentsLength(48);
  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lbl8RejectType", "Reject Type :", cmb8RejectType, txt8RejectTypeCode);
  rows.Add("lbl8ISOMessage", "ISO Message:", cmb8ISOMessage);
  grd8ISO->setAccessibleName("ISO reject codes");
  Form::Require({cmb8RejectType, cmb8ISOMessage});
  Form::Column(this, {fields, grd8ISO})->setStretch(1, 1);
}

// --- Entering, selecting and choosing ---

void IsoRejects::LoadGrid() {
  const QString description = IsoDescription();
  FillGrid(*grd8ISO,
           "SELECT   EXCEPTION_CODE, " + description + " FROM " + Sql::Table("ID_EXCEPTION_ISO") + " I, " +
               Sql::Table("ID_ISO_UNFILLED") + " U " + "WHERE    I.ISO_UNFILLED = U.ISO_UNFILLED " +
               "ORDER BY EXCEPTION_CODE ",
           "***** SQL error on OSTANA.ID_EXCEPTION_ISO (Select) *****", [this](Recordset& rows) {
             const QString code = Value(rows, 0);
             return QStringList{code, codes_.DescriptionOf(code), Value(rows, 1)};
           });
}

void IsoRejects::CompareAgain() {
  const int row = grd8ISO->Row();
  const QString message = cmb8ISOMessage->Text();
  record().Compared(row > 0 ? message != grd8ISO->Text(row, IsoReject) : !message.trimmed().isEmpty());
}

void IsoRejects::Reset() {
  cmb8RejectType->SetIndex(0);
  txt8RejectTypeCode->SetText({});
  EmptyIsoMessage();
}

void IsoRejects::FindChoice() {
  grd8ISO->SetRowQuietly(grd8ISO->FindRow(txt8RejectTypeCode->Text(), Code));
}

void IsoRejects::Carry(const ExceptionChoice& choice) {
  if (!choice.Made() || !cmb8RejectType->SetCode(choice.code)) return;
  cmb8RejectType_Click();
}

ExceptionChoice IsoRejects::Choice() const {
  if (cmb8ISOMessage->Text().trimmed().isEmpty() || cmb8RejectType->IsEmptyOrNone()) return {};
  return {txt8RejectTypeCode->Text(), cmb8RejectType->Text()};
}

void IsoRejects::grd8ISO_SelChange() {
  const int row = grd8ISO->Row();
  if (gbSkipGridEvents || row == 0) return;
  const SkipGridEvents skip;
  const QString code = grd8ISO->Text(row, Code);
  txt8RejectTypeCode->SetText(code);
  if (!cmb8RejectType->SetCode(code)) cmb8RejectType->SetIndex(0);
  cmb8ISOMessage->SetText(grd8ISO->Text(row, IsoReject));
  record().Shown();
}

void IsoRejects::cmb8RejectType_Click() {
  Procedure procedure("frmTabulon.cmb8RejectType_Click", this);
  procedure.Run([this] {
    shell().buttonState();
    if (cmb8RejectType->IsEmptyOrNone()) {
      ConfigureGrdTable();
      LoadDataInGrid();
      shell().cmdClear_Click();
      return;
    }
    const QString code = cmb8RejectType->Code();
    txt8RejectTypeCode->SetText(code);
    form_.Compare("EXCEPTION_CODE", code);
    const int row = grd8ISO->FindRow(code, Code);
    if (row > 0) {
      if (!gbSkipGridEvents) grd8ISO->SetRow(row);
      return;
    }
    grd8ISO->SetRowQuietly(0);
    EmptyIsoMessage();
  });
}

QString IsoRejects::IsoUnfilled() const {
  bool found = false;
  const QString number = FirstValue("SELECT ISO_UNFILLED FROM " + Sql::Table("ID_ISO_UNFILLED") + " WHERE " +
                                        IsoDescription() + " = " + Sql::National(cmb8ISOMessage->Text()),
                                    "***** SQL error on ID_ISO_UNFILLED (SELECT) *****", &found);
  return found ? number : QString("0");
}

bool IsoRejects::IsoMessageIsNoNumber(const QString& words) {
  if (!Numbers::IsNumeric(cmb8ISOMessage->Text())) return true;
  Tell(words, MessageStyle::Warning);
  EmptyIsoMessage();
  cmb8ISOMessage->setFocus();
  return false;
}

// --- Add ---

bool IsoRejects::Add() {
  return Procedure("frmTabulon.Exception_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    if (!EntryIsValid()) return false;
    const QString code = txt8RejectTypeCode->Text();
    if (grd8ISO->FindRow(code, Code) > 0) {
      Tell("This record already exists", MessageStyle::Warning);
      grd8ISO->SetRowQuietly(0);
      shell().cmdClear_Click();
      cmb8RejectType->setFocus();
      return false;
    }
    const QString number = IsoUnfilled();
    ExecuteInTransaction("INSERT INTO " + Sql::Table(Table) + " (EXCEPTION_CODE, ISO_UNFILLED) VALUES(" +
                             Sql::Plain(code) + ", " + number + ")",
                         "***** SQL error on OSTANA.ID_EXCEPTION_ISO (INSERT INTO) *****");
    LoadDataInGrid();
    grd8ISO->SetRow(grd8ISO->FindRow(code, Code));
    Tell("Record Added", MessageStyle::Information);
    return true;
  });
}

bool IsoRejects::EntryIsValid() {
  if (cmb8RejectType->IsEmptyOrNone())
    return Refuse("Please select a Valid Reject Code.", MessageStyle::Warning, cmb8RejectType);
  if (cmb8ISOMessage->Text().isEmpty())
    return Refuse("Please select a Valid ISO Reject Code.", MessageStyle::Warning, cmb8ISOMessage);
  return IsoMessageIsNoNumber("Please enter a Valid ISO Reject Code.");
}

// --- Update ---

bool IsoRejects::Update() {
  return Procedure("frmTabulon.Exception_Update", this).OnFailure(Texts::DatabaseError).Answers([&] {
    if (!RecordIsChosen()) return false;
    const QString code = txt8RejectTypeCode->Text();
    const int row = grd8ISO->FindRow(code, Code);
    if (row > 0 && grd8ISO->Text(row, IsoReject) == cmb8ISOMessage->Text())
      return Refuse("Nothing has been changed", MessageStyle::Warning, cmb8RejectType);
    if (row == 0) return Refuse(Texts::NoSuchCode, MessageStyle::Stop, nullptr);
    Transaction transaction(gclsOF->Connection());
    const QString number = IsoUnfilled();
    const qint64 updated = Execute(
        "UPDATE " + Sql::Table(Table) + " SET ISO_UNFILLED = " + number + " WHERE EXCEPTION_CODE = " + Sql::Plain(code),
        "***** SQL error on OSTANA.ID_EXCEPTION_ISO (UPDATE) *****");
    transaction.Commit();
    if (updated == 0) return Refuse(Texts::NoSuchCode, MessageStyle::Stop, nullptr);
    grd8ISO->SetText(row, IsoReject, cmb8ISOMessage->Text());
    Tell("Record Updated", MessageStyle::Information);
    cmb8RejectType->setFocus();
    return true;
  });
}

bool IsoRejects::RecordIsChosen() {
  if (cmb8RejectType->IsEmptyOrNone())
    return Refuse("Please select a Valid Reject Code To update.", MessageStyle::Warning, nullptr);
  if (cmb8ISOMessage->Text().isEmpty())
    return Refuse("Please select a Valid ISO Reject Code To update.", MessageStyle::Warning, nullptr);
  return IsoMessageIsNoNumber("Please enter a Valid ISO Reject Code to update.");
}

// --- Delete and Clear ---

bool IsoRejects::Delete() {
  return Procedure("frmTabulon.Exception_Delete", this).OnFailure(DeleteFailureText).Answers([&] {
    if (cmb8ISOMessage->Text().isEmpty())
      return Refuse("Please choose a valid record to be deleted", MessageStyle::Warning, nullptr);
    const bool blank = cmb8ISOMessage->Text().trimmed().isEmpty();
    if (blank || cmb8RejectType->IsEmptyOrNone() || grd8ISO->Row() == 0)
      return Refuse("Please choose a valid record to be Deleted", MessageStyle::Warning, nullptr);
    const QString code = txt8RejectTypeCode->Text();
    if (grd8ISO->FindRow(code, Code) == 0) return Refuse(Texts::NoSuchRow, MessageStyle::Stop, nullptr);
    if (!Confirm(this, Texts::DeleteQuestion)) return false;
    if (ExecuteInTransaction("DELETE FROM " + Sql::Table(Table) + " WHERE EXCEPTION_CODE = " + Sql::Plain(code),
                             "***** SQL error on OSTANA.ID_EXCEPTION_ISO (DELETE) *****") == 0)
      return Refuse(Texts::NoSuchRow, MessageStyle::Stop, nullptr);
    LoadDataInGrid();
    shell().cmdClear_Click();
    Tell("Record Deleted", MessageStyle::Information);
    cmb8RejectType->setFocus();
    return true;
  });
}

bool IsoRejects::Clear() {
  Reset();
  grd8ISO->SetRowQuietly(0);
  record().Gone();
  return true;
}
