#include "directory/LibraryDesk.h"

#include "Screens.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "shell/Screens.h"

namespace {

// A form of another application of the system, where this program does not hold one.
class EmptyForm : public Screen {
 public:
  EmptyForm(const QString& name, QWidget* parent) : Screen(name, "Form1", parent) {}
};

}  // namespace

void LibraryDesk::SetUp() {
  Desk::SetUp();
  RegisterForms();
  AddLibrary(North, "NORTH",
             {{"INSTITUTION_NAME", "'NORTH COLLEGE'"},
              {"LIBRARY", "'MAIN LIBRARY'"},
              {"CONTACT", "'Ann Reed'"},
              {"PRIME_ADDRESS1", "'1 Harbour Road'"},
              {"PRIME_POST_ZIPCODE", "'N1 1AA'"}});
  AddLibrary(South, "SOUTH",
             {{"INSTITUTION_NAME", "'SOUTH INSTITUTE'"}, {"CONTACT", "'Ben Cole'"}, {"LIBRARY_ACTIVE", "'N'"}});
}

void LibraryDesk::RegisterForms() {
  for (const QString name :
       {"frmRequestArticle", "frmRequestBook", "frmQueryRequests", "frmPatronRegistration", "frmSupplierRegistration",
        "frmLibraryContactInfo", "frmLibrarySequence", "frmLibraryAnnotationTemplate", "frmDeliveryEmailTemplate"})
    RegisterScreen(name, [name](QWidget* owner) { return std::make_unique<EmptyForm>(name, owner); });
  // The program's own forms take the places that they have.
  RegisterDialogs();
}

void LibraryDesk::AddLibrary(qint32 id, const QString& symbol, const QMap<QString, QString>& values) {
  QMap<QString, QString> row{{"INSTITUTION_NAME", "'INSTITUTION'"}, {"LIBRARY_ACTIVE", "'Y'"}};
  row.insert(values);
  row["LIBRARY_ID"] = QString::number(id);
  row["LIBRARY_SYMBOL"] = "'" + symbol + "'";
  Another("INSERT INTO ID_LIBRARY (" + row.keys().join(", ") + ") VALUES (" + row.values().join(", ") + ")");
}

void LibraryDesk::SetColumn(qint32 id, const QString& column, const QString& value) {
  Another("UPDATE ID_LIBRARY SET " + column + " = " + value + " WHERE LIBRARY_ID = " + QString::number(id));
}

QString LibraryDesk::Column(const QString& column, qint32 id) {
  return Ask("SELECT " + column + " FROM ID_LIBRARY WHERE LIBRARY_ID = " + QString::number(id));
}

void LibraryDesk::Begin(qint32 libraryId, const QString& caller) {
  Logon();
  gclsOF->SetLibraryId(libraryId);
  gclsOF->SetCallingFunction(caller);
  Statements();
}

Screen& LibraryDesk::OpenLibrary(const QString& formName, qint32 libraryId, const QString& caller) {
  Begin(libraryId, caller);
  Screen& screen = Open(formName);
  Statements();
  return screen;
}

void LibraryDesk::InSession(const QString& formName, std::function<void()> act) {
  WhenShown(formName, [act = std::move(act)](Screen&) { act(); });
  ShowModal(FormName::Of(formName));
}

void LibraryDesk::Rights(const QString& rights) {
  const auto flag = [&rights](const QString& right) { return rights.contains(right) ? "'Y'" : "'N'"; };
  Another(QString("UPDATE ID_USER_FUNCTION SET ADD_FLAG = %1, UPDATE_FLAG = %2, DELETE_FLAG = %3")
              .arg(flag("add"), flag("update"), flag("delete")));
}

QString LibraryDesk::GuardText(const QString& firstLine) {
  return firstLine + "\nDo you wish to apply the updates before continuing?";
}

bool LibraryDesk::LogHolds(const QString& text) const {
  return LogLines().join("\n").contains(text);
}
