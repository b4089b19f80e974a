// The table's rows for the reference dialogs, the loans and the notices.
#include "core/ModuleState.h"
#include "platform/controls/Grid.h"
#include "reliability/WritingSteps.h"
#include "reliability/WritingTables.h"

using namespace Steps;

namespace {

WritingScreen Edited(WritingScreen screen) {
  screen.write = Button("cmdUpdate");
  screen.add = Button("cmdAdd");
  screen.remove = Button("cmdDelete");
  return screen;
}

std::vector<WritingScreen> Loans() {
  return {
      Edited({.name = "LoanPolicies",
              .place = "frmLoans-0",
              .table = "ID_LOAN_CODE",
              .fields = {{"txt6aDescription", "LOAN_CODE_DESC", Trimmed::EndsAndUpper},
                         {"txt6MessageRenewal", "REN_MSG"},
                         {"txt6MessageRenewalRefused", "RR_MSG"},
                         {"txt6MessageRecall", "REC_MSG"},
                         {"txt6MessageOverdue1", "OV1_MSG"},
                         {"txt6MessageOverdue2", "OV2_MSG"},
                         {"txt6MessageOverdue3", "OV3_MSG"},
                         {"txt6MessageFinal", "FIN_MSG"}},
              .open = Dialog("frmLoans", "grd6aTable"),
              .keys = {{"txt6LoanCode", "LOAN_CODE"}}}),
      Edited({.name = "LoanStatuses",
              .place = "frmLoans-1",
              .table = "ID_LOAN_STATUS",
              .fields = {{"txt6bDescription", "LOAN_STATUS_DESC"}},
              .open = Dialog("frmLoans", "grd6bTable", "sstab6Loans", 1),
              .keys = {{"txt6bCode", "LOAN_STATUS", Trimmed::EndsAndUpper}},
              .grid = "grd6bTable",
              .marks = {{1, "txt6bCode"}}}),
  };
}

std::vector<WritingScreen> Reference() {
  WritingScreen currencies =
      Edited({.name = "CurrencyCodes",
              .place = "frmCurrencyCodes",
              .table = "ID_CURRENCY_CODE",
              .fields = {{"txtDescription", "CURRENCY_CODE_DESC"}, {"txtCountry", "CURRENCY_COUNTRY"}},
              .open = Dialog("frmCurrencyCodes", "grdCurrencyCode"),
              .keys = {{"txtCurrencyCode", "CURRENCY_CODE", Trimmed::EndsAndUpper}},
              .grid = "grdCurrencyCode",
              .marks = {{1, "txtCurrencyCode"}}});
  // The base is moved in the grid: two rows change together.
  currencies.moreActions = {{"MoveBase",
                             [open = currencies.open](ReliabilityDesk& desk, int) {
                               open(desk);
                               constexpr int Base = 4;
                               const auto* const grid = desk.Find<Grid>("grdCurrencyCode");
                               // The mark on screen is ahead of the stored one when an update has failed.
                               const QString stored =
                                   desk.Ask("SELECT CURRENCY_CODE FROM ID_CURRENCY_CODE WHERE CURRENCY_BASE = '*'");
                               int row = 1;
                               while (!grid->Text(row, Base).trimmed().isEmpty() || grid->Text(row, 1) == stored) ++row;
                               desk.ClickCell("grdCurrencyCode", row, Base);
                             },
                             Button("cmdUpdate")}};
  return {
      currencies,
      Edited(
          {.name = "ISONamespace",
           .place = "frmISONamespace",
           .table = "ID_ISO_NAMESPACE",
           .fields = {{"txtDescription", "ISO_NAMESPACE_DESC"}},
           .open = Dialog("frmISONamespace", "grdNameSpace"),
           .choose = [](ReliabilityDesk& desk, int round) { desk.Type("txtNameSpace", QString::number(9000 + round)); },
           .grid = "grdNameSpace",
           .marks = {{1, "txtNameSpace"}}}),
      {.name = "ISOServiceLevels",
       .place = "frmISOServiceLevels",
       .table = "ID_ISO_SERVICE_LEVEL",
       .open = Dialog("frmISOServiceLevels", "grdServiceLevel"),
       .write = Button("cmdUpdate"),
       .change = Another("cmbServiceLevel")},
      Edited({.name = "GeneralMessages",
              .place = "frmGeneralMessages",
              .table = "ID_GENERAL_MESSAGE",
              .fields = {{"txtDescription", "GENERAL_MESSAGE_DESC"},
                         {"txtSubject", "GENERAL_MESSAGE_SUB"},
                         {"txtMessage", "GENERAL_MESSAGE_MSG"}},
              .open = Dialog("frmGeneralMessages", "grdGeneralMessage"),
              .keys = {{"txtCode", "GENERAL_MESSAGE"}},
              .grid = "grdGeneralMessage",
              .marks = {{1, "txtLibrarySymbol"}, {2, "txtCode"}}}),
      Edited({.name = "NotifyPatronMessages",
              .place = "frmNotifyPatronMessages",
              .table = "ID_PATRON_MESSAGE",
              .fields = {{"txtDescription", "PATRON_MESSAGE_DESC"},
                         {"txtSubject", "PATRON_MESSAGE_SUB"},
                         {"txtMessage", "PATRON_MESSAGE_MSG"}},
              .open = Dialog("frmNotifyPatronMessages", "grdPatronMessage"),
              .keys = {{"txtCode", "PATRON_MESSAGE"}},
              .grid = "grdPatronMessage",
              .marks = {{1, "txtLibrarySymbol"}, {2, "txtCode"}}}),
      Edited({.name = "ItemType",
              .place = "frmItemType-0",
              .table = "ID_ITEM_TYPE",
              .fields = {{"txtDescription", "ITEM_TYPE_DESC"}},
              .open = Dialog("frmItemType", "grdItemType"),
              .keys = {{"txtItemType", "ITEM_TYPE", Trimmed::EndsAndUpper}},
              .grid = "grdItemType",
              .marks = {{1, "txtItemType"}}}),
      {.name = "ItemTypeAccess",
       .place = "frmItemType-1",
       .table = "ID_ACCESS_ITEM_TYPE",
       .open = Dialog("frmItemType", nullptr, "sstabItemType", 1),
       .choose = FreePair("cmbAccessGroup", "cmbAccessItemType", "ID_ACCESS_ITEM_TYPE", "ACCESS_GROUP", "ITEM_TYPE"),
       .add = Button("cmdAdd"),
       .grid = "grdAccessItemType",
       .marks = {{1, "cmbAccessItemType"}},
       .remove = Button("cmdDelete")},
      Edited({.name = "ServiceCode",
              .place = "frmServiceCode-0",
              .table = "ID_SERVICE_CODE",
              .open = Dialog("frmServiceCode", "grdServiceCode"),
              .change = Another("cmbCountryRegion"),
              .keys = {{"txtServiceCode", "SERVICE_CODE", Trimmed::EndsAndUpper}}}),
      {.name = "CountryRegions",
       .place = "frmServiceCode-1",
       .table = "ID_COUNTRY_CODE",
       .open =
           [](ReliabilityDesk& desk) {
             Dialog("frmServiceCode", nullptr, "sstabServiceCode", 1)(desk);
             auto* const region = desk.Find<CodeComboBox>("cmbRegion");
             if (region->IsEmptyOrNone()) desk.ChooseAt("cmbRegion", region->Count() - 1);
           },
       .choose =
           [](ReliabilityDesk& desk, int) {
             int code = 10;
             while (desk.Count("ID_COUNTRY_CODE", QString("COUNTRY_CODE = '%1'").arg(code)) > 0) ++code;
             desk.Type("txtCountryCode", QString::number(code));
           },
       .add = Button("cmdAdd"),
       .grid = "grdCountryCode",
       .marks = {{1, "txtCountryCode"}},
       .remove = Button("cmdDelete")},
  };
}

// --- Notices ---

Step Notice(const char* form, const char* option = nullptr) {
  return [=](ReliabilityDesk& desk) {
    gstrCoverRequestType = "REG";
    desk.OpenDialog(form);
    if (option) desk.Click(option);
  };
}

WritingScreen NoticeText(const char* name, const char* form, std::vector<WritingField> fields,
                         const char* option = nullptr) {
  return {.name = name,
          .place = form,
          .table = "ID_COVER_INFO",
          .fields = std::move(fields),
          .open = Notice(form, option),
          .write = Button("cmdOK")};
}

std::vector<WritingScreen> Notices() {
  return {
      NoticeText("NotifyPatronEmail", "frmNotifyPatronEmail",
                 {{"txtTextSubject", "MSG_TXT_SUBJECT", Trimmed::No},
                  {"txtInstructions", "MSG_TXT_INSTRUCTIONS", Trimmed::No},
                  {"txtRequestLink", "MSG_TXT_BASE_URL", Trimmed::No},
                  {"txtTextHeader", "MSG_TXT_HEADER", Trimmed::No},
                  {"txtTextReport", "MSG_TXT_REPORT", Trimmed::No},
                  {"txtTextFooter", "MSG_TXT_FOOTER", Trimmed::No}}),
      NoticeText("NotifyPatronEmailPdf", "frmNotifyPatronEmail",
                 {{"txtPDFSubject", "MSG_PDF_SUBJECT", Trimmed::No},
                  {"txtPDFReport", "MSG_PDF_REPORT", Trimmed::No},
                  {"txtPDFMessage", "MSG_PDF_MESSAGE", Trimmed::No}},
                 "optPDF"),
      NoticeText("LoanNoticesEmail", "frmLoanNoticesEmail",
                 {{"txtTextSubject", "LOANS_TXT_SUBJECT", Trimmed::No},
                  {"txtTextHeader", "LOANS_TXT_HEADER", Trimmed::No},
                  {"txtTextReport", "LOANS_TXT_REPORT", Trimmed::No},
                  {"txtTextFooter", "LOANS_TXT_FOOTER", Trimmed::No}}),
      NoticeText("LoanNoticesEmailPdf", "frmLoanNoticesEmail",
                 {{"txtPDFSubject", "LOANS_PDF_SUBJECT", Trimmed::No},
                  {"txtPDFReport", "LOANS_PDF_REPORT", Trimmed::No},
                  {"txtPDFMessage", "LOANS_PDF_MESSAGE", Trimmed::No}},
                 "optPDF"),
      NoticeText("GeneralEmail", "frmGeneralEmail",
                 {{"txtTextSubject", "GENERAL_SUBJECT", Trimmed::No},
                  {"txtTextHeader", "GENERAL_HEADER", Trimmed::No},
                  {"txtTextReport", "GENERAL_REPORT", Trimmed::No},
                  {"txtTextFooter", "GENERAL_FOOTER", Trimmed::No}}),
      NoticeText("PickupLocationEmail", "frmPickupLocationEmail",
                 {{"txtTextSubject", "PICKUP_SUBJECT", Trimmed::No}, {"txtTextReport", "PICKUP_REPORT", Trimmed::No}}),
      NoticeText(
          "PickupLocationEmailPdf", "frmPickupLocationEmail",
          {{"txtPDFSubject", "PICKUP_PDF_SUBJECT", Trimmed::No}, {"txtPDFReport", "PICKUP_PDF_REPORT", Trimmed::No}},
          "optPDF"),
      {.name = "ExceptionNotes",
       .place = "frmAddExceptionNotes",
       .table = "ID_EXCEPTION_NOTE",
       .fields = {{"txtExceptionNote", "EXCEPTION_NOTE"}},
       .open =
           [](ReliabilityDesk& desk) {
             gstrNotesExceptionCode = "BIB";
             gstrNotesProcessType = "SEA";
             if (desk.Window() && desk.Window()->objectName() == "frmAddExceptionNotes") desk.Click("cmdCancel");
             desk.OpenDialog("frmAddExceptionNotes");
             desk.SelectRow("grdExceptionNote", 2);  // the first one stands in ID_EXCEPTION_PROCESS as well
           },
       .write = AndClose("cmdUpdate"),
       .add = AndClose("cmdAdd"),
       .grid = "grdExceptionNote",
       .marks = {{1, "txtExceptionNote"}},
       .remove = AndClose("cmdDelete")},
  };
}

}  // namespace

std::vector<WritingScreen> WritingDialogs() {
  std::vector<WritingScreen> screens;
  for (const auto& more : {Loans(), Reference(), Notices()}) screens.insert(screens.end(), more.begin(), more.end());
  return screens;
}
