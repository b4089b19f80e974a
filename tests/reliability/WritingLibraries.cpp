// The table's rows for the library screens and what belongs to one library: connections, lists, templates, suppliers.
#include <QRegularExpression>
#include <QTest>

#include "core/ModuleState.h"
#include "platform/controls/Grid.h"
#include "reliability/WritingSteps.h"
#include "reliability/WritingTables.h"

using namespace Steps;

namespace {

constexpr qint32 Bare = 10000003;  // a library of the sample site without connections and templates
const QStringList Stamp{"LAST_MODIFIED"};

// --- Dialogs that keep one row for the library ---

void OpenAnew(ReliabilityDesk& desk, const char* form, qint32 library) {
  if (desk.Window() && desk.Window()->objectName() == form && desk.Window()->isVisible()) desk.Click("cmdCancel");
  OfLibrary(form, library)(desk);
}

// Add and Delete of the row of a library that has none.
std::vector<WritingAction> RowOfBareLibrary(const char* form, const char* table, const Preparation& fill) {
  const Preparation add = [=](ReliabilityDesk& desk, int round) {
    desk.Another(QString("DELETE FROM ") + table + " WHERE LIBRARY_ID = " + QString::number(Bare));
    OpenAnew(desk, form, Bare);
    fill(desk, round);
  };
  const Preparation remove = [=](ReliabilityDesk& desk, int round) {
    add(desk, round);
    desk.Click("cmdOK");
    OpenAnew(desk, form, Bare);
  };
  return {{"Add", add, Button("cmdOK")}, {"Delete", remove, Button("cmdDelete")}};
}

Preparation Typed(std::vector<const char*> boxes) {
  return [boxes = std::move(boxes)](ReliabilityDesk& desk, int round) {
    for (const char* box : boxes) desk.Type(box, Mark(round));
  };
}

Preparation ServerOf(const char* systems) {
  return [systems](ReliabilityDesk& desk, int round) {
    desk.ChooseAt(systems, 1);
    desk.ChooseAt("cmbConnect", 1);
    desk.Type("txtServerAddress", Mark(round));
    desk.Type("txtPort", "8080");
  };
}

std::vector<WritingScreen> OneRowDialogs() {
  return {
      {.name = "NCIPServer",
       .place = "frmNCIPServerConnection",
       .table = "ID_NCIP_CONNECT",
       .fields = {{"txtServerAddress", "NCIP_HOST_ADDRESS"},
                  {"txtApplicationProfile", "NCIP_APP_PROFILE"},
                  {"txtServerAgency", "NCIP_SERVER_AGENCY_ID"},
                  {"txtAgencySchema", "NCIP_AGENCY_ID_SCHEME"},
                  {"txtToAgency", "NCIP_TO_AGENCY_ID"},
                  {"txtFromAgency", "NCIP_FROM_AGENCY_ID"},
                  {"txtAgencyAuthentication", "NCIP_FROM_AGENCY_AUTH"}},
       .open = OfLibrary("frmNCIPServerConnection", ReliabilityDesk::Auenfels),
       .write = Button("cmdOK"),
       .moreActions = RowOfBareLibrary("frmNCIPServerConnection", "ID_NCIP_CONNECT", ServerOf("cmbNCIPSystem"))},
      {.name = "APIServer",
       .place = "frmAPIServerConnection",
       .table = "ID_API_CONNECT",
       .fields = {{"txtServerAddress", "API_HOST_ADDRESS"}, {"txtValidLocations", "API_HD_LOCATIONS"}},
       .open = OfLibrary("frmAPIServerConnection", 10000006),
       .write = Button("cmdOK"),
       .moreActions = RowOfBareLibrary("frmAPIServerConnection", "ID_API_CONNECT", ServerOf("cmbILSSystem"))},
      {.name = "DeliveryEmailTemplate",
       .place = "frmDeliveryEmailTemplate",
       .table = "ID_EMAIL_MESSAGE",
       .fields = {{"txtSubject", "EMAIL_MESSAGE_SUBJECT", Trimmed::No},
                  {"txtRequestInfo", "EMAIL_MESSAGE_REQUEST", Trimmed::No},
                  {"txtBody", "EMAIL_MESSAGE_BODY", Trimmed::No}},
       .open = OfLibrary("frmDeliveryEmailTemplate", ReliabilityDesk::Auenfels),
       .write = Button("cmdOK"),
       .moreActions =
           RowOfBareLibrary("frmDeliveryEmailTemplate", "ID_EMAIL_MESSAGE", Typed({"txtSubject", "txtBody"}))},
      {.name = "AnnotationTemplate",
       .place = "frmLibraryAnnotationTemplate",
       .table = "ID_ANNOTATION",
       .fields = {{"txtAnnotationText", "ANNOTATION", Trimmed::No}},
       .open = OfLibrary("frmLibraryAnnotationTemplate", ReliabilityDesk::Auenfels),
       .write = Button("cmdOK"),
       .moreActions = RowOfBareLibrary("frmLibraryAnnotationTemplate", "ID_ANNOTATION", Typed({"txtAnnotationText"}))},
  };
}

// --- Lists that are stored when their dialog is closed ---

WritingScreen StoredOnClose(WritingScreen screen) {
  screen.open = ListOfLibrary(screen.place, screen.grid);
  screen.write = AndClose("cmdUpdate");
  screen.add = AndClose("cmdAdd");
  screen.remove = AndClose("cmdDelete");
  screen.marks = {{1, screen.keys.empty() ? screen.fields[0].box : screen.keys[0].box}};
  return screen;
}

std::vector<WritingScreen> Lists() {
  WritingScreen sequence{.name = "SupplierSequence",
                         .place = "frmLibrarySequence",
                         .table = "ID_SUPPLIER",
                         .open = Dialog("frmLibrarySequence", "grdSupplierSequencing"),
                         .write = Button("cmdSequence"),
                         .change = [](ReliabilityDesk& desk, int) {
                           desk.Click("cmdSequence");  // numbered without gaps, so that the change is two rows
                           desk.SelectRow("grdSupplierSequencing", 1);
                           desk.Click("cmdDown");
                         }};
  sequence.open = [](ReliabilityDesk& desk) {
    desk.OpenLibraryScreen("frmLibrarySequence");
    FirstRow(desk, "grdSupplierSequencing");
  };
  return {
      StoredOnClose({.name = "NCIPProfile",
                     .place = "frmNCIPProfile",
                     .table = "ID_NCIP_PROFILE",
                     .fields = {{"txtDescription", "NCIP_PROFILE_DESC"}},
                     .keys = {{"txtProfileCode", "NCIP_PROFILE"}},
                     .grid = "grdNCIPProfile"}),
      StoredOnClose({.name = "NCIPStatusCodes",
                     .place = "frmNCIPStatusCodes",
                     .table = "ID_NCIP_STATUS",
                     .fields = {{"txtNCIPStatusCode", "NCIP_STATUS"}},
                     .grid = "grdNCIPStatusCodes"}),
      StoredOnClose({.name = "NCIPUnitLibraries",
                     .place = "frmNCIPUnitLibraryMapping",
                     .table = "ID_NCIP_LIBRARY",
                     .fields = {{"txtNCIPLibrary", "NCIP_LIBRARY"}},
                     .grid = "grdLibraryMapping"}),
      sequence,
      {.name = "ISO18626",
       .place = "frmISO18626Connect",
       .table = "ID_ISO18626_CONNECT",
       .fields = {{"txtHostAddress", "ISO18626_HOST_ADDRESS"}, {"txtUrl", "ISO18626_HOST_URL"}},
       .open = Dialog("frmISO18626Connect", "grdISO18626Connections"),
       .write = Button("cmdUpdate"),
       .empty = Button("btnClear"),
       .keys = {{"txtConnectionID", "ISO18626_CONNECTION_ID"}},
       .choose =
           [](ReliabilityDesk& desk, int) {
             for (const char* list : {"cmbILLSystem", "cmbVersion", "cmbAuthType", "cmbConnectionType"})
               desk.ChooseAt(list, 1);
             desk.Type("txtPort", "8080");
           },
       .add = Button("cmdAdd"),
       .grid = "grdISO18626Connections",
       .marks = {{1, "txtConnectionID"}},
       .remove = Button("cmdDelete")},
  };
}

// --- The five library screens ---

// A new id in the list of those under which messages arrive.
void AddAgencyId(ReliabilityDesk& desk, int round) {
  desk.Click("cmdAddISO18626AgencyIdReceive");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const auto editors = desk.Find<Grid>("grdISO18626AgencyIdReceive")
                           ->viewport()
                           ->findChildren<TextBox*>(QRegularExpression("^qt_grid_"), Qt::FindDirectChildrenOnly);
  ASSERT_FALSE(editors.isEmpty());
  editors.last()->setFocus();
  QTest::keyClicks(editors.last(), "AGENCY" + QString::number(round));
  desk.Click("cmdSaveAgencyIdReceive");
}

std::vector<WritingScreen> FiveScreens() {
  const auto updated = [](WritingScreen screen) {
    screen.table = "ID_LIBRARY";
    screen.open = OfLibrary(screen.place);
    screen.write = Button("cmdUpdate");
    screen.ownColumns = Stamp;
    return screen;
  };
  WritingScreen registration = updated({.name = "LibraryRegistration",
                                        .place = "frmLibraryRegistration",
                                        .fields = {{"txtInstitution", "INSTITUTION_NAME"},
                                                   {"txtLibraryName", "LIBRARY", Trimmed::No},
                                                   {"txtContact", "CONTACT", Trimmed::No},
                                                   {"txtStreet1", "PRIME_ADDRESS1", Trimmed::No},
                                                   {"txtStreet2", "PRIME_ADDRESS2", Trimmed::No},
                                                   {"txtCity", "PRIME_CITY", Trimmed::No},
                                                   {"txtStateProvince", "PRIME_PROV_STATE", Trimmed::No},
                                                   {"txtCountry", "PRIME_COUNTRY", Trimmed::No},
                                                   {"txtZipPostalCode", "PRIME_POST_ZIPCODE", Trimmed::No},
                                                   {"txtDeliveryService", "DELIVERY_SERVICE", Trimmed::No},
                                                   {"txtDocview", "DOCVIEW_ADDRESS", Trimmed::No}}});
  registration.open = [open = registration.open](ReliabilityDesk& desk) {
    open(desk);
    // By mail a street would be required.
    for (const char* list : {"cmbDeliveryMethodCopy", "cmbDeliveryMethodLoan", "cboMsgMethod"})
      if (desk.Find<CodeComboBox>(list)->Code() != "E") desk.ChooseCode(list, "E");
  };
  registration.ownColumns += QStringList{"DELIV_METHOD_COPY", "DELIV_METHOD_LOAN", "MSG_METHOD"};
  registration.keys = {{"txtLibrarySymbol", "LIBRARY_SYMBOL"}};
  registration.add = Button("cmdAdd");
  registration.remove = Button("cmdDelete");
  registration.counters = {"ID_NEXT_LIBRARY"};

  WritingScreen contact = updated({.name = "LibraryContact",
                                   .place = "frmLibraryContactInfo",
                                   .fields = {{"txtContact", "CONTACT"},
                                              {"txtPhone", "CONTACT_PHONE"},
                                              {"txtFax", "CONTACT_FAX"},
                                              {"txtEmail", "CONTACT_EMAIL"},
                                              {"txtAltPhone", "CONTACT_PHONE2"},
                                              {"txtAltFax", "CONTACT_FAX2"},
                                              {"txtAltEmail", "CONTACT_EMAIL2"},
                                              {"txtNote", "NOTE"},
                                              {"txtNotice", "NOTICE"}}});
  contact.open = [open = contact.open](ReliabilityDesk& desk) {
    // Anew, without the ids that a failed update has left in the list.
    if (desk.Window() && desk.Window()->objectName() == "frmLibraryContactInfo") desk.LeaveUnsaved();
    open(desk);
  };
  contact.change = AddAgencyId;
  contact.severalUnits = true;

  // Without its symbol an outside system has nothing else either.
  WritingScreen statistical = updated({.name = "LibraryStatistical",
                                       .place = "frmLibraryStatisticalInfo",
                                       .fields = {{"txtDoclineSymbol", "DOCLINE_SYMBOL"},
                                                  {"txtFD", "FD_SYMBOL"},
                                                  {"txtNewZealand", "NLNZ_SYMBOL"},
                                                  {"txtAgent", "AGENT_SYMBOL"},
                                                  {"txtVORNSymbol", "VORN_SYMBOL"}}});
  statistical.ownColumns +=
      QStringList{"VORN_USER_ID", "VORN_PASSWORD", "VORN_SERVICE", "VORN_USE_IFM", "VORN_IFM_MAX_COST"};

  WritingScreen rapid = updated(
      {.name = "LibraryRapid",
       .place = "frmLibraryStatisticalInfo",
       .fields = {{"txtRapid", "RAPID_CODE"},
                  {"txtRapidBranchName", "RAPID_BRANCH_NAME"},
                  {"txtRapidUserName", "RAPID_USER_NAME"},
                  {"txtRapidPassword", "RAPID_PASSWORD", Trimmed::Ends, Trimmed::Ends, "txtRapidConfirmPassword"}}});
  rapid.ownColumns += "RAPID_ALLOW_LOCAL";

  return {
      registration,
      contact,
      updated({.name = "LibraryBilling",
               .place = "frmLibraryBillingInfo",
               .fields = {{"txtStreet1", "BILL_ADDRESS1", Trimmed::No},
                          {"txtStreet2", "BILL_ADDRESS2", Trimmed::No},
                          {"txtCity", "BILL_CITY", Trimmed::No},
                          {"txtStateProvince", "BILL_PROV_STATE", Trimmed::No},
                          {"txtCountry", "BILL_COUNTRY", Trimmed::No},
                          {"txtZipPostalCode", "BILL_POST_ZIPCODE", Trimmed::No},
                          {"txtBillingContact", "BILL_CONTACT"},
                          {"txtPhone", "BILL_PHONE", Trimmed::No},
                          {"txtFax", "BILL_FAX", Trimmed::No},
                          {"txtCCName", "CREDIT_CARD_NAME", Trimmed::No},
                          {"txtCCExpirationDate", "CREDIT_CARD_EXP", Trimmed::No},
                          {"txtCCCode", "CREDIT_CARD_CODE", Trimmed::No},
                          {"txtAccountNumber", "LIBRARY_ACCOUNT", Trimmed::No}}}),
      updated({.name = "LibraryLogin",
               .place = "frmLibraryLoginInfo",
               .fields = {{"txtUserID", "USER_LOGIN"},
                          {"txtPassword", "USER_PASSWORD", Trimmed::Ends, Trimmed::Ends, "txtConfirmPassword"}}}),
      statistical,
      rapid,
  };
}

}  // namespace

std::vector<WritingScreen> WritingLibraryScreens() {
  std::vector<WritingScreen> screens;
  for (const auto& more : {FiveScreens(), OneRowDialogs(), Lists()})
    screens.insert(screens.end(), more.begin(), more.end());
  return screens;
}
