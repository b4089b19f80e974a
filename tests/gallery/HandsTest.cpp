// What hands and readers of the screen need of every dialog and every tab: keys, mnemonics, tab order, names.
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <map>

#include "platform/controls/DateBox.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "support/Walk.h"

namespace {

class HandsTest : public Walk {};

// Controls that a person sees now, in no order.
template <class T>
QList<T*> Seen(const QWidget& window) {
  QList<T*> seen = window.findChildren<T*>();
  seen.removeIf([](const QWidget* control) { return !control->isVisible(); });
  return seen;
}

// Parts that the toolkit builds into its own controls.
bool IsPartOfControl(const QWidget* control) {
  for (const QWidget* at = control->parentWidget(); at != nullptr && !at->isWindow(); at = at->parentWidget())
    if (qobject_cast<const QComboBox*>(at) || qobject_cast<const QAbstractSpinBox*>(at) ||
        (qobject_cast<const QAbstractScrollArea*>(at) && !qobject_cast<const QScrollArea*>(at)) ||
        qobject_cast<const QTabBar*>(at))
      return true;
  return false;
}

std::string NameOf(const QWidget* control) {
  return (control->objectName() + " (" + control->metaObject()->className() + ")").toStdString();
}

// --- Enter and Escape ---

TEST_F(HandsTest, EnterPressesNoButtonThatNobodyChose) {
  ThroughAll([](const QString&, QWidget& window) {
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
      EXPECT_FALSE(button->autoDefault()) << NameOf(button);
      EXPECT_FALSE(button->isDefault()) << NameOf(button);
    }
  });
}

TEST_F(HandsTest, EscapeClosesEveryDialogWithNothingToLose) {
  QString last;
  ThroughDialogs([&](const QString& place, QWidget& window) {
    if (std::exchange(last, window.objectName()) == last || last == "frmSplash") return;
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible()) << place.toStdString();
  });
}

// --- Mnemonics ---

class MnemonicsTest : public HandsTest, public testing::WithParamInterface<const char*> {};

TEST_P(MnemonicsTest, DoNotClashOnOneScreen) {
  if (*GetParam()) UseWording(GetParam());
  qsizetype mnemonics = 0;
  ThroughAll([&](const QString& place, QWidget& window) {
    std::map<QString, QStringList> byKey;
    const auto take = [&byKey](const QString& caption) {
      const QString key = QKeySequence::mnemonic(caption).toString();
      if (!key.isEmpty()) byKey[key].append(caption);
    };
    for (const QAbstractButton* button : Seen<QAbstractButton>(window)) take(button->text());
    for (const QLabel* label : Seen<QLabel>(window))
      if (label->buddy() != nullptr) take(label->text());
    for (const QGroupBox* frame : Seen<QGroupBox>(window)) take(frame->title());
    for (const QTabBar* tabs : Seen<QTabBar>(window))
      for (int tab = 0; tab < tabs->count(); ++tab) take(tabs->tabText(tab));
    for (const QMenuBar* bar : Seen<QMenuBar>(window))
      for (const QAction* menu : bar->actions()) take(menu->text());
    for (auto& [key, captions] : byKey) {
      mnemonics += captions.size();
      EXPECT_EQ(captions.size(), 1) << place.toStdString() << "  " << key.toStdString() << ": "
                                    << captions.join(" | ").toStdString();
    }
  });
  EXPECT_GT(mnemonics, 200) << "most of the captions were not looked at";
}

INSTANTIATE_TEST_SUITE_P(Wordings, MnemonicsTest, testing::Values("", "LIBRARY.FRE.CFG"),
                         [](const testing::TestParamInfo<const char*>& info) {
                           return std::string(*info.param ? "French" : "Own");
                         });

// --- Tab order ---

QRect In(const QWidget& window, const QWidget* control) {
  return {control->mapTo(&window, QPoint(0, 0)), control->size()};
}

// The widget below the nearest common container of both in which `control` stands.
const QWidget* Branch(const QWidget* control, const QWidget* other) {
  while (control->parentWidget() != nullptr && !control->parentWidget()->isAncestorOf(other))
    control = control->parentWidget();
  return control;
}

