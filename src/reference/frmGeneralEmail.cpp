#include "reference/frmGeneralEmail.h"

frmGeneralEmail::frmGeneralEmail(QWidget* parent)
    : NoticeEmail(
          {.form = "frmGeneralEmail",
           .caption = "Ostana - General Message Email",
           .loadLogName = "frmGeneralEmail.Form_Load",
           .okLogName = "frmGeneralEmail.cmdOK_Click",
           .columns = {{"GENERAL_SUBJECT", NoticeColumn::Text, "txtTextSubject", "Subject:", 100},
                       {"GENERAL_HEADER", NoticeColumn::Text, "txtTextHeader", "Header:", 100},
                       {"GENERAL_REPORT", NoticeColumn::Text, "txtTextReport", "Report:", 80},
                       {"GENERAL_FOOTER", NoticeColumn::Text, "txtTextFooter", "Footer:", 0, NoticeColumn::Memo}},
           .browse = {{"cmdBrowseTextDirectory", "Ostana - Select Report", "txtTextReport"}},
           .logsQuery = true},
          parent) {}

QWidget* frmGeneralEmail::BlankMessage() const {
  return AllEmpty({"txtTextHeader", "txtTextReport", "txtTextFooter"}) ? Box("txtTextHeader") : nullptr;
}
