// Editing one profile: showing, testing, and Add, Update, Delete and Clear, which touch the grid alone.
#include "interop/frmNCIPProfile.h"

#include <QScopedValueRollback>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "interop/CodeLists.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

// --- Frames ---

void frmNCIPProfile::Run(const QString& handler, const std::function<void()>& body) {
  Procedure("frmNCIPProfile." + handler, this).OnFailure(Texts::NotifySupport).Run(body);
}

int frmNCIPProfile::Tell(const QString& text, int style) {
  return ShowMessage(text, style, Caption(), {}, this);
}

bool frmNCIPProfile::Refuse(const QString& text, QWidget* focus) {
  Tell(text, MessageStyle::Stop);
  focus->setFocus(Qt::OtherFocusReason);
  return false;
}

void frmNCIPProfile::MarkChanged() {
  if (!mbLoading) mbProfileChanged = true;
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
  mbProfileChanged = false;
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
  for (const List& list : lists_) codes[list.column] = CodeLists::CodeOnShow(*list.box);
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
    if (txtProfileCode->Text().isEmpty()) return Refuse("Profile Code is a required field.", txtProfileCode);
    if (txtDescription->Text().isEmpty()) return Refuse("Description is a required field.", txtDescription);
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
  return !choice->MethodIsMissing() || Refuse(refusal, choice->MethodBox());
}

bool frmNCIPProfile::AddressIsGood(const DeliveryChoice* choice) {
  QString reason;
  return choice->AddressIsValid(reason) ||
         Refuse("The Delivery Address is not valid.\n\n" + reason, choice->AddressBox());
}

// --- Editing the list ---

void frmNCIPProfile::cmdAdd_Click() {
  Run("cmdAdd_Click", [this] {
    if (!Validate(true)) return;
    const QString code = txtProfileCode->Text();
    if (grdNCIPProfile->FindRow(code, ProfileCode) > 0) {
      Refuse("NCIP Profile Code: " + code + " is already in the grid.", txtProfileCode);
      return;
    }
    const int row = AddRow(CellsOnScreen(), CodesOnScreen());
    gbSettingsChanged = true;
    grdNCIPProfile->SetRowQuietly(row);
    ShowRow(row);
  });
}

void frmNCIPProfile::cmdUpdate_Click() {
  if (grdNCIPProfile->Rows() == 1) {
    Tell("There are currently no rows to Update.", MessageStyle::Stop);
    return;
  }
  Run("cmdUpdate_Click", [this] { UpdateCurrentRow(grdNCIPProfile->Row()); });
}

// Another row may hold the same code already; the write on closing then fails.
void frmNCIPProfile::UpdateCurrentRow(int row) {
  if (!Validate(false)) return;
  const QStringList cells = CellsOnScreen();
  for (int index = 0; index < cells.size(); ++index) grdNCIPProfile->SetText(row, ProfileCode + index, cells[index]);
  codes_[grdNCIPProfile->RowData(row)] = CodesOnScreen();
  mbProfileChanged = false;
  gbSettingsChanged = true;
}

void frmNCIPProfile::cmdDelete_Click() {
  const int row = grdNCIPProfile->Row();
  if (row < 1) {
    Refuse("Please select a row to delete.", grdNCIPProfile);
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
  mbProfileChanged = false;
  gbSettingsChanged = true;
}

bool frmNCIPProfile::UpdateIsWanted() {
  return gclsOF->CanUpdate() && gclsOF->LibraryId() >= 1 && mbProfileChanged &&
         Tell("This profile has been updated.\nDo you wish to apply the updates before continuing?",
              MessageStyle::Question) == MessageAnswer::Yes;
}

void frmNCIPProfile::grdNCIPProfile_SelChange() {
  if (mbLoading) return;
  Run("grdNCIPProfile_SelChange", [this] {
    // The row that is left, not the one that was chosen.
    const int left = RowOnShow();
    if (UpdateIsWanted() && left > 0) UpdateCurrentRow(left);
    if (grdNCIPProfile->Row() > 0) ShowRow(grdNCIPProfile->Row());
    mbProfileChanged = false;
  });
}

void frmNCIPProfile::cmdClear_Click() {
  if (UpdateIsWanted()) cmdUpdate_Click();
  if (Tell("Are you sure you wish to clear the screen?", MessageStyle::Question) == MessageAnswer::Yes) ShowCleared();
  mbProfileChanged = false;
  gbSettingsChanged = true;
}
