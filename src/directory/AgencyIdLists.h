#pragma once

#include <QHash>

#include "directory/AgencyIdList.h"

// Agency ids under which messages for the library arrive. An id belongs to one library only.
class AgencyIdReceiveList : public AgencyIdList {
  Q_OBJECT

 public:
  explicit AgencyIdReceiveList(QWidget* parent);

  enum Column { AgencyId = 1, ColumnCount };

  void Read(qint32 libraryId);
  // Replaces the rows of the library in one transaction.
  void Write(qint32 libraryId) const;

 private:
  QString OtherLibraryRefusal(const QString& id) const;
};

// Agency ids under which the library sends, one for each system; an id may repeat across libraries.
class AgencyIdSendList : public AgencyIdList {
  Q_OBJECT

 public:
  explicit AgencyIdSendList(QWidget* parent);

  // The code behind the description stands in a hidden column.
  enum Column { IllSystem = 1, AgencyId, SystemCode, ColumnCount };

  void Read(qint32 libraryId);
  void Write(qint32 libraryId) const;

 protected:
  void CellEdited(int row, int col) override;

 private:
  void ReadSystems();

  QHash<QString, QString> codeOf_;  // by description; the first of equal ones
};
