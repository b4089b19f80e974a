#pragma once

#include <QObject>

class QCheckBox;
class TextBox;

// A fax box that forms what is typed into (NNN) NNN-NNNN, unless its check box is ticked.
class FaxInput : public QObject {
  Q_OBJECT

 public:
  static constexpr int FormattedLength = 14, FreeLength = 25;

  // `enterMessage`: told when Enter is pressed on an unfinished number.
  FaxInput(TextBox* box, QCheckBox* free, QString enterMessage);

  // Brackets, blank and hyphen in their places; what follows the fourteenth character does not count.
  static bool IsShaped(const QString& text);
  bool IsFormatting() const;
  bool MayLeave() const;  // empty, or shaped as the formatting wants it
  // Shows a stored number; one that has not the shape ticks the check box.
  void Show(const QString& stored);
  // Ticked at a site without fax formatting.
  void Reset();
  void TellUnfinished();

 private:
  char16_t KeyPress(char16_t key);
  void Change();
  void Put(const QString& text, int caret);
  void SetLimit();

  TextBox* box_;
  QCheckBox* free_;
  QString enterMessage_;
  bool backspace_ = false;  // the key typed last: the formatting does not put back what it took
};
