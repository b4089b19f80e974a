#pragma once

#include <QLineEdit>
#include <functional>

// Receives a typed character and returns the one that is entered; 0 refuses it (the filter beeps itself).
using KeyPressFilter = std::function<char16_t(char16_t key)>;

// A one-line text box. Its object name is the control's name.
class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  // maxLength in characters; 0 means no limit.
  TextBox(QWidget* parent, const QString& name, int maxLength = 0);

  QString Text() const { return text(); }
  // Filling by code: emits Change, not Edited.
  void SetText(const QString& text) { setText(text); }
  QString Trimmed() const { return text().trimmed(); }
  // Writes the trimmed text back and returns it.
  QString TrimInPlace();
  QString TrimUpperInPlace();
  void SelectAllAndFocus();

  // Typed characters pass the filter; pasted and dropped text passes it character by character unless pasteUnfiltered.
  // Only printable characters, Backspace (8) and Enter (13) are shown to the filter; shortcuts pass by.
  void SetKeyPress(KeyPressFilter filter, bool pasteUnfiltered = false);
  void UpperCaseAsTyped();

  // Runs when the focus really goes to another control of the same window, once; False keeps the focus here, and the
  // press that caused the leaving does not also click.
  void SetLeaveCheck(std::function<bool()> check);

  // Enter in the box runs the action and goes no further.
  void SetEnterAction(std::function<void()> action);
  // The focus came by Tab, click or code.
  void SelectAllOnFocus();

 Q_SIGNALS:
  void Change(const QString& text);  // any change, by hand or by code
  void Edited(const QString& text);  // by the user's hand
  void GotFocus();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  bool HandleKey(QKeyEvent* event);
  QString Filtered(const QString& pasted);
  void PasteFiltered(const QString& text);

  KeyPressFilter filter_;
  bool pasteUnfiltered_ = false;
  std::function<bool()> leaveCheck_;
  std::function<void()> enterAction_;
  bool checking_ = false;
  bool selectOnFocus_ = false;
};
