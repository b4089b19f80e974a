// What can be measured of the look of all dialogs and tabs: no text is cut, nothing lies over something else or outside
// its window; in the program's own words, in those of a custom text file, and in large letters.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>

#include "platform/controls/Grid.h"
#include "support/Walk.h"

namespace {

struct Dress {
  const char* name;
  const char* wording;
  int points;  // of the letters; 0 as they are
};

void PrintTo(const Dress& dress, std::ostream* out) {
  *out << dress.name;
}

class GeometryTest : public Walk, public testing::WithParamInterface<Dress> {
 protected:
  void SetUp() override {
    Walk::SetUp();
    before_ = QApplication::font();
    if (*GetParam().wording) UseWording(GetParam().wording);
    if (GetParam().points == 0) return;
    QFont font = before_;
    font.setPointSize(GetParam().points);
    QApplication::setFont(font);
  }
  void TearDown() override {
    QApplication::setFont(before_);
    Walk::TearDown();
  }

  // Laid out as a person sees it.
  void ThroughAllLaidOut(const Look& look) {
    ThroughAll([&](const QString& place, QWidget& window) {
      QApplication::processEvents();
      look(place, window);
    });
  }

 private:
  QFont before_;
};

std::string NameOf(const QWidget* control) {
  QString text;
  if (const auto* const label = qobject_cast<const QLabel*>(control)) text = label->text();
  if (const auto* const button = qobject_cast<const QAbstractButton*>(control)) text = button->text();
  return QString("%1 (%2) \"%3\"").arg(control->objectName(), control->metaObject()->className(), text).toStdString();
}

QRect In(const QWidget& window, const QWidget* control) {
  return {control->mapTo(&window, QPoint(0, 0)), control->size()};
}

// What scrolls may lie outside of what is seen of it.
bool Scrolls(const QWidget* control) {
  for (const QWidget* at = control->parentWidget(); at != nullptr && !at->isWindow(); at = at->parentWidget())
    if (qobject_cast<const QAbstractScrollArea*>(at) != nullptr) return true;
  return false;
}

// Controls that a person sees; not the parts that the toolkit builds into them.
QList<QWidget*> Leaves(const QWidget& window) {
  QList<QWidget*> leaves;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    const bool isLeaf = qobject_cast<QLabel*>(control) || qobject_cast<QAbstractButton*>(control) ||
                        qobject_cast<QLineEdit*>(control) || qobject_cast<QComboBox*>(control) ||
                        qobject_cast<Grid*>(control) || qobject_cast<QTabBar*>(control);
    const bool isPart = qobject_cast<QComboBox*>(control->parentWidget()) != nullptr ||
                        qobject_cast<QTabBar*>(control->parentWidget()) != nullptr ||
                        control->objectName().startsWith("qt_");
    if (isLeaf && !isPart && control->isVisible() && !Scrolls(control)) leaves.append(control);
  }
  return leaves;
}

TEST_P(GeometryTest, NoCaptionIsCut) {
  int looked = 0;
  ThroughAllLaidOut([&](const QString& place, QWidget& window) {
    for (const QWidget* control : Leaves(window)) {
      const auto* const label = qobject_cast<const QLabel*>(control);
      const bool isCaption = label != nullptr || qobject_cast<const QAbstractButton*>(control) != nullptr;
      if (!isCaption) continue;
      ++looked;
      if (label != nullptr && label->wordWrap()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width()))
            << place.toStdString() << ": " << NameOf(label);
        continue;
      }
      EXPECT_GE(control->width(), control->minimumSizeHint().width()) << place.toStdString() << ": " << NameOf(control);
      EXPECT_GE(control->height(), control->minimumSizeHint().height())
          << place.toStdString() << ": " << NameOf(control);
    }
    for (const QGroupBox* frame : window.findChildren<QGroupBox*>()) {
      if (!frame->isVisible()) continue;
      EXPECT_GE(frame->width(), frame->minimumSizeHint().width()) << place.toStdString() << ": " << NameOf(frame);
    }
  });
  EXPECT_GT(looked, 500);
}