// Whether reading goes on from `a` to `b`: to the right in one row, down, or up into a column further right.
bool ReadsOn(const QWidget& window, const QWidget* a, const QWidget* b) {
  const QRect from = In(window, Branch(a, b)), to = In(window, Branch(b, a));
  constexpr int Tolerance = 8;  // pixels
  if (to.left() >= from.right() - Tolerance) return true;
  return to.top() >= from.bottom() - Tolerance || (to.top() > from.top() + Tolerance && to.left() >= from.left());
}

// Where the Tab key goes next, as the toolkit decides it; done by hand, since a real key stroke would let fields refuse
// to be left.
QWidget* NextByTab(QWidget& window, QWidget* from) {
  const auto deepest = [](QWidget* control) {
    while (control->focusProxy() != nullptr) control = control->focusProxy();
    return control;
  };
  for (QWidget* at = from->nextInFocusChain(); at != from; at = at->nextInFocusChain()) {
    QWidget* const target = deepest(at);
    const bool isPart = target != at && target->isAncestorOf(at);
    if (!isPart && at != &window && at->isVisible() && at->isEnabled() && (target->focusPolicy() & Qt::TabFocus) != 0)
      return target;
  }
  return nullptr;
}

// What Tab goes through until it comes back, from the control at the top on.
QList<QWidget*> TabChain(QWidget& window) {
  QList<QWidget*> chain;
  for (QWidget* at = NextByTab(window, &window); at != nullptr && !chain.contains(at); at = NextByTab(window, at))
    chain.append(at);
  const auto first = std::min_element(chain.begin(), chain.end(), [&window](const QWidget* a, const QWidget* b) {
    const QPoint left = In(window, a).topLeft(), right = In(window, b).topLeft();
    return std::pair(left.y(), left.x()) < std::pair(right.y(), right.x());
  });
  std::rotate(chain.begin(), first, chain.end());
  return chain;
}

// Tab enters a group of options at the one that is set; the arrow keys reach the others.
bool IsReachedByArrows(const QWidget* control, const QList<QWidget*>& chain) {
  const auto* const option = qobject_cast<const QRadioButton*>(control);
  if (option == nullptr || option->group() == nullptr || option->isChecked()) return false;
  const QList<QAbstractButton*> group = option->group()->buttons();
  return std::any_of(group.begin(), group.end(), [&](QAbstractButton* other) { return chain.contains(other); });
}

TEST_F(HandsTest, TabReachesEveryFieldInReadingOrder) {
  ThroughAll([](const QString& place, QWidget& window) {
    const QList<QWidget*> chain = TabChain(window);
    for (int at = 1; at < chain.size(); ++at)
      EXPECT_TRUE(ReadsOn(window, chain[at - 1], chain[at]))
          << place.toStdString() << ": after " << NameOf(chain[at - 1]) << " comes " << NameOf(chain[at]);
    for (QWidget* control : Seen<QWidget>(window)) {
      const auto* const box = qobject_cast<const QLineEdit*>(control);
      const bool isField = (box != nullptr && !box->isReadOnly()) || qobject_cast<const QComboBox*>(control) ||
                           qobject_cast<const QPlainTextEdit*>(control) ||
                           qobject_cast<const QAbstractButton*>(control) || qobject_cast<const Grid*>(control);
      const bool repeatsTheMenu = qobject_cast<const QToolButton*>(control) != nullptr;
      if (!isField || repeatsTheMenu || IsPartOfControl(control) || !control->isEnabled()) continue;
      EXPECT_TRUE(chain.contains(control) || IsReachedByArrows(control, chain))
          << place.toStdString() << ": Tab does not reach " << NameOf(control);
    }
  });
}

// --- Accessibility ---

QAccessible::Role ExpectedRole(const QWidget* control) {
  if (qobject_cast<const QLineEdit*>(control) || qobject_cast<const QPlainTextEdit*>(control))
    return QAccessible::EditableText;
  if (qobject_cast<const QComboBox*>(control)) return QAccessible::ComboBox;
  if (qobject_cast<const QRadioButton*>(control)) return QAccessible::RadioButton;
  if (qobject_cast<const QCheckBox*>(control)) return QAccessible::CheckBox;
  if (qobject_cast<const QPushButton*>(control)) return QAccessible::Button;
  if (qobject_cast<const QTableView*>(control)) return QAccessible::Table;
  if (qobject_cast<const QTabBar*>(control)) return QAccessible::PageTabList;
  if (qobject_cast<const QAbstractSpinBox*>(control)) return QAccessible::SpinBox;
  return QAccessible::NoRole;
}

