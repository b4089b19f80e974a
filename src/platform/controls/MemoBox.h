#pragma once

#include <QPlainTextEdit>

// A text box of several lines. Line ends are "\n" on both sides; Tab moves the focus.
class MemoBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  // maxLength in characters, line ends counted as one; 0 means no limit. What is typed or pasted beyond is dropped.
  MemoBox(QWidget* parent, const QString& name, int maxLength = 0);

  QString Text() const { return toPlainText(); }
  // Filling by code: emits Change, not Edited. CR LF becomes "\n".
  void SetText(const QString& text);
  QString Trimmed() const { return toPlainText().trimmed(); }
  QString TrimInPlace();
  int MaxLength() const { return maxLength_; }

 Q_SIGNALS:
  void Change();
  void Edited();
  void GotFocus();
  // A key that would enter text, before it does; the box ignores the key when a slot sets `refuse`.
  void KeyPress(bool& refuse);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  void Contents();

  int maxLength_;
  bool filling_ = false;
};
