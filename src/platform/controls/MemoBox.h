#pragma once

#include <QPlainTextEdit>
#include <QStringList>

// A text box of several lines. A text keeps the line ends it was filled with, and one that had CR LF gets CR LF for its
// new lines; others get LF. All else is kept as it was entered, the no-break space included. Tab moves the focus.
class MemoBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  // maxLength in UTF-16 units of Text, line ends as it gives them; 0 means no limit. What is typed or pasted beyond is
  // dropped.
  MemoBox(QWidget* parent, const QString& name, int maxLength = 0);

  // What was filled in, as long as nothing else was typed.
  QString Text() const;
  // Filling by code: emits Change, not Edited.
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
  QString Fitting(const QString& text) const;
  QString Stored(const QString& raw) const;

  int maxLength_;
  QString filled_;                          // as SetText had it
  QString filledRaw_;                       // the same as the document holds it
  QStringList filledLines_;                 // its lines,
  QStringList filledEnds_;                  // and what stood behind each but the last
  QString lineEnd_ = QStringLiteral("\n");  // of a new line
  int lines_ = 4;
  bool filling_ = false;
};
