#pragma once

#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "support/Desk.h"

// Icons and answers of the messages, as the scripts of this folder name them.
namespace Say {
inline constexpr int Stop = 16, Question = 36, QuestionNoFirst = 292, QuestionCancel = 35, Warning = 48, Info = 64;
inline constexpr int Yes = MessageAnswer::Yes, No = MessageAnswer::No, Cancel = MessageAnswer::Cancel;
inline const QString Modified = "This record has been modified.\nDo you wish to apply the updates before continuing?";
inline const QString ARecordModified =
    "A record has been modified.\nDo you wish to apply the updates before continuing?";
inline const QString Added = "Record has been added.";
inline const QString Updated = "Record has been updated.";
inline const QString Deleted = "Record has been deleted.";
inline const QString Delete = "Are you sure you want to delete this record?";
inline const QString Nothing = "Nothing has been changed.";
inline const QString NoSuchCode = "This code does not exist in the table. Please select a valid code to update.";
}  // namespace Say

// The desk of one reference dialog: rows of its tables are the case's own.
class ReferenceDesk : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Logon();
  }

  // Data rows, cells joined by "|" from column 1 on, in any order of rows.
  static QStringList RowsOf(const Grid& grid) {
    QStringList rows;
    for (int row = 1; row < grid.Rows(); ++row) {
      QStringList cells;
      for (int col = 1; col < grid.Cols(); ++col) cells.append(grid.Text(row, col));
      rows.append(cells.join('|'));
    }
    rows.sort();
    return rows;
  }

  // The grid that the dialog keeps by hand holds what a second showing of the dialog reads from the table.
  void ExpectInStep(const QString& form, const QString& grid) {
    const QStringList kept = RowsOf(*Find<Grid>(grid));
    const std::unique_ptr<Screen> fresh = MakeScreen(form, nullptr);
    fresh->ShowModeless();
    const QStringList read = RowsOf(*fresh->findChild<Grid*>(grid));
    fresh->Unload();
    EXPECT_EQ(kept.join('\n').toStdString(), read.join('\n').toStdString());
  }

  void ClickCell(const QString& name, int row, int col) {
    Grid* const grid = Find<Grid>(name);
    const QModelIndex cell = grid->model()->index(row - 1, col);
    grid->scrollTo(cell);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->visualRect(cell).center());
  }

  // The statements that wrote since the last call, one a line.
  std::string Wrote() { return Writing().join('\n').toStdString(); }
  std::string Shown(const QString& control) const { return Text(control).toStdString(); }
  std::string Told(const QString& sql) { return Ask(sql).toStdString(); }
  std::string At(const QString& grid, int row, int col) const { return Cell(grid, row, col).toStdString(); }
  bool Logged(const QString& text) const { return LogLines().join('\n').contains(text); }
  bool IsOpen() const { return Window() && Window()->isVisible(); }
};
