#include "editors/CoverPages.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/ado/Recordset.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"
#include "shell/frmTabulon.h"

namespace {
const QString NoRecord = "You need select a record to Update";
}

CoverPages::CoverPages(frmTabulon& shell) : TabPage(shell) {
  BuildControls();
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

void CoverPages::ConnectControls() {
  fields_.Add(txt1Header, Header, Trim::None)
      .Add(txt1Footer, Footer, Trim::None)
      .Add(txt1Message1, Message1, Trim::None)
      .Add(txt1message2, Message2, Trim::None);
  WatchField(record(), txt1Header, grd1CoverInfo, Header);
  WatchField(record(), txt1Footer, grd1CoverInfo, Footer);
  WatchField(record(), txt1Message1, grd1CoverInfo, Message1);
  WatchField(record(), txt1message2, grd1CoverInfo, Message2);
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
    if (grd1CoverInfo->Rows() > 1) {
      grd1CoverInfo->SetRowQuietly(1);
      gbSkipGridEvents = false;
      grd1CoverInfo_SelChange();
    }
    txt1RequestType->setFocus();
  });
}

void CoverPages::LoadGrid() {
  const QString description = "REQUEST_TYPE_DESC" + gclsOF->LanguageSuffix();
  grd1CoverInfo->Clear();
  OpenRows(*grsTable,
           "SELECT RT.REQUEST_TYPE, RT." + description + ", CI.HEADER, CI.FOOTER, CI.MESSAGE_1, CI.MESSAGE_2 " +
               "FROM " + Sql::Table("ID_COVER_INFO") + " CI, " + Sql::Table("ID_REQUEST_TYPE") + " RT " +
               "WHERE  RT.REQUEST_TYPE = CI.REQUEST_TYPE " + "ORDER BY RT.REQUEST_TYPE",
           "***** SQL error on OSTANA.ID_COVER_INFO OR ID_REQUEST_TYPE (Select) *****");
  gstrFieldNames.clear();
  for (const char* name : {"HEADER", "FOOTER", "MESSAGE_1", "MESSAGE_2", "REQUEST_TYPE"})
    gstrFieldNames.append(grsTable->Fields(name).Name());
  FillGridFrom(*grd1CoverInfo, *grsTable,
               {"", "HEADER", "FOOTER", "MESSAGE_1", "MESSAGE_2", "REQUEST_TYPE", description});
  grsTable->Close();
  for (int row = 1; row < grd1CoverInfo->Rows(); ++row)
    grd1CoverInfo->SetText(row, TypeAndDescription,
                           grd1CoverInfo->Text(row, RequestType) + " - " + grd1CoverInfo->Text(row, Description));
}

void CoverPages::grd1CoverInfo_SelChange() {
  const int row = grd1CoverInfo->Row();
  if (gbSkipGridEvents || row == 0) return;
  txt1RequestType->SetText(grd1CoverInfo->Text(row, RequestType));
  txt1Description->SetText(grd1CoverInfo->Text(row, Description));
  fields_.FillFromRow(*grd1CoverInfo, row);
  record().Settled();
}

bool CoverPages::CoverPages_Update() {
  bool done = false;
  Procedure procedure("frmTabulon.CoverPages_Update", this);
  procedure.OnFailure(Texts::DatabaseError).Run([&] {
    const int row = grd1CoverInfo->Row();
    // Without a row everything counts as different, so that the next question is reached.
    if (row > 0 && fields_.EqualsRow(*grd1CoverInfo, row)) {
      Refuse("Nothing has been changed", MessageStyle::Warning, txt1RequestType);
      return;
    }
    if (row == 0 || txt1RequestType->Text().isEmpty()) {
      Tell(NoRecord, MessageStyle::Warning);
      return;
    }
    ExecuteInTransaction(UpdateStatement(), "***** SQL error on OSTANA.ID_COVER_INFO (UPDATE) *****");
    fields_.WriteRow(*grd1CoverInfo, row);
    Tell("Record Updated", MessageStyle::Information);
    done = true;
  });
  return done;
}

QString CoverPages::UpdateStatement() const {
  QStringList settings;
  for (const BoundField& field : fields_.Fields())
    settings.append(gstrFieldNames[field.column - Header] + " = " + Sql::NationalOr(field.get(), "NULL"));
  // The table's name stands in lower case here, which databases that tell letters apart know it by.
  return "UPDATE  " + Sql::Table("id_cover_info") + " SET " + settings.join(", ") + " where " + gstrFieldNames.last() +
         " =" + Sql::Plain(txt1RequestType->Text());
}

bool CoverPages::CoverPages_Clear() {
  grd1CoverInfo->SetRowQuietly(0);
  txt1RequestType->SetText({});
  txt1Description->SetText({});
  fields_.Clear();
  record().Settled();
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
    gstrCoverRequestType = grd1CoverInfo->Text(row, RequestType);
    ShowModal(formName, this);
  });
}
