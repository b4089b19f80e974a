#include "reference/frmLoanNoticesEmail.h"

frmLoanNoticesEmail::frmLoanNoticesEmail(QWidget* parent)
    : NoticeEmail(
          {.form = "frmLoanNoticesEmail",
           .caption = "Ostana - Loan Notices Email",
           .loadLogName = "frmLoanNoticesEmail.Form_Load",
           .okLogName = "frmLoanNoticesEmail.cmdOK_Click",
           .columns = {{"LOANS_TXT_SUBJECT", NoticeColumn::Text, "txtTextSubject", "Subject:", 100},
                       {"LOANS_TXT_HEADER", NoticeColumn::Text, "txtTextHeader", "Header:", 100},
                       {"LOANS_TXT_REPORT", NoticeColumn::Text, "txtTextReport", "Report:", 80},
                       {"LOANS_TXT_FOOTER", NoticeColumn::Text, "txtTextFooter", "Footer:", 0, NoticeColumn::Memo},
                       {"LOANS_PDF_SUBJECT", NoticeColumn::Pdf, "txtPDFSubject", "Subject:"},
                       {"LOANS_PDF_REPORT", NoticeColumn::Pdf, "txtPDFReport", "Report:", 80},
                       {"LOANS_PDF_MESSAGE", NoticeColumn::Pdf, "txtPDFMessage", "Message:", 0, NoticeColumn::Memo}},
           .browse = {{"cmdBrowseTextDirectory", "Ostana - Select Text Report", "txtTextReport"},
                      {"cmdBrowsePDFDirectory", "Ostana - Select Report", "txtPDFReport"}},
           .logsQuery = false},
          parent) {}

QWidget* frmLoanNoticesEmail::BlankMessage() const {
  if (PdfChosen()) return AllEmpty({"txtPDFReport", "txtPDFMessage"}) ? Box("txtPDFReport") : nullptr;
  return AllEmpty({"txtTextHeader", "txtTextReport", "txtTextFooter"}) ? Box("txtTextHeader") : nullptr;
}
