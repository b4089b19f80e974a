#include "editors/CoverPages.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/ado/Recordset.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"
#include "shell/frmTabulon.h"

namespace {
const QString NoRecord = "You need select a record to Update";
}

CoverPages::CoverPages(frmTabulon& shell) : TabPage(shell) {
  BuildControls();
  TellGrid();
  ConnectControls();
}

void CoverPages::BuildControls() {
  auto* const texts = new QWidget(this);
  Form::Rows rows(texts);
  rows.Add("lbl1RequestType", "Request Type:", txt1RequestType, txt1Description);
  rows.Add("lbl1Header", "Header:", txt1Header);
  rows.Add("lbl1Footer", "Footer:", txt1Footer);
  rows.Add("lbl1Message1", "Message 1:", txt1Message1);
  rows.Add("lbl1Message2", "Message 2:", txt1message2);
  txt1Description->setAccessibleName("Description of the request type");
  txt1Message1->SetLines(4);
  txt1message2->SetLines(4);
  grd1CoverInfo->setAccessibleName("Cover pages of the request types");

  QVBoxLayout* const column = Form::Column(this, {texts});
  column->addLayout(Form::ButtonRow({cmdNotifyPatron, cmdLoanNotices, cmdGeneral, cmdPickup, nullptr}));
  column->addWidget(grd1CoverInfo, 1);
}

// Column 1 shows type and description, which are hidden behind, joined.
void CoverPages::TellGrid() {
  form_.Shows({"", "Request Type ", 1770})
      .Edits(txt1Header, {"HEADER", "Header", 2000}, Trim::None)
      .Edits(txt1Footer, {"FOOTER", "Footer", 2000}, Trim::None)
      .Edits(txt1Message1, {"MESSAGE_1", "Message 1", 2500}, Trim::None)
      .Edits(txt1message2, {"MESSAGE_2", "Message 2", 2500}, Trim::None)
      .Shows({"REQUEST_TYPE", "", 0, true})
      .Shows({"REQUEST_TYPE_DESC+", "", 0, true});
}

void CoverPages::ConnectControls() {
  PassFocusOn(txt1RequestType, txt1Header);
  PassFocusOn(txt1Description, txt1Header);
  connect(grd1CoverInfo, &Grid::SelChange, this, &CoverPages::grd1CoverInfo_SelChange);
  KeepRowOnSort(grd1CoverInfo);

  const std::pair<QPushButton*, FormName> notices[] = {{cmdNotifyPatron, FormName("frmNotifyPatronEmail")},
                                                       {cmdLoanNotices, FormName("frmLoanNoticesEmail")},
                                                       {cmdGeneral, FormName("frmGeneralEmail")},
                                                       {cmdPickup, FormName("frmPickupLocationEmail")}};
  for (const auto& [button, form] : notices)
    connect(button, &QPushButton::clicked, this,
            [this, name = button->objectName(), form = form] { OpenNotice(name, form); });
}

void CoverPages::CoverPages_Tab() {
  Procedure procedure("frmTabulon.CoverPages_Tab", this);
  procedure.Run([this] {
    gstrButtonMode = "U";
    ConfigureGrdTable();
    LoadDataInGrid();
    shell().EnableButtons(gstrButtonMode);
    CoverPages_Clear();
    form_.SelectFirstRow([this] { grd1CoverInfo_SelChange(); });
    txt1RequestType->setFocus();
  });
}

void CoverPages::LoadGrid() {
  form_.Load("SELECT RT.REQUEST_TYPE, RT.REQUEST_TYPE_DESC" + gclsOF->LanguageSuffix() +
                 ", CI.HEADER, CI.FOOTER, CI.MESSAGE_1, CI.MESSAGE_2 " + "FROM " + Sql::Table("ID_COVER_INFO") +
                 " CI, " + Sql::Table("ID_REQUEST_TYPE") + " RT " + "WHERE  RT.REQUEST_TYPE = CI.REQUEST_TYPE " +
                 "ORDER BY RT.REQUEST_TYPE",
             "***** SQL error on OSTANA.ID_COVER_INFO OR ID_REQUEST_TYPE (Select) *****",
             [this](const Recordset& rows) {
               gstrFieldNames.clear();
               for (const char* name : {"HEADER", "FOOTER", "MESSAGE_1", "MESSAGE_2", "REQUEST_TYPE"})
                 gstrFieldNames.append(rows.Fields(name).Name());
             });
  for (int row = 1; row < grd1CoverInfo->Rows(); ++row)
    grd1CoverInfo->SetText(row, 1, form_.Cell(row, "REQUEST_TYPE") + " - " + form_.Cell(row, "REQUEST_TYPE_DESC+"));
}

void CoverPages::grd1CoverInfo_SelChange() {
  const int row = grd1CoverInfo->Row();
  if (gbSkipGridEvents || row == 0) return;
  txt1RequestType->SetText(form_.Cell(row, "REQUEST_TYPE"));
  txt1Description->SetText(form_.Cell(row, "REQUEST_TYPE_DESC+"));
  form_.ShowRow(row);
}

bool CoverPages::CoverPages_Update() {
  return Procedure("frmTabulon.CoverPages_Update", this).OnFailure(Texts::DatabaseError).Answers([&] {
    const int row = grd1CoverInfo->Row();
    // Without a row everything counts as different, so that the next question is reached.
    if (row > 0 && form_.EqualsRow(row))
      return Refuse("Nothing has been changed", MessageStyle::Warning, txt1RequestType);
    if (row == 0 || txt1RequestType->Text().isEmpty()) return Refuse(NoRecord, MessageStyle::Warning, nullptr);
    if (ExecuteInTransaction(UpdateStatement(), "***** SQL error on OSTANA.ID_COVER_INFO (UPDATE) *****") == 0)
      return Refuse(Texts::NoSuchCode, MessageStyle::Stop, nullptr);
    form_.WriteRow(row);
    Tell("Record Updated", MessageStyle::Information);
    return true;
  });
}

QString CoverPages::UpdateStatement() const {
  QStringList settings;
  for (const QString& text : {txt1Header->Text(), txt1Footer->Text(), txt1Message1->Text(), txt1message2->Text()})
    settings.append(gstrFieldNames[settings.size()] + " = " + Sql::NationalOr(text, "NULL"));
  // The table's name stands in lower case here, which databases that tell letters apart know it by.
  return "UPDATE  " + Sql::Table("id_cover_info") + " SET " + settings.join(", ") + " where " + gstrFieldNames.last() +
         " =" + Sql::Plain(txt1RequestType->Text());
}

bool CoverPages::CoverPages_Clear() {
  grd1CoverInfo->SetRowQuietly(0);
  txt1RequestType->SetText({});
  txt1Description->SetText({});
  form_.Clear();
  return true;
}

void CoverPages::OpenNotice(const QString& button, FormName formName) {
  Procedure procedure("frmTabulon." + button + "_Click", this);
  procedure.Run([&] {
    const int row = grd1CoverInfo->Row();
    if (row == 0) {
      Tell(NoRecord, MessageStyle::Warning);
      return;
    }
    gstrCoverRequestType = form_.Cell(row, "REQUEST_TYPE");
    ShowModal(formName, this);
  });
}
