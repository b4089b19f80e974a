#pragma once

#include "interop/NCIPListScreen.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/OptionLabel.h"

// Which item status codes of the local system allow interlibrary loan: the list of the library in hand, LibraryId of
// the common services.
class frmNCIPStatusCodes : public NCIPListScreen {
  Q_OBJECT

 public:
  explicit frmNCIPStatusCodes(QWidget* parent = nullptr);

  enum Column { StatusCode = 1, AllowIll };

 protected:
  void ReadOstanaInfo() override;
  void ShowRow(int row) override;
  void EmptyControls() override;
  void ResetControls() override;
  bool CellsOnScreen(QStringList& cells, bool forUpdate) override;
  TextBox* KeyBox() const override { return txtNCIPStatusCode; }
  QString DuplicateText(const QString& key) const override;
  ListRewrite Rewrite() const override;

 private:
  void BuildControls();
  void txtNCIPStatusCode_Change();

  TextBox* const txtNCIPStatusCode = new TextBox(this, "txtNCIPStatusCode", 20);
  OptionGroup* const rdAllowILL = new OptionGroup(this, {{"rdAllowILLYes", ""}, {"rdAllowILLNo", ""}});
  OptionLabel* const lblAllowILLYes = new OptionLabel(this, "lblAllowILLYes", "Yes", rdAllowILL->Button(0));
  OptionLabel* const lblAllowILLNo = new OptionLabel(this, "lblAllowILLNo", "No", rdAllowILL->Button(1));
  Grid* const grdNCIPStatusCodes = grid_;
};
