#include "reliability/ReadingDesk.h"

#include <gtest/gtest-spi.h>

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "shell/Screen.h"

Glances::Glances() {
  qApp->installEventFilter(this);
}

bool Glances::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show) return false;
  auto* const screen = dynamic_cast<Screen*>(watched);
  // What the desk opens has no owner.
  if (screen && screen->parentWidget()) QTimer::singleShot(0, screen, [screen] { screen->Unload(); });
  return false;
}

ReadingDesk::ReadingDesk() {
  SetUp();
  Database().OtherClient();  // before the reads can fail
  reads_ = std::make_unique<FailingReads>();
}

ReadingDesk::~ReadingDesk() {
  TearDown();
}

DatabaseContents ReadingDesk::Contents(const QStringList& tables) {
  if (tables.isEmpty()) return ContentsOf(Database().OtherClient());
  DatabaseContents contents;
  for (const QString& table : tables) contents[table] = ContentsOf(Database().OtherClient(), table);
  return contents;
}

void ReadingDesk::Attempt(const std::function<void()>& act) {
  testing::TestPartResultArray objections;
  const testing::ScopedFakeTestPartResultReporter reporter(
      testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &objections);
  act();
}

bool ReadingDesk::CanClick(const QString& name) const {
  const auto* const button = Window() ? Window()->findChild<QPushButton*>(name) : nullptr;
  return button && button->isVisible() && button->isEnabled();
}

bool ReadingDesk::CanTrigger(const QString& name) const {
  const auto* const entry = Window() ? Window()->findChild<QAction*>(name) : nullptr;
  return entry && entry->isVisible() && entry->isEnabled();
}

void ReadingDesk::PressKeyOf(const QString& name) {
  const auto* const button = Find<QPushButton>(name);
  const qsizetype mark = button->text().indexOf('&');
  ASSERT_GE(mark, 0) << name.toStdString() << " has no key";
  QTest::keyClick(Window(), button->text()[mark + 1].toLatin1(), Qt::AltModifier);
}
