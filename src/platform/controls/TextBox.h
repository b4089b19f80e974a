#pragma once

#include <QLineEdit>
#include <functional>

class LeaveGuard;

// Receives a typed character and returns the one that is entered; 0 refuses it (the filter beeps itself).
using KeyPressFilter = std::function<char16_t(char16_t key)>;

// A one-line text box. Its object name is the control's name.
class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  // maxLength in UTF-16 units; 0 means no limit.
  TextBox(QWidget* parent, const QString& name, int maxLength = 0);

  QString Text() const { return text(); }
  // Filling by code: emits Change, not Edited. What is longer than the limit is cut, never in the middle of a surrogate
  // pair. A box without the focus shows the beginning of its text.
  void SetText(const QString& text);
  QString Trimmed() const { return text().trimmed(); }
  // Writes the trimmed text back and returns it.
  QString TrimInPlace();
  // In capitals too, cut at the limit when they are longer than the letters were.
  QString TrimUpperInPlace();
  void SelectAllAndFocus();

  // Typed characters pass the filter; pasted and dropped text passes it character by character unless pasteUnfiltered.
  // Only printable characters, Backspace (8) and Enter (13) are shown to the filter; shortcuts pass by.
  void SetKeyPress(KeyPressFilter filter, bool pasteUnfiltered = false);
  void UpperCaseAsTyped();

  // Runs when the focus really goes to another control of the same window, once; False keeps the focus here, and the
  // press that caused the leaving does not also click.
  void SetLeaveCheck(std::function<bool()> check);

  // What may stand here, in a few words ("0.00 to 99.99"): told by the tip, and when a key is refused. Unless set it
  // tells the limit.
  void SetRule(const QString& rule) { rule_ = rule; }
  QString Rule() const;

  // Enter in the box runs the action and goes no further.
  void SetEnterAction(std::function<void()> action);
  // As in the constructor: for limits that are the database's, known when the form is loaded.
  void SetMaxLength(int limit);
  int MaxLength() const;

  // Whatever way the focus comes: by Tab, click or code.
  void SelectAllOnFocus() { selectOnFocus_ = true; }

  // As wide as the limit calls for, up to a page's usual width; narrower where there is no room.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void Change(const QString& text);  // any change, by hand or by code
  void Edited(const QString& text);  // by the user's hand
  // The focus came from another control, not back from a message box or a menu.
  void GotFocus();

 protected:
  bool event(QEvent* event) override;
  void initStyleOption(QStyleOptionFrame* option) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void EnterKey(QKeyEvent* event);
  QString Filtered(const QString& typed);
  void ShowBeginning();
  QString Cased(QString text) const;
  qsizetype Room() const;
  void PasteText(const QString& foreign);
  void PasteClipboard();

  KeyPressFilter filter_;
  bool pasteUnfiltered_ = false;
  bool upperCase_ = false;
  LeaveGuard* leave_ = nullptr;
  std::function<void()> enterAction_;
  QString rule_;
  bool selectOnFocus_ = false;
  bool selectAfterPress_ = false;
};
