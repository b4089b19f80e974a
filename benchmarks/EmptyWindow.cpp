// The yardsticks of the start: a Qt window of the main screen's size with nothing in it, and with --frame one that has
// the main screen's frame (menu bar, twelve captions, status bar), which is the first to load fonts. Tells on its
// output when it was painted.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <cstring>

#include "StartClock.h"

namespace {

void AddFrame(QMainWindow& window) {
  for (const char* title : {"&File", "&Edit", "&Help"}) window.menuBar()->addMenu(title);
  auto* tabs = new QTabWidget(&window);
  for (int tab = 1; tab <= 12; ++tab) tabs->addTab(new QWidget, QString("Empty tab %1").arg(tab));
  window.setCentralWidget(tabs);
  window.statusBar()->showMessage("Empty");
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  if (argc > 1 && std::strcmp(argv[1], "--frame") == 0) AddFrame(window);
  window.resize(1180, 720);
  window.show();
  QApplication::processEvents();
  TellReady();
  return 0;
}
