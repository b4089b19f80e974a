#pragma once

#include "core/ModuleState.h"
#include "interop/NCIPListScreen.h"

// Which library of this system stands behind the name of an NCIP unit library: the list of glngNCIPLibraryId, the
// library behind a symbol, which need not be the library in hand.
class frmNCIPUnitLibraryMapping : public NCIPListScreen {
  Q_OBJECT

 public:
  explicit frmNCIPUnitLibraryMapping(QWidget* parent = nullptr);

  enum Column { NCIPLibrary = 1, OstanaLibrary, UnitLibraryId };

 protected:
  void ReadOstanaInfo() override;
  void ShowRow(int row) override;
  void EmptyControls() override;
  bool CellsOnScreen(QStringList& cells, bool forUpdate) override;
  TextBox* KeyBox() const override { return txtNCIPLibrary; }
  QString DuplicateText(const QString& key) const override;
  ListRewrite Rewrite() const override;

 private:
  void BuildControls();
  void cmdFindLibrary_Click();

  // The owner of the list. Kept: the library search may lead to a contact screen that sets the global anew.
  const qint32 libraryId_ = glngNCIPLibraryId;
  qint32 mlngUnitLibraryId = -1;  // found by the look-up of the symbol; -1 for none

  TextBox* const txtNCIPLibrary = new TextBox(this, "txtNCIPLibrary", 25);
  TextBox* const txtOstanaLibrary = new TextBox(this, "txtOstanaLibrary", 38);
  QPushButton* const cmdFindLibrary = Form::Button(this, "cmdFindLibrary", "&Find Library");
  Grid* const grdLibraryMapping = grid_;
};
