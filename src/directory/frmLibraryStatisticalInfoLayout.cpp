// Controls of the statistical screen.
#include <QHBoxLayout>

#include "directory/frmLibraryStatisticalInfo.h"
#include "platform/controls/OptionLabel.h"
#include "shell/NumericFields.h"

namespace {

const char* const StatsCatFailed = "***** SQL error on ID_STATS_CAT_LIB (Select) *****";

DefaultCode::Facts StatsCategory(const char* key, const char* warning) {
  return {key, "SELECT   STATS_CAT_LIB_DESC", "ID_STATS_CAT_LIB", "STATS_CAT_LIB", StatsCatFailed, warning, ""};
}

QVBoxLayout* Stack(std::initializer_list<QWidget*> parts) {
  auto* const stack = new QVBoxLayout;
  for (QWidget* part : parts) stack->addWidget(part);
  stack->addStretch();
  return stack;
}

}  // namespace

frmLibraryStatisticalInfo::frmLibraryStatisticalInfo(QWidget* parent)
    : LibraryScreen(LibrarySibling::Statistics, parent),
      defaultStatsCat1_(cboStatsCat1,
                        StatsCategory("LIBRARY_Default_STATS_CAT_LIB1", "Warning: The Default Stats Category 1 *")),
      defaultStatsCat2_(cboStatsCat2,
                        StatsCategory("LIBRARY_Default_STATS_CAT_LIB2", "Warning: The Default Stats Category 2 *")),
      defaultStatsCat3_(cboStatsCat3,
                        StatsCategory("LIBRARY_Default_STATS_CAT_LIB3", "Warning: The Default Stats Category 3 *")),
      defaultCategory_(cboCategory,
                       {"LIBRARY_Default_LIBRARY_CAT", "SELECT   LIBRARY_CAT_DESC", "ID_LIBRARY_CAT", "LIBRARY_CAT",
                        "***** SQL error on LIBRARY_CAT  (Select) *****", "Warning: The Default Category *", ""}),
      defaultType_(cboLibraryType,
                   {"LIBRARY_Default_LIBRARY_TYPE", "SELECT   LIBRARY_TYPE_DESC", "ID_LIBRARY_TYPE", "LIBRARY_TYPE",
                    "***** SQL error on ID_LIBRARY_TYPE  (Select) *****", "Warning: The Default Library Type *", ""}),
      defaultLoanCode_(cmbLoanCode,
                       {"LIBRARY_Default_LOAN_CODE", "SELECT   LOAN_CODE_DESC", "ID_LOAN_CODE", "LOAN_CODE",
                        "***** SQL error on ID_LOAN_CODE  (Select) *****", "Warning: The Default Loan Code *", ""}) {
  BuildControls();
  ConnectControls();
}

void frmLibraryStatisticalInfo::BuildControls() {
  txtVORNSymbol->UpperCaseAsTyped();
  txtNewZealand->UpperCaseAsTyped();
  for (TextBox* box : {txtVORNPassword, txtVORNConfirmPassword, txtBLPassword, txtBLConfirmPassword, txtRapidPassword,
                       txtRapidConfirmPassword})
    box->setEchoMode(QLineEdit::Password);
  for (TextBox* box : {txtDateEntered, txtDateLastUpdated}) MakeReadOnly(box);
  MakeNumeric(*txtIFMMaxCost, lblIFMMaxCost, "9999.99", "#####0.00", true, true);
  MakeNumeric(*txtMaximumCost, lblMaximumCost, "9999.99", "#####0.00", true, true);
  MakeNumeric(*txtMaximumDays, lblMaximumDays, "9999", "###0", true, true);

  auto* const content = new QWidget(this);
  auto* const columns = new QHBoxLayout(content);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->addLayout(Stack({VornPart(), BritishLibraryPart()}), 1);
  columns->addLayout(Stack({RapidPart(), SymbolsPart()}), 1);
  columns->addLayout(Stack({CategoriesPart(), LimitsPart()}), 1);
  Compose(content, {cmdUpdate, cmdClear, cmdClose});
  resize(1240, 680);
}

QWidget* frmLibraryStatisticalInfo::OptionRow(OptionGroup* options, const QString& labelName) {
  const auto caption = [&](Option option, const char* text) {
    return new OptionLabel(this, QString("%1(%2)").arg(labelName).arg(option), text, options->Button(option));
  };
  return options->RowWith({caption(Yes, "Yes"), caption(No, "No")});
}

QWidget* frmLibraryStatisticalInfo::VornPart() {
  Form::Rows rows(fraVORN);
  rows.Add("lblVORNSymbol", "Symbol:", txtVORNSymbol, cmdSearchVORNSymbol);
  rows.Add("lblVORNUserID", "User ID:", txtVORNUserID);
  rows.Add("lblVORNPassword", "Password:", txtVORNPassword);
  rows.Add("lblVORNConfirmPassword", "Confirm Password:", txtVORNConfirmPassword);
  rows.Add("lblServiceType", "Service Type:", cmbServiceType);
  rows.Add("lblUseIFM", "Use IFM:", OptionRow(optUseIFM, "lblUseIFMRadio"));
  rows.Add(lblIFMMaxCost, txtIFMMaxCost);
  return fraVORN;
}

QWidget* frmLibraryStatisticalInfo::BritishLibraryPart() {
  Form::Rows rows(fraBritishLibrary);
  rows.Add("lblBLUserID", "User ID:", txtBLUserID);
  rows.Add("lblBLPassword", "Password:", txtBLPassword);
  rows.Add("lblBLConfirmPassword", "Confirm Password:", txtBLConfirmPassword);
  return fraBritishLibrary;
}

