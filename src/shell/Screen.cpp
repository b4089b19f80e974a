#include "shell/Screen.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/FormLayout.h"
#include "shell/Help.h"
#include "shell/WindowMemory.h"

Screen::Screen(const QString& formName, const QString& caption, QWidget* parent)
    : QDialog(parent), rights_(gclsOF->Rights()) {
  setObjectName(formName);
  setWindowTitle(caption);
  setModal(true);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  Help::OpenByF1(*this, [formName] { return formName; });
}

// A screen that large letters or long captions have made larger than the display scrolls.
void Screen::FitDisplay() {
  const QSize room = screen()->availableSize() - QSize(0, WindowMemory::TitleBar);
  if (layout() == nullptr || layout()->totalMinimumSize().boundedTo(room) == layout()->totalMinimumSize()) return;
  QWidget* const focus = focusWidget();
  QWidget* const bar = layout()->menuBar();
  layout()->setMenuBar(nullptr);
  auto* const area = new QScrollArea(this);
  auto* const content = new QWidget;
  content->setLayout(layout());
  area->setWidget(content);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  auto* const whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(area);
  whole->setMenuBar(bar);
  const int line = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  resize((content->minimumSizeHint() + QSize(line, line)).boundedTo(room));
  if (focus != nullptr) focus->setFocus(Qt::OtherFocusReason);
}

void Screen::Begin() {
  Form_Load();
  loaded_ = true;
  FitDisplay();
  Form::ReadingOrder(this);
  WindowMemory::Restore(*this);
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
