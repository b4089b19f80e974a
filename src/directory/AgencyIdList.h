#pragma once

#include <QGroupBox>
#include <QPushButton>
#include <functional>
#include <optional>
#include <vector>

#include "platform/controls/Grid.h"
#include "shell/WorkingCopy.h"

// A list of ISO 18626 agency ids on the contact screen, edited in memory. Add opens an empty row in the grid, which
// joins the list by Save; a cell can be edited in place at any time. What is refused says why, and the cell is opened
// again.
class AgencyIdList : public QGroupBox {
  Q_OBJECT

 public:
  // Object names of the controls, and the words in which a list differs from the other.
  struct Facts {
    QString table, frame, caption, grid, add, remove, newFrame, save, cancel;
    QString addFailed, saveFailed;
  };
  AgencyIdList(QWidget* parent, const Facts& facts, int columns);

  // A library's rows as the table holds them, from column 1 on, and what a new one may choose from: descriptions and
  // codes.
  struct Content {
    WorkingCopy copy;
    std::vector<QStringList> rows;
    std::vector<std::pair<QString, QString>> choices = {};
  };
  // An AdoError when the list cannot be read whole. What is on show stays until Show.
  virtual Content Read(qint32 libraryId) const = 0;
  virtual void Show(const Content& content);
  void Clear();
  // Replaces the rows of the library in one transaction; a list that is on show only.
  void Write(qint32 libraryId) const;

 Q_SIGNALS:
  void Changed();

 protected:
  // What a cell must hold; the test gives the refusal, or an empty text. Save runs all of them in their order, editing
  // a cell those of its column.
  struct Rule {
    int col;
    std::function<QString(int row)> refusal;
  };
  void AddRule(int col, std::function<QString(int row)> refusal) { rules_.push_back({col, std::move(refusal)}); }
  // "(columns) VALUES (values)" of a row's INSERT.
  virtual QString RowValues(int row, qint32 libraryId) const = 0;
  // The cell was given another text by hand, before it is tested.
  virtual void CellEdited(int row, int col);
  // A saved row other than `except` with that text; 0 when there is none.
  int SavedRowWith(const QString& text, int col, int except) const;
  // The common length of an agency id.
  static QString LengthRefusal(const QString& id);
  // Failure line of reading a table.
  static QString SelectFailed(const QString& table);
  const QString& Table() const { return facts_.table; }

  Grid* const grid_;

 private:
  void BuildControls();
  void Add_Click();
  void Delete_Click();
  void Save_Click();
  void Cancel_Click();
  void AfterEdit(int row, int col, const QString& old);
  void ShowNewRow(bool shown);
  // Rows of the list, without one that is still to be saved.
  std::vector<int> SavedRows() const;
  int NewRow() const;
  void Refuse(const QString& text, int row, int col);
  // The frame of an event procedure; `button` gives the log name.
  void Run(const QWidget* button, const QString& failed, const std::function<void()>& body);

  const Facts facts_;
  QPushButton* const cmdAdd_;
  QPushButton* const cmdDelete_;
  QWidget* const fraNew_;
  QPushButton* const cmdSave_;
  QPushButton* const cmdCancel_;
  std::vector<Rule> rules_;
  std::optional<WorkingCopy> copy_;
};