QWidget* frmLibraryStatisticalInfo::RapidPart() {
  Form::Rows rows(fraRapid);
  rows.Add("lblRapid", "Rapid ILL Code:", txtRapid, cmdSearchRapidCode);
  rows.Add("lblRapidBranchName", "Branch Name:", txtRapidBranchName);
  rows.Add("lblRapidUserName", "User Name:", txtRapidUserName);
  rows.Add("lblRapidAllowLocal", "Allow Local:", OptionRow(optRapidAllowLocal, "lblRapidAllowLocalRadio"));
  rows.Add("lblRapidPassword", "Password:", txtRapidPassword);
  rows.Add("lblRapidConfirmPassword", "Confirm Password:", txtRapidConfirmPassword);
  return fraRapid;
}

QWidget* frmLibraryStatisticalInfo::SymbolsPart() {
  auto* const part = Form::Frame(this, "fraSymbols", "Symbols");
  Form::Rows rows(part);
  rows.Add("lblDoclineSymbol", "DOCLINE:", txtDoclineSymbol, cmdSearchDoclineSymbol);
  rows.Add("lblNewZealand", "NLNZ:", txtNewZealand, cmdSearchNewZealandSymbol);
  rows.Add("lblFD", "FD:", txtFD, cmdSearchFDSymbol);
  rows.Add("lblAgent", "Agent:", txtAgent, cmdSearchAgentSymbol);
  return part;
}

QWidget* frmLibraryStatisticalInfo::CategoriesPart() {
  auto* const part = Form::Frame(this, "fraCategories", "Categories");
  Form::Rows rows(part);
  rows.Add("lblStatsCat1", "Stats Category 1:", cboStatsCat1);
  rows.Add("lblStatsCat2", "Stats Category 2:", cboStatsCat2);
  rows.Add("lblStatsCat3", "Stats Category 3:", cboStatsCat3);
  rows.Add("lblCategory", "Category:", cboCategory);
  rows.Add("lblLibraryType", "Library Type:", cboLibraryType);
  return part;
}

QWidget* frmLibraryStatisticalInfo::LimitsPart() {
  auto* const part = Form::Frame(this, "fraLimits", "Limits");
  Form::Rows rows(part);
  rows.Add("lblLoanCode", "Loan Code:", cmbLoanCode);
  rows.Add(lblMaximumCost, txtMaximumCost);
  rows.Add(lblMaximumDays, txtMaximumDays);
  rows.Add("lblDateEntered", "Date Entered:", txtDateEntered);
  rows.Add("lblDateLastUpdated", "Last Updated:", txtDateLastUpdated);
  return part;
}

void frmLibraryStatisticalInfo::ConnectControls() {
  // A record confirms its passwords itself.
  Shows({{txtVORNSymbol, "VORN_SYMBOL"},
         {txtVORNUserID, "VORN_USER_ID"},
         {txtVORNPassword, "VORN_PASSWORD"},
         {txtVORNConfirmPassword, "VORN_PASSWORD"},
         {txtBLUserID, "BL_USER_ID"},
         {txtBLPassword, "BL_PASSWORD"},
         {txtBLConfirmPassword, "BL_PASSWORD"},
         {txtRapid, "RAPID_CODE"},
         {txtRapidBranchName, "RAPID_BRANCH_NAME"},
         {txtRapidUserName, "RAPID_USER_NAME"},
         {txtRapidPassword, "RAPID_PASSWORD"},
         {txtRapidConfirmPassword, "RAPID_PASSWORD"},
         {txtDoclineSymbol, "DOCLINE_SYMBOL"},
         {txtNewZealand, "NLNZ_SYMBOL"},
         {txtFD, "FD_SYMBOL"},
         {txtAgent, "AGENT_SYMBOL"},
         {txtMaximumDays, "MAX_DAYS"}});
  Shows({{cboStatsCat1, "STATS_CAT_LIB1"},
         {cboStatsCat2, "STATS_CAT_LIB2"},
         {cboStatsCat3, "STATS_CAT_LIB3"},
         {cboCategory, "LIBRARY_CAT"},
         {cboLibraryType, "LIBRARY_TYPE"},
         {cmbLoanCode, "LOAN_CODE"}});
  Watch({txtIFMMaxCost, txtMaximumCost});
  Watch({cmbServiceType});
  Watch({optUseIFM, optRapidAllowLocal});
  connect(optUseIFM, &OptionGroup::Click, this, &frmLibraryStatisticalInfo::optUseIFM_Click);
  for (const OutsideSymbol& symbol : {OutsideSymbol{txtVORNSymbol, cmdSearchVORNSymbol, "VORN_SYMBOL"},
                                      OutsideSymbol{txtDoclineSymbol, cmdSearchDoclineSymbol, "DOCLINE_SYMBOL"},
                                      OutsideSymbol{txtFD, cmdSearchFDSymbol, "FD_SYMBOL"},
                                      OutsideSymbol{txtNewZealand, cmdSearchNewZealandSymbol, "NLNZ_SYMBOL"},
                                      OutsideSymbol{txtRapid, cmdSearchRapidCode, "RAPID_CODE"},
                                      OutsideSymbol{txtAgent, cmdSearchAgentSymbol, "AGENT_SYMBOL"}}) {
    connect(symbol.search, &QPushButton::clicked, this, [this, symbol] { SearchOutside(symbol); });
    symbol.box->SetEnterAction([symbol] { symbol.search->click(); });
  }
}
