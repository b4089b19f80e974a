#include "editors/Exceptions.h"

#include <QSignalBlocker>
#include <utility>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "editors/ExceptionCodes.h"
#include "editors/ExceptionGroups.h"
#include "editors/ExceptionLists.h"
#include "editors/IsoRejects.h"
#include "editors/ValidExceptions.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "shell/Lists.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

Exceptions::Exceptions(frmTabulon& shell)
    : TabPage(shell),
      codes_(new ExceptionCodes(shell)),
      valid_(new ValidExceptions(shell, *codes_)),
      groups_(new ExceptionGroups(shell, *codes_, *valid_)),
      iso_(new IsoRejects(shell, *codes_)),
      pages_{codes_, valid_, groups_, iso_} {
  sstab8Exception->setObjectName("sstab8Exception");
  sstab8Exception->addTab(codes_, "Exception Codes");
  sstab8Exception->addTab(valid_, "Valid Exceptions");
  sstab8Exception->addTab(groups_, "Exceptions by User Group");
  sstab8Exception->addTab(iso_, "ISO Reject Codes");
  Form::Column(this, {sstab8Exception});
  connect(sstab8Exception, &QTabWidget::currentChanged, this, [this](int index) {
    const SubTab left = std::exchange(front_, static_cast<SubTab>(index));
    sstab8Exception_Click(left);
  });
}

// --- Entering the tab ---

void Exceptions::EnterTab() {
  codes_->ShowServiceCharge();
  ShowFirstSubTab();
  Exception_Tab();
  shell().buttonState();
}

void Exceptions::ShowFirstSubTab() {
  const QSignalBlocker once(sstab8Exception);  // Exception_Tab loads what the event would load
  sstab8Exception->setCurrentIndex(CodesTab);
  front_ = CodesTab;
}

void Exceptions::Exception_Tab() {
  Procedure procedure("frmTabulon.Exception_Tab", this);
  procedure.Run([this] {
    gstrButtonMode = "F";
    ConfigureGrdTable();
    codes_->PopulateExceptionType();
    PopulateRejectComboBoxes();
    isoListsFresh_ = false;
    shell().EnableButtons(gstrButtonMode);
    LoadDataInGrid();
    valid_->Reset();
    iso_->Reset();
    shell().cmdClear_Click();
    codes_->SelectFirstRow();
  });
}

void Exceptions::PopulateRejectComboBoxes() {
  Procedure procedure("frmTabulon.PopulateRejectComboBoxes");
  procedure.Step([this] {
    const QString description = "ISO_UNFILLED_DESC" + gclsOF->LanguageSuffix();
    FillCombo(*iso_->cmb8ISOMessage, {},
              "SELECT " + description + " FROM " + Sql::Table("ID_ISO_UNFILLED") + " ORDER BY " + description,
              "***** SQL error on ID_ISO_UNFILLED (SELECT) *****", 0, 0);
  });
  procedure.Step([this] { ExceptionLists::FillRejectTypes({valid_->cmb8DocumentSupply, iso_->cmb8RejectType}); });
  procedure.Step([this] {
    const QString description = "PROCESS_TYPE_DESC" + gclsOF->LanguageSuffix();
    FillCombo(
        *valid_->cmb8ProcessType, "(none)",
        "SELECT PROCESS_TYPE," + description + " FROM " + Sql::Table("ID_PROCESS_TYPE") + " ORDER BY " + description,
        "***** SQL error on OSTANA.ID_PROCESS_TYPE (SELECT) *****", 1, 0);
  });
  procedure.Step([this] {
    CodeComboBox* const reroute = valid_->cmb8Reroute1;
    reroute->Clear();
    reroute->AddNone();
    for (const char* keyword : {"Next", "Reroute", "Passive", "Hold"}) reroute->Add(keyword);
    ForEachRow("SELECT SUPPLIER_CODE FROM " + Sql::Table("ID_SUPPLIER") + " WHERE    SUPPLIER_CAT='I' " +
                   "ORDER BY SUPPLIER_CODE",
               "***** SQL error on OSTANA.ID_SUPPLIER (SELECT) *****",
               // A code that several libraries use is one entry.
               [&](Recordset& suppliers) {
                 const QString code = Value(suppliers, 0);
                 if (reroute->IndexOfText(code) < 0) reroute->Add(code);
               });
  });
}

// The lists are filled anew while a choice made on another sub-tab stands in them.
void Exceptions::RefillKeepingChoices() {
  const QString document = valid_->cmb8DocumentSupply->Code(), process = valid_->cmb8ProcessType->Code();
  const QString reroute = valid_->cmb8Reroute1->Text();
  const QString reject = iso_->cmb8RejectType->Code(), message = iso_->cmb8ISOMessage->Text();
  PopulateRejectComboBoxes();
  const auto keep = [](CodeComboBox* box, const QString& code) {
    if (code.isEmpty() || !box->SetCode(code)) box->SetIndex(0);
  };
  keep(valid_->cmb8DocumentSupply, document);
  keep(valid_->cmb8ProcessType, process);
  valid_->cmb8Reroute1->SetText(reroute);
  keep(iso_->cmb8RejectType, reject);
  if (message.isEmpty())
    iso_->cmb8ISOMessage->SetIndex(-1);
  else
    iso_->cmb8ISOMessage->SetText(message);
}

// --- Changing the sub-tab ---

void Exceptions::sstab8Exception_Click(SubTab left) {
  Procedure procedure("frmTabulon.sstab8Exception_Click");
  procedure.Step([&] {
    gstrErrorMessage.clear();
    switch (front_) {
      case CodesTab:
        return EnterCodes(left);
      case ValidTab:
        return EnterValid();
      case GroupsTab:
        return EnterGroups();
      case IsoTab:
        return EnterIso();
    }
  });
  Front().CompareAgain();
  gbSkipGridEvents = false;
}

void Exceptions::EnterCodes(SubTab left) {
  shell().buttonState();
  codes_->Return();
  // Both other sub-tabs may hold a choice: that of the one just left is shown.
  if (left == ValidTab) {
    codes_->Carry(iso_->Choice());
    codes_->Carry(valid_->Choice());
  } else {
    codes_->Carry(valid_->Choice());
    codes_->Carry(iso_->Choice());
  }
}

void Exceptions::EnterValid() {
  shell().buttonState();
  ConfigureGrdTable();
  LoadDataInGrid();
  valid_->FindChoice();
}

void Exceptions::EnterGroups() {
  groups_->PopulateAccessGroupCombo();
  shell().buttonState();
  ConfigureGrdTable();
  LoadDataInGrid();
}

void Exceptions::EnterIso() {
  shell().buttonState();
  if (!isoListsFresh_) RefillKeepingChoices();
  isoListsFresh_ = true;
  ConfigureGrdTable();
  LoadDataInGrid();
  iso_->FindChoice();
  iso_->Carry(valid_->Choice());
}
