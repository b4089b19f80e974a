// Custom texts of the statistical screen.
#include "directory/frmLibraryStatisticalInfo.h"

namespace {

constexpr TextKey Keys[] = {
    {"LIBRARY_mnuDisplayBilling", "mnuDisplayBilling"},
    {"LIBRARY_mnuDisplayContact", "mnuDisplayContact"},
    {"LIBRARY_mnuDisplayLogin", "mnuDisplayLogin"},
    {"LIBRARY_pbLogin", "cmdLogin"},
    {"LIBRARY_pbContact", "cmdContact"},
    {"LIBRARY_pbBilling", "cmdBilling"},
    {"LIBRARY_fraVORN", "fraVORN"},
    {"ID_LIBRARY.VORN_SYMBOL", "lblVORNSymbol"},
    {"ID_LIBRARY.VORN_SYMBOLToolTip", "txtVORNSymbol", 0, "Symbol of the library at VORN"},
    {"LIBRARY_pbSearchVORNSymbol", "cmdSearchVORNSymbol"},
    {"ID_LIBRARY.VORN_USER_ID", "lblVORNUserID"},
    {"ID_LIBRARY.VORN_USER_IDToolTip", "txtVORNUserID", 0, "User id at VORN"},
    {"ID_LIBRARY.VORN_PASSWORD", "lblVORNPassword"},
    {"ID_LIBRARY.VORN_PASSWORDToolTip", "txtVORNPassword", 0, "Password at VORN"},
    {"LIBRARY_txtVORNConfirmPassword", "lblVORNConfirmPassword"},
    {"LIBRARY_txtVORNConfirmPasswordToolTip", "txtVORNConfirmPassword", 0, "The same password again"},
    {"ID_LIBRARY.VORN_SERVICE", "lblServiceType"},
    {"ID_LIBRARY.VORN_SERVICEToolTip", "cmbServiceType", 0, "What is asked of VORN"},
    {"ID_LIBRARY.VORN_USE_IFM", "lblUseIFM"},
    {"LIBRARY_optUseIFM_Yes", "lblUseIFMRadio(0)"},
    {"LIBRARY_optUseIFM_YesToolTip", "optUseIFM(0)", 0, "Fees are settled through IFM"},
    {"LIBRARY_optUseIFM_No", "lblUseIFMRadio(1)"},
    {"LIBRARY_optUseIFM_NoToolTip", "optUseIFM(1)", 0, "Fees are invoiced"},
    {"ID_LIBRARY.VORN_IFM_MAX_COST", "lblIFMMaxCost"},
    {"ID_LIBRARY.VORN_IFM_MAX_COSTToolTip", "txtIFMMaxCost", 0, "Highest fee in US dollars"},
    {"LIBRARY_fraBritishLibrary", "fraBritishLibrary"},
    {"ID_LIBRARY.BL_USER_ID", "lblBLUserID"},
    {"ID_LIBRARY.BL_USER_IDToolTip", "txtBLUserID", 0, "User id at the British Library"},
    {"ID_LIBRARY.BL_PASSWORD", "lblBLPassword"},
    {"ID_LIBRARY.BL_PASSWORDToolTip", "txtBLPassword", 0, "Password at the British Library"},
    {"LIBRARY_txtBLConfirmPassword", "lblBLConfirmPassword"},
    {"LIBRARY_txtBLConfirmPasswordToolTip", "txtBLConfirmPassword", 0, "The same password again"},
    {"LIBRARY_fraRapid", "fraRapid"},
    {"ID_LIBRARY.RAPID_CODE", "lblRapid"},
    {"ID_LIBRARY.RAPID_CODEToolTip", "txtRapid", 0, "Code of the library at Rapid ILL"},
    {"LIBRARY_pbSearchRapidCode", "cmdSearchRapidCode"},
    {"ID_LIBRARY.RAPID_BRANCH_NAME", "lblRapidBranchName"},
    {"ID_LIBRARY.RAPID_BRANCH_NAMEToolTip", "txtRapidBranchName", 0, "Branch as Rapid ILL knows it"},
    {"ID_LIBRARY.RAPID_USER_NAME", "lblRapidUserName"},
    {"ID_LIBRARY.RAPID_USER_NAMEToolTip", "txtRapidUserName", 0, "User name at Rapid ILL"},
    {"ID_LIBRARY.RAPID_ALLOW_LOCAL", "lblRapidAllowLocal"},
    {"LIBRARY_optAllowLocal_Yes", "lblRapidAllowLocalRadio(0)"},
    // The tip of Yes has a key without "_Yes".
    {"LIBRARY_optAllowLocalToolTip", "optRapidAllowLocal(0)", 0, "Items of the own collection may be requested"},
    {"LIBRARY_optAllowLocal_No", "lblRapidAllowLocalRadio(1)"},
    {"LIBRARY_optAllowLocal_NoToolTip", "optRapidAllowLocal(1)", 0, "Items of the own collection are refused"},
    {"ID_LIBRARY.RAPID_PASSWORD", "lblRapidPassword"},
    {"ID_LIBRARY.RAPID_PASSWORDToolTip", "txtRapidPassword", 0, "Password at Rapid ILL"},
    {"LIBRARY_txtRapidConfirmPassword", "lblRapidConfirmPassword"},
    {"LIBRARY_txtRapidConfirmPasswordToolTip", "txtRapidConfirmPassword", 0, "The same password again"},
    {"ID_LIBRARY.DOCLINE_SYMBOL", "lblDoclineSymbol"},
    {"ID_LIBRARY.DOCLINE_SYMBOLToolTip", "txtDoclineSymbol", 0, "Symbol of the library at DOCLINE"},
    {"LIBRARY_pbSearchDoclineSymbol", "cmdSearchDoclineSymbol"},
    {"ID_LIBRARY.NLNZ_SYMBOL", "lblNewZealand"},
    {"ID_LIBRARY.NLNZ_SYMBOLToolTip", "txtNewZealand", 0, "Symbol of the library at NLNZ"},
    {"LIBRARY_pbSearchNewZealandSymbol", "cmdSearchNewZealandSymbol"},
    {"ID_LIBRARY.FD_SYMBOL", "lblFD"},
    {"ID_LIBRARY.FD_SYMBOLToolTip", "txtFD", 0, "Symbol of the library at FD"},
    {"LIBRARY_pbSearchFDSymbol", "cmdSearchFDSymbol"},
    {"ID_LIBRARY.AGENT_SYMBOL", "lblAgent"},
    {"ID_LIBRARY.AGENT_SYMBOLToolTip", "txtAgent", 0, "Symbol of the library's agent"},
    {"LIBRARY_pbSearchAgentSymbol", "cmdSearchAgentSymbol"},
    {"ID_LIBRARY.STATS_CAT_LIB1", "lblStatsCat1"},
    {"ID_LIBRARY.STATS_CAT_LIB2", "lblStatsCat2"},
    {"ID_LIBRARY.STATS_CAT_LIB3", "lblStatsCat3"},
    {"ID_LIBRARY.LIBRARY_CAT", "lblCategory"},
    {"ID_LIBRARY.LIBRARY_TYPE", "lblLibraryType"},
    {"ID_LIBRARY.DATE_ENTERED", "lblDateEntered"},
    {"ID_LIBRARY.LAST_MODIFIED", "lblDateLastUpdated"},
    {"ID_LIBRARY.LOAN_CODE", "lblLoanCode"},
    {"ID_LIBRARY.MAX_COST", "lblMaximumCost"},
    {"ID_LIBRARY.MAX_DAYS", "lblMaximumDays"},
};

}  // namespace

std::span<const TextKey> frmLibraryStatisticalInfo::TextKeys() const {
  return Keys;
}

void frmLibraryStatisticalInfo::ReadFurtherText(const CustomText& texts) {
  for (DefaultCode* code : Defaults()) code->Configure(texts);
  defaultMaxCost_ = texts.Value("LIBRARY_Default_MAX_COST").trimmed();
  defaultMaxDays_ = texts.Value("LIBRARY_Default_MAX_DAYS").trimmed();
}
