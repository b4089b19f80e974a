#pragma once

#include <QPushButton>
#include <memory>
#include <vector>

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"
#include "site/HistoryList.h"

class QMenu;
class SiteWords;
class Undo;

// "Changes": the recorded transactions of the site, the newest first; below, what the chosen one changed, in the words
// of the screens. "Undo..." takes it back.
class frmChanges : public Screen {
  Q_OBJECT

 public:
  explicit frmChanges(QWidget* parent = nullptr);
  ~frmChanges() override;

  // Opens on the changes of one record; a key as History::KeyText.
  static void ShowRecord(const QString& table, const QString& key, QWidget* owner);
  // The entry "Changes of this record" in the menu of a list, on a site that records changes.
  static void AddEntry(Grid& grid, QMenu& menu);

 protected:
  void Form_Load() override;

 private:
  enum TransactionColumn { TransactionMarker, Number, Moment, User, Program, What };
  enum ChangeColumn { ChangeMarker, Table, Record, Column, Before, After };

  void BuildControls();
  void ConnectControls();
  void FillTables();
  // False when a moment cannot be understood; it is told.
  bool ReadFilter();
  void ShowFirst();
  void Append(std::vector<HistoryTransaction> transactions);
  // A row for each column of a change, cells from column 1 on.
  std::vector<QStringList> RowsOf(const HistoryChange& change);
  static QString Summary(const HistoryTransaction& transaction);
  const HistoryTransaction* Chosen() const;
  void grdTransactions_SelChange();
  void cmdShow_Click();
  void cmdAllRecords_Click();
  void cmdOlder_Click();
  void cmdSave_Click();

  void cmdMark_Click();
  void cmdUndo_Click();
  std::vector<int> ToBeUndone() const;
  bool MayBeUndone(const std::vector<int>& ids, bool& keepSecrets);
  bool MayWrite(const Undo& undo);
  void ShowPlan(const Undo& undo);
  void Write(const std::vector<int>& ids, bool keepSecrets, const QStringList& planned);

  TextBox* txtFrom;
  TextBox* txtTo;
  TextBox* txtUser;
  CodeComboBox* cmbTable;
  TextBox* txtText;
  QLabel* lblRecord;
  QLabel* lblChanges;
  Grid* grdTransactions;
  Grid* grdChanges;
  QPushButton* cmdShow;
  QPushButton* cmdAllRecords;
  QPushButton* cmdOlder;
  QPushButton* cmdMark;
  QPushButton* cmdUndo;
  QPushButton* cmdSave;
  QPushButton* cmdClose;

  HistoryFilter filter_;
  std::vector<HistoryTransaction> shown_;  // in the order of the grid
  std::unique_ptr<SiteWords> words_;
};
