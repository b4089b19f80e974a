// Controls of the NCIP profile screen.
#include <QHBoxLayout>

#include "interop/frmNCIPProfile.h"

namespace {

struct Heading {
  const char* caption;
  int twips;
};

constexpr Heading Headings[] = {
    {"", 255},
    {"Profile Code", 1200},
    {"Description", 1515},
    {"Patron Type", 1635},
    {"Loan Code", 1545},
    {"File Format", 1995},
    {"Message Format", 1995},
    {"Billing Type", 1095},
    {"Billing Rate", 1095},
    {"Allow Copy", 900},
    {"Delivery Select Copy", 1605},
    {"Delivery Method Copy", 1770},
    {"Delivery Address Copy", 1995},
    {"Allow Loan", 900},
    {"Delivery Select Loan", 1605},
    {"Delivery Method Loan", 1770},
    {"Delivery Address Loan", 1995},
};
static_assert(std::size(Headings) == frmNCIPProfile::ColumnCount);

}  // namespace

frmNCIPProfile::frmNCIPProfile(QWidget* parent) : Screen("frmNCIPProfile", "Ostana - NCIP Profile", parent) {
  BuildControls();
  ConnectControls();
}

void frmNCIPProfile::BuildControls() {
  grdNCIPProfile->setAccessibleName("NCIP profiles");
  for (int col = 0; col < ColumnCount; ++col) {
    grdNCIPProfile->SetHeading(col, Headings[col].caption);
    grdNCIPProfile->SetColWidth(col, Headings[col].twips);
  }
  txtProfileCode->UpperCaseAsTyped();

  auto* const top = new QHBoxLayout;
  top->setSpacing(12);
  top->addWidget(RequestFields());
  top->addWidget(copy_, 1);
  top->addWidget(loan_, 1);
  QVBoxLayout* const column = Form::Column(this);
  column->addLayout(top);
  column->addWidget(grdNCIPProfile, 1);
  column->addLayout(Form::ButtonRow({cmdAdd, cmdUpdate, cmdDelete, cmdClear, cmdCancel, cmdClose}));
  resize(1240, 700);
}

QWidget* frmNCIPProfile::RequestFields() {
  auto* const fields = Form::Frame(this, "fraProfile", "Profile");
  Form::Rows rows(fields);
  rows.Add("lblProfileCode", "&Profile Code:", txtProfileCode);
  rows.Add("lblDescription", "Description:", txtDescription);
  rows.Add("lblPatronType", "Patron Type:", cmbPatronType);
  rows.Add("lblLoanCode", "Loan Code:", cmbLoanCode);
  rows.Add("lblFileFormat", "File Format:", cmbFileFormat);
  rows.Add("lblMessageFormat", "Message Format:", cmbMessageFormat);
  rows.Add("lblBillingType", "Billing Type:", cmbBillingType);
  rows.Add("lblBillingRate", "Billing Rate:", cmbBillingRate);
  Form::Require({txtProfileCode, txtDescription});
  return fields;
}

void frmNCIPProfile::ConnectControls() {
  for (TextBox* box : {txtProfileCode, txtDescription})
    connect(box, &TextBox::Change, this, &frmNCIPProfile::MarkChanged);
  for (const List& list : lists_) connect(list.box, &CodeComboBox::Click, this, &frmNCIPProfile::MarkChanged);
  for (DeliveryChoice* choice : {copy_, loan_})
    connect(choice, &DeliveryChoice::Changed, this, &frmNCIPProfile::MarkChanged);
  connect(grdNCIPProfile, &Grid::SelChange, this, &frmNCIPProfile::grdNCIPProfile_SelChange);
  connect(cmdAdd, &QPushButton::clicked, this, &frmNCIPProfile::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmNCIPProfile::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmNCIPProfile::cmdDelete_Click);
  connect(cmdClear, &QPushButton::clicked, this, &frmNCIPProfile::cmdClear_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(cmdClose, &QPushButton::clicked, this, &frmNCIPProfile::cmdClose_Click);
}
