#include "reference/frmPickupLocationEmail.h"

// The log names are those of the forms that this one was made from.
frmPickupLocationEmail::frmPickupLocationEmail(QWidget* parent)
    : NoticeEmail({.form = "frmPickupLocationEmail",
                   .caption = "Ostana - Pickup Location Email",
                   .loadLogName = "frmNotifyPatronEmail.Form_Load",
                   .okLogName = "frmPickupLocation.cmdOk_Click",
                   .columns = {{"PICKUP_SUBJECT", NoticeColumn::Text, "txtTextSubject", "Subject:", 100},
                               {"PICKUP_REPORT", NoticeColumn::Text, "txtTextReport", "Report:", 80},
                               {"PICKUP_PDF_SUBJECT", NoticeColumn::Pdf, "txtPDFSubject", "Subject:", 100},
                               {"PICKUP_PDF_REPORT", NoticeColumn::Pdf, "txtPDFReport", "Report:", 80}},
                   .browse = {{"cmdBrowse", "Ostana - Select Text Report", ""}},
                   .logsQuery = true},
                  parent) {}
