#pragma once

#include <QObject>
#include <functional>

class QTabWidget;
class QWidget;

// Turns tabs by keys: Ctrl+PgUp and Ctrl+PgDn the main ones, Ctrl+Tab and Ctrl+Shift+Tab the sub-tabs and, past the
// last one, the main tab behind them. The field that is left is checked first. The focus goes to the first field of the
// page where the page itself puts it nowhere.
class TabKeys : public QObject {
  Q_OBJECT

 public:
  TabKeys(QWidget& window, QTabWidget& tabs);

 private:
  // Of the page in front; null where it has no sub-tabs.
  QTabWidget* Inner() const;
  void Turn(QTabWidget& tabs, int step);
  void TurnInner(int step);
  void EnterPage();

  QWidget& window_;
  QTabWidget& tabs_;
};
