// Editing one profile: showing, testing, and Add, Update, Delete and Clear, which touch the grid alone.
#include "interop/frmNCIPProfile.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"

#include <QScopedValueRollback>

#include "interop/CodeLists.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

// --- Frames ---

void frmNCIPProfile::Run(const QString& handler, const std::function<void()>& body) {
  Procedure("frmNCIPProfile." + handler, this).OnFailure(Texts::NotifySupport).Run(body);
}

void frmNCIPProfile::MarkChanged() {
  if (!mbLoading) profile_.Touched();
}

// --- Showing ---

void frmNCIPProfile::ShowRow(int row) {
  const QScopedValueRollback loading(mbLoading, true);
  const Codes& codes = CodesOf(row);
  keyOnShow_ = grdNCIPProfile->RowData(row);
  txtProfileCode->SetText(grdNCIPProfile->Text(row, ProfileCode));
  txtDescription->SetText(grdNCIPProfile->Text(row, Description));
  for (const List& list : lists_) CodeLists::ShowCode(*list.box, codes[list.column]);
  const auto yes = [&](Column column) { return grdNCIPProfile->Text(row, column) == "Yes"; };
  copy_->Show({yes(AllowCopy), yes(SelectCopy), codes[MethodCopy], codes[AddressCopy]});
  loan_->Show({yes(AllowLoan), yes(SelectLoan), codes[MethodLoan], codes[AddressLoan]});
  profile_.Shown();
}

void frmNCIPProfile::ShowCleared() {
  const QScopedValueRollback loading(mbLoading, true);
  txtProfileCode->SetText({});
  txtDescription->SetText({});
  for (const List& list : lists_) CodeLists::ShowCode(*list.box, {});
  CodeLists::ShowCode(*cmbFileFormat, mstrDefaultFileFormat);
  CodeLists::ShowCode(*cmbMessageFormat, mstrDefaultMsgFormat);
  copy_->Clear();
  loan_->Clear();
  grdNCIPProfile->SetRowQuietly(0);
  keyOnShow_ = 0;
  profile_.Gone();
}

QStringList frmNCIPProfile::CellsOnScreen() const {
  QStringList cells(ColumnCount);
  cells[ProfileCode] = txtProfileCode->Text();
  cells[Description] = txtDescription->Text();
  for (const List& list : lists_) cells[list.column] = list.box->Text();
  const auto delivery = [&](const DeliveryChoice* choice, int allow) {
    const DeliveryChoice::Values values = choice->OnScreen();
    cells[allow] = DeliveryChoice::YesNo(values.allowed);
    cells[allow + 1] = DeliveryChoice::YesNo(values.selected);
    cells[allow + 2] = choice->MethodText();
    cells[allow + 3] = choice->AddressText();
  };
  delivery(copy_, AllowCopy);
  delivery(loan_, AllowLoan);
  return cells.mid(ProfileCode);
}

frmNCIPProfile::Codes frmNCIPProfile::CodesOnScreen() const {
  Codes codes;
  for (const List& list : lists_) codes[list.column] = list.box->Code();
  const DeliveryChoice::Values copy = copy_->OnScreen(), loan = loan_->OnScreen();
  codes[MethodCopy] = copy.method;
  codes[AddressCopy] = copy.address;
  codes[MethodLoan] = loan.method;
  codes[AddressLoan] = loan.address;
  return codes;
}

// --- Tests ---

bool frmNCIPProfile::Validate(bool adding) {
  txtProfileCode->TrimInPlace();
  txtDescription->TrimInPlace();
  copy_->TrimAddress();
  loan_->TrimAddress();
  const auto texts = [this] {
    if (txtProfileCode->Text().isEmpty())
      return Refuse(this, "Profile Code is a required field.", MessageStyle::Stop, txtProfileCode);
    if (txtDescription->Text().isEmpty())
      return Refuse(this, "Description is a required field.", MessageStyle::Stop, txtDescription);
    return true;
  };
  const auto copyMethod = [this] {
    return MethodIsGiven(copy_, "Delivery method (Copy) is required when Delivery Select is set to No.");
  };
  // The two orders differ, and Update leaves a blank out of one message.
  if (adding)
    return texts() && copyMethod() && AddressIsGood(copy_) &&
           MethodIsGiven(loan_, "Delivery method (Loan) is required when Delivery Select is set to No.") &&
           AddressIsGood(loan_);
  return copyMethod() && MethodIsGiven(loan_, "Delivery method (Loan)is required when Delivery Select is set to No.") &&
         texts() && AddressIsGood(copy_) && AddressIsGood(loan_);
}

