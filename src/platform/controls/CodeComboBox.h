#pragma once

#include <QComboBox>
#include <optional>
#include <vector>

// A list of descriptions that keeps the code behind each entry. The entry "(none)" (in the letters the screen uses)
// stands for NULL: its code is a null QString. Equal descriptions are entries of their own. The box never picks an
// entry by itself; -1 is "nothing chosen". A text that is no entry can be shown (SetText), and a code that is none can
// be held (Hold): a list that lacks a code, or could not be filled, loses none.
class CodeComboBox : public QComboBox {
  Q_OBJECT

 public:
  CodeComboBox(QWidget* parent, const QString& name);

  void Clear();
  void AddNone(const QString& text = QStringLiteral("(none)"));
  // Without a code the text is its own code.
  void Add(const QString& description);
  void Add(const QString& description, const QString& code);

  int Count() const { return count(); }
  int Index() const { return currentIndex(); }
  void SetIndex(int index);
  // The text on show, which may be no entry of the list.
  QString Text() const;
  // Chooses the first entry with this text (exact); shows the text without an entry when there is none.
  void SetText(const QString& text);
  // The code chosen or held; null when the chosen entry is "(none)" or nothing is chosen.
  QString Code() const;
  // The same, but nothing where nothing is chosen.
  std::optional<QString> Chosen() const;
  QString CodeAt(int index) const;
  QString TextAt(int index) const { return itemText(index); }
  // Of the first entry with that description or code; null when there is none.
  QString CodeOf(const QString& description) const;
  QString DescriptionOf(const QString& code) const;
  // Chooses the entry of the code (exact). False when there is none; the box is then left alone.
  bool SetCode(const QString& code);
  // Chooses the entry of the code. A code that is no entry is shown as it stands, and given back by Code until an entry
  // is chosen or the list is emptied; a null one without an entry chooses nothing. `shownAs`: instead of such a code.
  void Hold(const QString& code, const QString& shownAs = {});
  bool HoldsUnknown() const { return held_.has_value(); }
  int IndexOfCode(const QString& code) const;
  int IndexOfText(const QString& text) const;
  // True on the first entry added by AddNone, whatever its letters; also on a shown text that equals it but for case.
  bool IsNone() const;
  bool IsEmptyOrNone() const { return Text().trimmed().isEmpty() || IsNone(); }

  // Up and Down open the list instead of choosing the next entry: for lists whose choice changes the page.
  void OpenByArrows() { opensByArrows_ = true; }

  void showPopup() override;
  // Half as wide as it wants to be, where there is no room.
  QSize minimumSizeHint() const override;

  // What assistive technology says of the field besides its name and its entry.
  void SetHint(const QString& hint);

 Q_SIGNALS:
  // The user picked an entry, the one already chosen included. Choosing by code emits nothing.
  void Click();
  void GotFocus();

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void initStyleOption(QStyleOptionComboBox* option) const override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;  // scrolls the page, never the choice, unless focused

 private:
  void SetUpList();
  void Append(const QString& description, const QString& code);
  void Show(const QString& text);

  std::vector<QString> codes_;
  bool opening_ = false;
  bool opensByArrows_ = false;
  int noneIndex_ = -1;
  QString none_ = QStringLiteral("(none)");
  QString hint_;
  std::optional<QString> held_;
  QString shown_;  // the text on show while no entry is chosen
};