TEST_F(HandsTest, ReadersOfTheScreenKnowEveryControl) {
  ThroughAll([](const QString& place, QWidget& window) {
    for (QWidget* control : Seen<QWidget>(window)) {
      if (control->focusPolicy() == Qt::NoFocus || IsPartOfControl(control) || control->isWindow()) continue;
      QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(control);
      ASSERT_NE(reader, nullptr) << NameOf(control);
      if (!qobject_cast<QTabBar*>(control) && !qobject_cast<QTabWidget*>(control)) {
        EXPECT_FALSE(reader->text(QAccessible::Name).trimmed().isEmpty())
            << place.toStdString() << ": no name for " << NameOf(control);
      }
      const QAccessible::Role role = ExpectedRole(control);
      EXPECT_TRUE(role == QAccessible::NoRole || reader->role() == role)
          << place.toStdString() << ": role " << reader->role() << " of " << NameOf(control);
    }
  });
}

// What a person hears of a control: its name, what else is said of it, its kind, what it stands in. A list's own name
// is its entry on some systems; the label that belongs to it is heard besides.
QStringList Heard(QWidget* control) {
  QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(control);
  const bool isList = qobject_cast<QComboBox*>(control) != nullptr;
  const QString name = isList ? control->accessibleName() : reader->text(QAccessible::Name);
  QStringList heard = {name.trimmed(), reader->text(QAccessible::Description).trimmed(),
                       QString::number(reader->role())};
  for (const QWidget* at = control->parentWidget(); at != nullptr && !at->isWindow(); at = at->parentWidget())
    if (const auto* const frame = qobject_cast<const QGroupBox*>(at)) heard.append(frame->title());
  return heard;
}

TEST_F(HandsTest, NoTwoControlsOfAScreenSoundTheSame) {
  ThroughAll([](const QString& place, QWidget& window) {
    std::map<QStringList, const QWidget*> known;
    for (QWidget* control : Seen<QWidget>(window)) {
      const bool isTool =
          qobject_cast<QToolButton*>(control) || qobject_cast<QTabBar*>(control) || qobject_cast<QTabWidget*>(control);
      const bool isHeard = control->focusPolicy() != Qt::NoFocus && control->focusProxy() == nullptr;
      if (!isHeard || IsPartOfControl(control) || control->isWindow() || isTool) continue;
      EXPECT_FALSE(Heard(control)[0].isEmpty()) << place.toStdString() << ": no name for " << NameOf(control);
      const auto [before, isNew] = known.emplace(Heard(control), control);
      EXPECT_TRUE(isNew) << place.toStdString() << ": " << NameOf(control) << " and " << NameOf(before->second)
                         << " are both " << before->first.join(", ").toStdString();
    }
  });
}

TEST_F(HandsTest, EveryListHasALabelThatBelongsToIt) {
  int lists = 0;
  ThroughAll([&](const QString& place, QWidget& window) {
    for (QComboBox* list : Seen<QComboBox>(window)) {
      if (IsPartOfControl(list)) continue;
      ++lists;
      const auto labels = QAccessible::queryAccessibleInterface(list)->relations(QAccessible::Label);
      EXPECT_FALSE(labels.isEmpty()) << place.toStdString() << ": " << NameOf(list);
    }
  });
  EXPECT_GT(lists, 40);
}

TEST_F(HandsTest, OptionsAreHeardWithWhatTheyAnswer) {
  int options = 0;
  ThroughAll([&](const QString& place, QWidget& window) {
    for (QRadioButton* option : Seen<QRadioButton>(window)) {
      ++options;
      EXPECT_FALSE(Heard(option)[1].isEmpty()) << place.toStdString() << ": " << NameOf(option);
    }
  });
  EXPECT_GT(options, 30);
}

TEST_F(HandsTest, RequiredFieldsAreBoldAndHeard) {
  int required = 0;
  ThroughAll([&](const QString& place, QWidget& window) {
    for (QLabel* label : Seen<QLabel>(window)) {
      QWidget* field = label->buddy();
      if (field == nullptr) continue;
      while (field->focusProxy() != nullptr) field = field->focusProxy();
      const bool heard = Heard(field)[1] == "Required";
      required += heard;
      EXPECT_EQ(label->font().bold(), heard) << place.toStdString() << ": " << NameOf(field);
    }
  });
  EXPECT_GT(required, 60);
}

}  // namespace
