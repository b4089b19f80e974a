#pragma once

#include <QUrl>
#include <QWidget>
#include <functional>

class QAction;
class QTextBrowser;
class QToolBar;
class TextBox;

// The guide in a window of the program: text, pictures as wide as the window, links, back and forward, a text to look
// for, larger and smaller letters. Links out of the guide open in the desktop's browser.
class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  HelpWindow();

  void Open(const QString& file);
  // The page on show.
  QString File() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildBar();
  QAction* Add(const QString& name, const QString& caption, const QKeySequence& key, std::function<void()> act);
  void Follow(const QUrl& link);
  void Find(bool backwards);
  void Zoom(int steps);

  QToolBar* bar_;
  QTextBrowser* text_;
  TextBox* sought_;
  int zoom_ = 0;  // steps of a point from the desktop's letters
};
