#pragma once

#include <QHash>

#include "directory/AgencyIdList.h"

// Agency ids under which messages for the library arrive. An id belongs to one library only.
class AgencyIdReceiveList : public AgencyIdList {
  Q_OBJECT

 public:
  explicit AgencyIdReceiveList(QWidget* parent);

  enum Column { AgencyId = 1, ColumnCount };

  Content Read(qint32 libraryId) const override;

 protected:
  QString RowValues(int row, qint32 libraryId) const override;

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

  Content Read(qint32 libraryId) const override;
  void Show(const Content& content) override;

 protected:
  void CellEdited(int row, int col) override;
  QString RowValues(int row, qint32 libraryId) const override;

 private:
  QHash<QString, QString> codeOf_;  // by description; the first of equal ones
};
