#pragma once

#include <QObject>
#include <QPointer>

class Grid;
class QLabel;
class QMainWindow;
class TextBox;

// What the main screen shows of the list in use: a field that looks for a text in it as the bar under its headings
// does, and how many rows there are.
class ListTools : public QObject {
  Q_OBJECT

 public:
  ListTools(QMainWindow& window, TextBox& field, QLabel& count);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Follow();
  void ShowLater();
  void Show();
  void LookFor(const QString& text);
  void Next();

  QMainWindow& window_;
  TextBox& field_;
  QLabel& count_;
  QPointer<Grid> grid_;
  bool waiting_ = false;
};
