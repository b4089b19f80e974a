#include "reliability/Readings.h"

#include <QRegularExpression>
#include <QTabWidget>

namespace {

// Buttons that write, close or end; the writing ones are actions of their own.
const QRegularExpression NoGesture("^(cmd(Add|Update|Delete|OK|Sequence|Close|Cancel|Exit|Save.*|Help)|qt_.*|)$");

int TabOf(const WritingScreen& screen) {
  static const QRegularExpression tab("^tab-(\\d+)-");
  const QRegularExpressionMatch match = tab.match(screen.place);
  return match.hasMatch() ? match.captured(1).toInt() : -1;
}

// The program runs, another tab is on show.
void Begin(ReadingDesk& desk, const WritingScreen& screen) {
  const int tab = TabOf(screen);
  if (tab < 0) return desk.LogOn();
  desk.EnterTab(tab == frmTabulon::PrintersTab ? frmTabulon::RequestTypeTab : frmTabulon::PrintersTab);
}

// The screen before this one in its place, in a ring; null where it is alone.
const WritingScreen* SisterOf(const WritingScreen& screen) {
  std::vector<const WritingScreen*> place;
  for (const WritingScreen& other : WritingScreens())
    if (QString(other.place) == screen.place && &other != &screen) place.push_back(&other);
  if (place.empty()) return nullptr;
  const WritingScreen* before = place.back();
  for (const WritingScreen* other : place) {
    if (other > &screen) break;
    before = other;
  }
  return before;
}

// The screens of a place have their controls in common.
bool IsFirstInPlace(const WritingScreen& screen) {
  const auto first = std::find_if(WritingScreens().begin(), WritingScreens().end(),
                                  [&](const auto& other) { return QString(other.place) == screen.place; });
  return &*first == &screen;
}

// --- Gestures ---

using Gesture = std::pair<QString, std::function<void(ReadingDesk&)>>;

// What a user can do on the open screen without writing.
std::vector<Gesture> Gestures(const ReadingDesk& desk) {
  std::vector<Gesture> gestures;
  for (const Grid* grid : desk.Window()->findChildren<Grid*>()) {
    const QString name = grid->objectName();
    if (!grid->isVisible() || grid->Rows() < 3) continue;
    gestures.emplace_back("row of " + name, [name](ReadingDesk& at) { at.SelectRow(name, at.Row(name) == 2 ? 1 : 2); });
  }
  for (const CodeComboBox* list : desk.Window()->findChildren<CodeComboBox*>()) {
    const QString name = list->objectName();
    if (!list->isVisible() || !list->isEnabled() || list->Count() < 2) continue;
    gestures.emplace_back("choice from " + name, [name](ReadingDesk& at) {
      const auto* const found = at.Find<CodeComboBox>(name);
      at.ChooseAt(name, found->Index() + 1 < found->Count() ? found->Index() + 1 : 0);
    });
  }
  for (const QAbstractButton* button : desk.Window()->findChildren<QAbstractButton*>()) {
    const QString name = button->objectName();
    if (!button->isVisible() || !button->isEnabled() || NoGesture.match(name).hasMatch()) continue;
    gestures.emplace_back(name, [name](ReadingDesk& at) { at.Click(name); });
  }
  for (const QTabWidget* tabs : desk.Window()->findChildren<QTabWidget*>()) {
    const QString name = tabs->objectName();
    if (name == u"sstabtables" || !tabs->isVisible()) continue;
    for (int index = 0; index < tabs->count(); ++index)
      if (index != tabs->currentIndex() && tabs->isTabEnabled(index))
        gestures.emplace_back(name + ' ' + QString::number(index) + " and back",
                              [name, index, own = tabs->currentIndex()](ReadingDesk& at) {
                                at.SelectTab(name, index);
                                at.SelectTab(name, own);
                              });
  }
  return gestures;
}

// Those that read and do not write, found by trying them one behind the other.
std::vector<Gesture> ReadingGestures(const WritingScreen& screen, const std::function<void(ReadingDesk&)>& open) {
  auto desk = std::make_unique<ReadingDesk>();
  open(*desk);
  std::vector<Gesture> reading;
  for (const Gesture& gesture : Gestures(*desk)) {
    if (!IsInFront(*desk, screen)) {
      desk.reset();
      desk = std::make_unique<ReadingDesk>();
      open(*desk);
    }
    desk->Reads().Count();
    ReadingDesk::Attempt([&] { gesture.second(*desk); });
    if (desk->Reads().Reads() > 0 && !desk->Reads().Wrote()) reading.push_back(gesture);
  }
  return reading;
}

}  // namespace

bool IsInFront(const ReadingDesk& desk, const WritingScreen& screen) {
  const QWidget* const window = desk.Window();
  if (!window || !window->isVisible()) return false;
  static const QRegularExpression sub("-\\d+$");
  const QString form = TabOf(screen) >= 0 ? QString("frmTabulon") : QString(screen.place).remove(sub);
  return window->objectName() == form;
}

std::vector<Reading> ReadingsOf(const WritingScreen& screen) {
  const auto begin = [&screen](ReadingDesk& desk) { Begin(desk, screen); };
  const auto open = [&screen](ReadingDesk& desk) { screen.open(desk); };
  const auto opened = [=](ReadingDesk& desk) {
    begin(desk);
    open(desk);
  };
  std::vector<Reading> readings{{"opening", begin, open}};
  if (TabOf(screen) >= 0)
    readings.push_back({"coming back",
                        [=](ReadingDesk& desk) {
                          opened(desk);
                          begin(desk);
                        },
                        open});
  if (const WritingScreen* const sister = SisterOf(screen))
    readings.push_back({QString("coming from ") + sister->name,
                        [=](ReadingDesk& desk) {
                          begin(desk);
                          sister->open(desk);
                        },
                        open});
  if (IsFirstInPlace(screen))
    for (const auto& [name, act] : ReadingGestures(screen, opened)) readings.push_back({name, opened, act});
  for (const WritingAction& action : screen.Actions())
    readings.push_back({action.name,
                        [=](ReadingDesk& at) {
                          begin(at);
                          action.prepare(at, 1);
                        },
                        action.press});
  return readings;
}
