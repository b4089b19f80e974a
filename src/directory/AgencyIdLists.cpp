#include "directory/AgencyIdLists.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"

// --- Receive ---

AgencyIdReceiveList::AgencyIdReceiveList(QWidget* parent)
    : AgencyIdList(parent,
                   {"ID_ISO18626_AGENCY_ID_RECEIVE", "fraAgencyIdReceive", "Agency Ids for receiving messages",
                    "grdISO18626AgencyIdReceive", "cmdAddISO18626AgencyIdReceive", "cmdDeleteISO18626AgencyIdReceive",
                    "fraNewAgencyIdReceive", "cmdSaveAgencyIdReceive", "cmdCancelAgencyIdReceive",
                    "Unexpected error trying to add a row in the Grid of 'ISO 18626 Agency IDs for receiving "
                    "messages'. Please try again later.",
                    "An error occurred trying to add the new ISO 18626 Agency ID for receiving messages. Please "
                    "Notify Support."},
                   ColumnCount) {
  grid_->SetHeading(AgencyId, "Agency Id");
  grid_->SetEditable(AgencyId, 0);
  AddRule(AgencyId, [this](int row) { return LengthRefusal(grid_->Text(row, AgencyId)); });
  AddRule(AgencyId, [this](int row) -> QString {
    if (SavedRowWith(grid_->Text(row, AgencyId), AgencyId, row) == 0) return {};
    return "The Agency Id entered already exists. Please enter a different Agency Id.";
  });
  AddRule(AgencyId, [this](int row) { return OtherLibraryRefusal(grid_->Text(row, AgencyId)); });
}

// The library's own row in the table is no clash: the id may have been taken from the list and come back.
QString AgencyIdReceiveList::OtherLibraryRefusal(const QString& id) const {
  bool taken = false;
  ForEachRow(
      "SELECT DISTINCT LIBRARY_ID FROM " + Sql::Table(Table()) + " WHERE    ISO18626_AGENCY_ID = " + Sql::National(id),
      SelectFailed(Table()), [&](Recordset& rows) { taken |= Value(rows, 0).toInt() != gclsOF->LibraryId(); });
  if (!taken) return {};
  return "The Agency Id entered is already assigned to another Library. The Agency Id must be unique. Please enter a "
         "different value.";
}

AgencyIdList::Content AgencyIdReceiveList::Read(qint32 libraryId) const {
  std::vector<QStringList> ids;
  const WorkingCopy copy([&] {
    ForEachRow("SELECT DISTINCT ISO18626_AGENCY_ID FROM " + Sql::Table(Table()) +
                   " WHERE    LIBRARY_ID = " + Sql::Number(libraryId),
               SelectFailed(Table()), [&](Recordset& rows) { ids.push_back({Value(rows, 0)}); });
  });
  return {copy, ids};
}

QString AgencyIdReceiveList::RowValues(int row, qint32 libraryId) const {
  return "(ISO18626_AGENCY_ID, LIBRARY_ID) VALUES (" + Sql::National(grid_->Text(row, AgencyId)) + ", " +
         Sql::Number(libraryId) + ")";
}

// --- Send ---

AgencyIdSendList::AgencyIdSendList(QWidget* parent)
    : AgencyIdList(
          parent,
          {"ID_ISO18626_AGENCY_ID_SEND", "fraAgencyIdSend", "Agency Ids for sending messages",
           "grdISO18626AgencyIdSend", "cmdAddISO18626AgencyIdSend", "cmdDeleteISO18626AgencyIdSend",
           "fraNewAgencyIdSend", "cmdSaveAgencyIdSend", "cmdCancelAgencyIdSend",
           "Unexpected error trying to add a row in the Grid of 'ISO 18626 Agency IDs for sending messages'. Please "
           "try again later.",
           "An error occurred trying to add the new ISO 18626 Agency ID for sending messages. Please Notify Support."},
          ColumnCount) {
  grid_->SetHeading(IllSystem, "ILL System");
  grid_->SetHeading(AgencyId, "Agency Id");
  grid_->SetColWidth(IllSystem, 2400);
  grid_->HideCol(SystemCode, true);
  grid_->SetEditable(AgencyId, 0);
  AddRule(IllSystem, [this](int row) -> QString {
    if (!grid_->Text(row, SystemCode).isEmpty()) return {};
    return "The External ILL System selected is not valid. Please select an External ILL System .";
  });
  AddRule(AgencyId, [this](int row) { return LengthRefusal(grid_->Text(row, AgencyId)); });
  AddRule(IllSystem, [this](int row) -> QString {
    if (SavedRowWith(grid_->Text(row, SystemCode), SystemCode, row) == 0) return {};
    return "There is already an Agency ID for the selected External ILL System. Please select a different ILL System.";
  });
}

void AgencyIdSendList::CellEdited(int row, int col) {
  AgencyIdList::CellEdited(row, col);
  if (col == IllSystem) grid_->SetText(row, SystemCode, codeOf_.value(grid_->Text(row, IllSystem)));
}

AgencyIdList::Content AgencyIdSendList::Read(qint32 libraryId) const {
  std::vector<QStringList> ids;
  std::vector<std::pair<QString, QString>> systems;
  const QString description = "ILL_SYSTEM_DESC" + gclsOF->LanguageSuffix(), system = Sql::Table("ID_ILL_SYSTEM");
  const WorkingCopy copy([&] {
    ForEachRow("SELECT DISTINCT ILL_SYSTEM, " + description + " FROM " + system, SelectFailed("ID_ILL_SYSTEM"),
               [&](Recordset& rows) { systems.emplace_back(Value(rows, 1), Value(rows, 0)); });
    ForEachRow("SELECT DISTINCT A.EXTERNAL_ILL_SYSTEM, SY." + description + ", A.ISO18626_AGENCY_ID FROM " +
                   Sql::Table(Table()) + " A INNER JOIN " + system +
                   " SY ON A.EXTERNAL_ILL_SYSTEM = SY.ILL_SYSTEM WHERE    A.LIBRARY_ID = " + Sql::Number(libraryId),
               SelectFailed(Table()), [&](Recordset& rows) {
                 ids.push_back({Value(rows, 1), Value(rows, 2), Value(rows, 0)});
               });
  });
  return {copy, ids, systems};
}

void AgencyIdSendList::Show(const Content& content) {
  codeOf_.clear();
  QStringList descriptions;
  for (const auto& [description, code] : content.choices) {
    if (!codeOf_.contains(description)) codeOf_.insert(description, code);
    descriptions.append(description);
  }
  AgencyIdList::Show(content);
  grid_->SetEditable(IllSystem, 0, descriptions);
}

QString AgencyIdSendList::RowValues(int row, qint32 libraryId) const {
  return "(LIBRARY_ID, EXTERNAL_ILL_SYSTEM, ISO18626_AGENCY_ID) VALUES (" + Sql::Number(libraryId) + ", " +
         Sql::National(grid_->Text(row, SystemCode)) + ", " + Sql::National(grid_->Text(row, AgencyId)) + ")";
}
