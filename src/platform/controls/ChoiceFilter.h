#pragma once

#include <QObject>

class QComboBox;
class QKeyEvent;
class QLabel;
class QListView;

// Typing in the open list of a combo box with many entries leaves those that hold the text in any place, letter case
// and accents ignored; the text stands above them. Backspace takes a letter back, Escape the whole text. A short list
// goes to the entry as the toolkit does.
class ChoiceFilter : public QObject {
  Q_OBJECT

 public:
  explicit ChoiceFilter(QComboBox* box);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Typed(const QKeyEvent& event);
  void Apply(const QString& text);
  void Show();
  int BestMatch() const;

  QComboBox* box_;
  QListView* list_;
  QLabel* shown_ = nullptr;
  QString text_;
};
