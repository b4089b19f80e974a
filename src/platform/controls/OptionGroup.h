#pragma once

#include <QObject>
#include <QRadioButton>
#include <initializer_list>
#include <vector>

class QButtonGroup;
class QHBoxLayout;
class QLabel;

// A control array of option buttons, element i named "name(i)", that exclude each other. All may be unset. Single
// option buttons with names of their own are groups too (second constructor). Tab enters at the element that is set;
// arrow keys go on from there.
class OptionGroup : public QObject {
  Q_OBJECT

 public:
  // Elements named "name(0)", "name(1)", ... with these captions.
  OptionGroup(QWidget* parent, const QString& name, std::initializer_list<QString> captions);
  // Elements with names of their own: {{"optActiveYes", "Yes"}, {"optActiveNo", "No"}}.
  OptionGroup(QWidget* parent, std::initializer_list<std::pair<QString, QString>> namesAndCaptions);

  int Count() const { return static_cast<int>(buttons_.size()); }
  QRadioButton* Button(int index) const { return buttons_.at(static_cast<size_t>(index)); }
  // -1 when none is set.
  int Selected() const;
  bool IsSet(int index) const { return Selected() == index; }
  // Sets by code: emits nothing. -1 unsets all.
  void Select(int index);
  void Unset() { Select(-1); }
  void SetEnabled(bool enabled);
  void SetVisible(bool visible);
  // The buttons in one row, to be put into a form layout, named where the screen speaks of it.
  QWidget* Row(const QString& name = {});
  // The same with the captions beside the buttons, each a label of its own.
  QWidget* RowWith(std::initializer_list<QLabel*> captions);

 Q_SIGNALS:
  // The user clicked element `index`, the one already set included.
  void Click(int index);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Adopt(QWidget* parent, const QString& name, const QString& caption);
  QHBoxLayout* MakeRow();
  void SetTabStop();

  std::vector<QRadioButton*> buttons_;
  QButtonGroup* group_ = nullptr;
  QWidget* row_ = nullptr;
};