bool frmNCIPProfile::MethodIsGiven(const DeliveryChoice* choice, const QString& refusal) {
  return !choice->MethodIsMissing() || Refuse(this, refusal, MessageStyle::Stop, choice->MethodBox());
}

bool frmNCIPProfile::AddressIsGood(const DeliveryChoice* choice) {
  QString reason;
  return choice->AddressIsValid(reason) ||
         Refuse(this, "The Delivery Address is not valid.\n\n" + reason, MessageStyle::Stop, choice->AddressBox());
}

// --- Editing the list ---

void frmNCIPProfile::cmdAdd_Click() {
  Run("cmdAdd_Click", [this] {
    if (!Validate(true)) return;
    const QString code = txtProfileCode->Text();
    if (grdNCIPProfile->FindRow(code, ProfileCode) > 0) {
      Refuse(this, "NCIP Profile Code: " + code + " is already in the grid.", MessageStyle::Stop, txtProfileCode);
      return;
    }
    const int row = AddRow(CellsOnScreen(), CodesOnScreen());
    gbSettingsChanged = true;
    grdNCIPProfile->SetRowQuietly(row);
    ShowRow(row);
  });
}

// On a cleared screen no row is on show, and none is written.
void frmNCIPProfile::cmdUpdate_Click() {
  if (RowOnShow() == 0) {
    Tell(this, "There are currently no rows to Update.", MessageStyle::Stop);
    return;
  }
  Run("cmdUpdate_Click", [this] { UpdateCurrentRow(RowOnShow()); });
}

// Another row may hold the same code already; the write on closing then fails.
void frmNCIPProfile::UpdateCurrentRow(int row) {
  if (!Validate(false)) return;
  const QStringList cells = CellsOnScreen();
  for (int index = 0; index < cells.size(); ++index) grdNCIPProfile->SetText(row, ProfileCode + index, cells[index]);
  codes_[grdNCIPProfile->RowData(row)] = CodesOnScreen();
  profile_.Settled();
  gbSettingsChanged = true;
}

void frmNCIPProfile::cmdDelete_Click() {
  const int row = grdNCIPProfile->Row();
  if (row < 1) {
    Refuse(this, "Please select a row to delete.", MessageStyle::Stop, grdNCIPProfile);
    return;
  }
  codes_.erase(grdNCIPProfile->RowData(row));
  grdNCIPProfile->RemoveRow(row);
  if (grdNCIPProfile->Rows() > 1) {
    grdNCIPProfile->SetRowQuietly(1);
    ShowRow(1);
  } else {
    ShowCleared();
  }
  gbSettingsChanged = true;
}

bool frmNCIPProfile::UpdateIsWanted() {
  return list_.MayBeWritten() && rights_.update && gclsOF->LibraryId() >= 1 && mbProfileChanged() &&
         Confirm(this, "This profile has been updated.\nDo you wish to apply the updates before continuing?");
}

void frmNCIPProfile::grdNCIPProfile_SelChange() {
  if (mbLoading) return;
  Run("grdNCIPProfile_SelChange", [this] {
    // The row that is left, not the one that was chosen.
    const int left = RowOnShow();
    if (UpdateIsWanted()) {
      if (left == 0) {
        // What was typed on the cleared screen waits there for Add.
        Tell(this, "There are currently no rows to Update.", MessageStyle::Stop);
        grdNCIPProfile->SetRowQuietly(0);
        return;
      }
      UpdateCurrentRow(left);
    }
    if (grdNCIPProfile->Row() > 0) ShowRow(grdNCIPProfile->Row());
    profile_.Settled();
  });
}

void frmNCIPProfile::cmdClear_Click() {
  if (UpdateIsWanted()) cmdUpdate_Click();
  if (Confirm(this, "Are you sure you wish to clear the screen?")) ShowCleared();
  profile_.Settled();
  gbSettingsChanged = true;
}
