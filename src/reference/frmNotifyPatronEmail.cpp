#include "reference/frmNotifyPatronEmail.h"

frmNotifyPatronEmail::frmNotifyPatronEmail(QWidget* parent)
    : NoticeEmail(
          {.form = "frmNotifyPatronEmail",
           .caption = "Ostana - Notify/Cancel Email",
           .loadLogName = "frmNotifyPatronEmail.Form_Load",
           .okLogName = "frmNotifyPatronEmail.cmdOK_Click",
           .columns = {{"MSG_TXT_SUBJECT", NoticeColumn::Text, "txtTextSubject", "Subject:", 100},
                       {"MSG_TXT_INSTRUCTIONS", NoticeColumn::Text, "txtInstructions", "Instructions:", 200},
                       {"MSG_TXT_BASE_URL", NoticeColumn::Text, "txtRequestLink", "Request Link:", 200},
                       {"MSG_TXT_HEADER", NoticeColumn::Text, "txtTextHeader", "Header:", 100},
                       {"MSG_TXT_REPORT", NoticeColumn::Text, "txtTextReport", "Report:", 80},
                       {"MSG_TXT_FOOTER", NoticeColumn::Text, "txtTextFooter", "Footer:", 0, NoticeColumn::Memo},
                       {"MSG_PDF_SUBJECT", NoticeColumn::Pdf, "txtPDFSubject", "Subject:", 100},
                       {"MSG_PDF_REPORT", NoticeColumn::Pdf, "txtPDFReport", "Report:", 80},
                       {"MSG_PDF_MESSAGE", NoticeColumn::Pdf, "txtPDFMessage", "Message:", 0, NoticeColumn::Memo}},
           .browse = {{"cmdBrowseTextDirectory", "Ostana - Select Text Report", "txtTextReport"},
                      {"cmdBrowsePDFDirectory", "Ostana - Select PDF Report", "txtPDFReport"}},
           .logsQuery = true},
          parent) {}

QWidget* frmNotifyPatronEmail::BlankMessage() const {
  if (PdfChosen()) return AllEmpty({"txtPDFReport", "txtPDFMessage"}) ? Box("txtPDFReport") : nullptr;
  return AllEmpty({"txtTextHeader", "txtTextReport", "txtTextFooter"}) ? Box("txtTextHeader") : nullptr;
}
