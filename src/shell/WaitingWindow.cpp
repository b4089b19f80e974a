#include "shell/WaitingWindow.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/ado/Waiting.h"
#include "platform/controls/FormLayout.h"

namespace {

constexpr int LookAgain = 100;  // milliseconds

}  // namespace

void WaitingWindow::Install() {
  Waiting::SetHook([](Waiting& waiting) { WaitingWindow(waiting, QApplication::activeWindow()).Watch(); });
}

WaitingWindow::WaitingWindow(Waiting& waiting, QWidget* parent) : QDialog(parent), waiting_(waiting) {
  setObjectName("frmWaiting");
  setWindowTitle(QCoreApplication::applicationName());
  setWindowModality(Qt::ApplicationModal);
  auto* const lblWaiting = new QLabel("Waiting for the database", this);
  lblWaiting->setObjectName("lblWaiting");
  lblSeconds->setObjectName("lblSeconds");
  cmdCancel = Form::Button(this, "cmdCancel", "Cancel");
  // A key that was meant for the screen behind presses nothing here.
  cmdCancel->setAutoDefault(false);
  cmdCancel->setFocusPolicy(Qt::TabFocus);
  connect(cmdCancel, &QPushButton::clicked, this, &WaitingWindow::reject);
  QVBoxLayout* const column = Form::Column(this, {lblWaiting, lblSeconds});
  column->addLayout(Form::ButtonRow({nullptr, cmdCancel}));
  setFocus();
}

void WaitingWindow::Watch() {
  QEventLoop loop;
  QTimer look;
  connect(&look, &QTimer::timeout, this, [&] {
    ShowSeconds();
    if (waiting_.Done()) loop.quit();
  });
  look.start(LookAgain);
  ShowSeconds();
  show();
  loop.exec();
}

void WaitingWindow::ShowSeconds() {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(waiting_.Elapsed()).count();
  lblSeconds->setText(QString("%1 seconds").arg(seconds));
}

// By Cancel, Escape and the window's own button. The window goes when the statement has ended.
void WaitingWindow::reject() {
  cmdCancel->setEnabled(false);
  waiting_.Cancel();
}
