// The yardstick of the start: a Qt window of the same kind as the main screen, with nothing in it.
#include <QApplication>
#include <QMainWindow>
#include <QTimer>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.resize(1180, 720);
  window.show();
  QTimer::singleShot(0, &application, &QApplication::quit);
  return QApplication::exec();
}
