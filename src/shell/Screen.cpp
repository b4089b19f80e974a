#include "shell/Screen.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPushButton>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/FormLayout.h"
#include "shell/FirstField.h"
#include "shell/FitDisplay.h"
#include "shell/Help.h"
#include "shell/RoundKeys.h"
#include "shell/StatementsWindow.h"
#include "shell/WindowMemory.h"

Screen::Screen(const QString& formName, const QString& caption, QWidget* parent)
    : QDialog(parent), rights_(gclsOF->Rights()) {
  setObjectName(formName);
  setWindowTitle(caption);
  setModal(true);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  Help::OpenByF1(*this, [formName] { return formName; });
  StatementsWindow::OpenByF12(*this);
}

void Screen::Begin() {
  Form_Load();
  loaded_ = true;
  QWidget* const focus = focusWidget();
  FitDisplay::Fit(*this, WindowMemory::RoomFor(*this));
  if (focus != nullptr) focus->setFocus(Qt::OtherFocusReason);
  Form::ReadingOrder(this);
  if (findChild<QPushButton*>("cmdUpdate") != nullptr) LeadFromListsToFields(*this);
  new RoundKeys(*this);
  WindowMemory::Restore(*this);
  // Texts in several lines are as high as the width makes them.
  if (layout() != nullptr && layout()->hasHeightForWidth())
    resize(size().expandedTo({0, layout()->totalHeightForWidth(width())}).boundedTo(WindowMemory::RoomFor(*this)));
}

void Screen::ShowModeless() {
  Begin();
  if (gone_) return;
  show();
  Form_Activate();
}

void Screen::ShowModal() {
  Begin();
  if (gone_) return;
  const NoHourglass pointer;
  QEventLoop loop;
  connect(this, &QDialog::finished, &loop, &QEventLoop::quit);
  show();
  raise();
  activateWindow();
  Form_Activate();
  if (!gone_) loop.exec();
}

bool Screen::Unload() {
  if (gone_ || unloading_) return gone_;
  unloading_ = true;
  const bool cancelled = Form_QueryUnload() || Form_Unload();
  unloading_ = false;
  if (cancelled) return false;
  gone_ = true;
  if (isVisible()) WindowMemory::Remember(*this);
  QDialog::done(0);
  return true;
}

void Screen::done(int result) {
  Q_UNUSED(result);
  Unload();
}

void Screen::closeEvent(QCloseEvent* event) {
  if (!gone_) CloseRequested();
  event->setAccepted(gone_);
}

void Screen::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
    CloseRequested();
    return;
  }
  // Enter presses the button that has the focus, or one the screen has made its default; it never closes by itself.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (auto* const button = qobject_cast<QPushButton*>(focusWidget())) {
      button->click();
    } else {
      for (QPushButton* candidate : findChildren<QPushButton*>())
        if (candidate->isDefault() && candidate->isEnabled() && candidate->isVisible()) return candidate->click();
    }
    return;
  }
  QDialog::keyPressEvent(event);
}

Hourglass::Hourglass() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
}
Hourglass::~Hourglass() {
  QApplication::restoreOverrideCursor();
}

NoHourglass::NoHourglass() {
  for (; QApplication::overrideCursor() != nullptr; ++lifted_) QApplication::restoreOverrideCursor();
}
NoHourglass::~NoHourglass() {
  for (; lifted_ > 0; --lifted_) QApplication::setOverrideCursor(Qt::WaitCursor);
}
