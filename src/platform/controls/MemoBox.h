#pragma once

#include <QPlainTextEdit>

// A text box of several lines. Line ends are "\n" on both sides; all else is kept as it was entered, the no-break space
// included. Tab moves the focus.
class MemoBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  // maxLength in UTF-16 units, line ends counted as one; 0 means no limit. What is typed or pasted beyond is dropped.
  MemoBox(QWidget* parent, const QString& name, int maxLength = 0);

  QString Text() const;
  // Filling by code: emits Change, not Edited. CR LF becomes "\n".
  void SetText(const QString& text);
  QString Trimmed() const { return Text().trimmed(); }
  QString TrimInPlace();
  void SetMaxLength(int limit) { maxLength_ = limit > 0 ? limit : 0; }
  int MaxLength() const { return maxLength_; }
  // Height of that many lines as the least and the wished one; 4 lines when never said.
  void SetLines(int lines);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void Change();
  void Edited();
  void GotFocus();
  // A key that would enter text, Enter included, before it does; the box ignores the key when a slot sets `refuse`.
  void KeyPress(bool& refuse);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  bool Refused();
  qsizetype Room() const;

  int maxLength_;
  int lines_ = 4;
  bool filling_ = false;
};