TEST_P(GeometryTest, EveryTabIsInSight) {
  ThroughAllLaidOut([](const QString& place, QWidget& window) {
    for (const QTabBar* bar : window.findChildren<QTabBar*>()) {
      if (!bar->isVisible()) continue;
      // Large letters may make the bar scroll; the page in front has its tab in sight.
      const int first = GetParam().points > 0 ? bar->currentIndex() : 0;
      const int last = GetParam().points > 0 ? bar->currentIndex() : bar->count() - 1;
      EXPECT_GE(bar->tabRect(first).left(), 0) << place.toStdString();
      EXPECT_LE(bar->tabRect(last).right(), bar->parentWidget()->width()) << place.toStdString();
    }
  });
}

TEST_P(GeometryTest, FieldsAndButtonsAreAsHighAsTheirLetters) {
  ThroughAllLaidOut([](const QString& place, QWidget& window) {
    for (const QWidget* control : Leaves(window)) {
      const bool isField = qobject_cast<const QLineEdit*>(control) || qobject_cast<const QComboBox*>(control);
      if (!isField || control->objectName() == "txtHide") continue;  // that one is as good as hidden
      EXPECT_GE(control->height(), control->fontMetrics().height() + 2)
          << place.toStdString() << ": " << NameOf(control);
    }
  });
}

TEST_P(GeometryTest, NothingLiesOverSomethingElse) {
  ThroughAllLaidOut([](const QString& place, QWidget& window) {
    const QList<QWidget*> leaves = Leaves(window);
    for (int a = 0; a < leaves.size(); ++a)
      for (int b = a + 1; b < leaves.size(); ++b) {
        if (leaves[a]->isAncestorOf(leaves[b]) || leaves[b]->isAncestorOf(leaves[a])) continue;
        EXPECT_FALSE(In(window, leaves[a]).intersects(In(window, leaves[b])))
            << place.toStdString() << ": " << NameOf(leaves[a]) << " and " << NameOf(leaves[b]);
      }
  });
}

TEST_P(GeometryTest, NothingLiesOutsideItsWindowAndNoWindowOutsideItsScreen) {
  ThroughAllLaidOut([](const QString& place, QWidget& window) {
    const QSize room = window.screen()->availableSize() - QSize(0, 32);
    EXPECT_LE(window.width(), room.width()) << place.toStdString();
    EXPECT_LE(window.height(), room.height()) << place.toStdString();
    for (const QWidget* control : Leaves(window))
      EXPECT_TRUE(window.rect().contains(In(window, control))) << place.toStdString() << ": " << NameOf(control);
  });
}

TEST_P(GeometryTest, ButtonsOfOneRowAreInStepAndInTheOrderOfAllScreens) {
  // Add, Update, Delete, Clear; what ends the screen stands last.
  const QStringList order = {"cmdOK",    "cmdAdd",   "cmdUpdate", "cmdDelete",
                             "cmdClear", "btnClear", "cmdCancel", "cmdClose"};
  ThroughAllLaidOut([&](const QString& place, QWidget& window) {
    const QWidget* before = nullptr;
    for (const QString& name : order) {
      const auto* const button = window.findChild<QAbstractButton*>(name);
      if (button == nullptr || !button->isVisible() || window.objectName() == "frmLibrarySearch") continue;
      if (before != nullptr) {
        EXPECT_EQ(In(window, before).center().y(), In(window, button).center().y())
            << place.toStdString() << name.toStdString();
        EXPECT_LT(In(window, before).right(), In(window, button).left()) << place.toStdString() << name.toStdString();
      }
      before = button;
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Looks, GeometryTest,
                         testing::Values(Dress{"Plain", "", 0}, Dress{"French", "LIBRARY.FRE.CFG", 0},
                                         Dress{"LargeLetters", "", 12}),
                         [](const testing::TestParamInfo<Dress>& info) { return std::string(info.param.name); });

}  // namespace
