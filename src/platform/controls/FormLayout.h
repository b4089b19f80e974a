#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <functional>
#include <initializer_list>

class QAction;
class QCheckBox;
class QGridLayout;
class QMenu;

// Helpers that build the pages of a screen in code. Every widget gets its object name here; a label is the buddy of
// its field and lends it its caption as accessible name.
namespace Form {

QLabel* Label(QWidget* parent, const QString& name, const QString& caption);
QPushButton* Button(QWidget* parent, const QString& name, const QString& caption, const QString& toolTip = {});
QCheckBox* Check(QWidget* parent, const QString& name, const QString& caption);
QGroupBox* Frame(QWidget* parent, const QString& name, const QString& caption);
QAction* MenuEntry(QMenu* menu, const QString& name, const QString& caption);
// What an entry of the window's menu, or its tool button, does. Its press is the press of a button: what has the focus
// is left first, and may refuse.
void OnPress(QAction* entry, QWidget* window, const std::function<void()>& act);
QMenu* Menu(QWidget* window, const QString& name, const QString& caption);

// A two-column form: label, field. Fields are as wide as their limit calls for, up to the room there is.
class Rows {
 public:
  // Lays out into `parent` (a widget without a layout), or a fresh layout to be placed by the caller.
  explicit Rows(QWidget* parent);

  // A row with a label of its own; the label is returned and carries `labelName` (may be empty).
  QLabel* Add(const QString& labelName, const QString& caption, QWidget* field, QWidget* behind = nullptr);
  QLabel* Add(QLabel* label, QWidget* field, QWidget* behind = nullptr);
  // A second label and field in the row before.
  QLabel* Beside(const QString& labelName, const QString& caption, QWidget* field, QWidget* behind = nullptr);
  // Something as wide as the form.
  void Wide(QWidget* widget, int stretch = 0);
  void Wide(QLayout* layout);
  // Pushes what stands above to the top.
  void Stretch();
  QGridLayout* Layout() const { return layout_; }

 private:
  void Place(QLabel* label, QWidget* field, QWidget* behind, int column);
  QGridLayout* layout_;
  int row_ = -1;
  int rowHeight_ = 0;  // pixels; 0 until the first row
};

// Buttons in one row, at the right end; nullptr is a gap that takes the room.
QHBoxLayout* ButtonRow(std::initializer_list<QWidget*> buttons);
// Whether a form made by Rows has two fields in one row, and one field a row of it, where there is no room for two.
bool HasPairs(const QGridLayout* rows);
void Unfold(QGridLayout* rows);
// A part at the top of a form that stays in sight where the rest has to scroll.
inline constexpr auto KeptInSight = "keptInSight";
void KeepInSight(QWidget* part);
// Controls side by side that are one field of a form.
QWidget* Together(QWidget* parent, const QString& name, std::initializer_list<QWidget*> controls);
// Widgets stacked with the window's margins.
QVBoxLayout* Column(QWidget* parent, std::initializer_list<QWidget*> widgets = {});
// Fields that a record cannot be without: their labels are bold, and assistive technology says so.
void Require(std::initializer_list<QWidget*> fields);
// Width of a field for that many characters, in pixels of its font.
int FieldWidth(const QWidget* field, int characters);
// Tab order of all that stands in the form's layouts, as it is read: rows from the top, from the left, frame by frame.
void ReadingOrder(QWidget* form);
// The caption without its mnemonic mark.
QString PlainCaption(const QString& caption);

}  // namespace Form
