// What can be measured of the look of all dialogs and tabs, on the displays, in the letters, colours and languages of
// one table: no window is larger than its display, commands are in sight, one direction scrolls at most, no text is cut
// where there is room, nothing lies over something else.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>

#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/WindowMemory.h"
#include "support/Palettes.h"
#include "support/Walk.h"

namespace {

struct Look {
  const char* name;
  const char* display;
  const char* wording = "";
  int points = 0;  // of the letters; 0 as they are
  Palettes::Colours colours = Palettes::Light;
};

const char* const French = "LIBRARY.FRE.CFG";

// The displays, letters, colours and languages that people work with; each of them, and the tight ones together.
const Look Looks[] = {
    {"Usual", "desk"},
    {"French", "desk", French},
    {"LargeLetters", "desk", "", 12},
    {"SmallLettersDark", "1280x800", "", 9, Palettes::Dark},
    {"Old", "1024x768"},
    {"OldFrenchLarge", "1024x768", French, 12},
    {"Laptop150", "1280x800 at 150 %"},
    {"Laptop150FrenchDark", "1280x800 at 150 %", French, 0, Palettes::Dark},
    {"Laptop200", "1280x800 at 200 %"},
    {"FullHd200French", "1920x1080 at 200 %", French},
    {"FullHd200HighContrast", "1920x1080 at 200 %", "", 11, Palettes::HighContrast},
    {"VeryLargeLetters", "1280x800", "", 18},
};

void PrintTo(const Look& look, std::ostream* out) {
  *out << look.name;
}

class GeometryTest : public Walk, public testing::WithParamInterface<Look> {
 protected:
  void SetUp() override {
    Walk::SetUp();
    before_ = QApplication::font();
    colours_ = QApplication::palette();
    UseDisplay(GetParam().display);
    QApplication::setPalette(Palettes::Of(GetParam().colours));
    if (*GetParam().wording) UseWording(GetParam().wording);
    if (GetParam().points == 0) return;
    QFont font = before_;
    font.setPointSize(GetParam().points);
    QApplication::setFont(font);
  }
  void TearDown() override {
    QApplication::setFont(before_);
    QApplication::setPalette(colours_);
    Walk::TearDown();
  }

 private:
  QFont before_;
  QPalette colours_;
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
  for (const QWidget* at = control->parentWidget(); at != nullptr && !at->isWindow(); at = at->parentWidget()) {
    const auto* const area = qobject_cast<const QAbstractScrollArea*>(at);
    if (area == nullptr) continue;
    const bool isPage = qobject_cast<const QScrollArea*>(area) != nullptr;
    if (!isPage || area->horizontalScrollBar()->maximum() > 0 || area->verticalScrollBar()->maximum() > 0) return true;
  }
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

void NoWindowIsLargerThanItsDisplay(const QWidget& window) {
  const QSize room = WindowMemory::RoomFor(window);
  EXPECT_LE(window.width(), room.width());
  EXPECT_LE(window.height(), room.height());
  for (const QWidget* control : Leaves(window))
    EXPECT_TRUE(window.rect().contains(In(window, control))) << NameOf(control);
}

// The commands of a window, and the symbol that a library is looked for by.
void CommandsAreInSight(const QWidget& window) {
  for (const char* name : {"cmdOK", "cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear", "btnClear", "cmdCancel", "cmdClose",
                           "txtLibrarySymbol"}) {
    const auto* const control = window.findChild<QWidget*>(name);
    if (control == nullptr || !control->isVisible()) continue;
    EXPECT_EQ(control->visibleRegion().boundingRect(), control->rect()) << NameOf(control);
  }
}

void OneDirectionScrollsAtMost(const QWidget& window) {
  bool across = false, down = false;
  for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
    across = across || (area->isVisible() && area->horizontalScrollBar()->maximum() > 0);
    down = down || (area->isVisible() && area->verticalScrollBar()->maximum() > 0);
  }
  EXPECT_FALSE(across && down);
}

int NoCaptionIsCut(const QWidget& window) {
  int looked = 0;
  for (const QWidget* control : Leaves(window)) {
    const auto* const label = qobject_cast<const QLabel*>(control);
    const bool isCaption = label != nullptr || qobject_cast<const QAbstractButton*>(control) != nullptr;
    if (!isCaption) continue;
    ++looked;
    if (label != nullptr && label->wordWrap()) {
      EXPECT_GE(label->height(), label->heightForWidth(label->width())) << NameOf(label);
      continue;
    }
    EXPECT_GE(control->width(), control->minimumSizeHint().width()) << NameOf(control);
    EXPECT_GE(control->height(), control->minimumSizeHint().height()) << NameOf(control);
  }
  for (const QGroupBox* frame : window.findChildren<QGroupBox*>())
    if (frame->isVisible()) {
      EXPECT_GE(frame->width(), frame->minimumSizeHint().width()) << NameOf(frame);
    }
  return looked;
}

// All tabs where the letters leave them room, else the one in front.
void TabsAreInSight(const QWidget& window, bool all) {
  for (const QTabBar* bar : window.findChildren<QTabBar*>()) {
    if (!bar->isVisible() || bar->count() == 0) continue;
    EXPECT_GE(bar->tabRect(all ? 0 : bar->currentIndex()).left(), 0);
    EXPECT_LE(bar->tabRect(all ? bar->count() - 1 : bar->currentIndex()).right(), bar->parentWidget()->width());
  }
}

void FieldsAreAsHighAsTheirLetters(const QWidget& window) {
  for (const QWidget* control : Leaves(window)) {
    const bool isField = qobject_cast<const QLineEdit*>(control) || qobject_cast<const QComboBox*>(control);
    if (!isField || control->objectName() == "txtHide") continue;  // that one is as good as hidden
    EXPECT_GE(control->height(), control->fontMetrics().height() + 2) << NameOf(control);
  }
}

void FieldsShowTheBeginningOfTheirTexts(const QWidget& window) {
  for (const TextBox* box : window.findChildren<TextBox*>())
    // The one with the focus shows where its caret is.
    if (box->isVisible() && box->window()->focusWidget() != box) {
      EXPECT_EQ(box->cursorPosition(), 0) << NameOf(box);
    }
}

void NothingLiesOverSomethingElse(const QWidget& window) {
  const QList<QWidget*> leaves = Leaves(window);
  for (int a = 0; a < leaves.size(); ++a)
    for (int b = a + 1; b < leaves.size(); ++b) {
      if (leaves[a]->isAncestorOf(leaves[b]) || leaves[b]->isAncestorOf(leaves[a])) continue;
      EXPECT_FALSE(In(window, leaves[a]).intersects(In(window, leaves[b])))
          << NameOf(leaves[a]) << " and " << NameOf(leaves[b]);
    }
}

// A list cuts no text while there is room beside its columns for all of them.
void ListsCutNoTextBesideRoom(const QWidget& window) {
  for (const Grid* grid : window.findChildren<Grid*>()) {
    if (!grid->isVisible()) continue;
    const QFontMetricsF metrics(grid->font());
    const int margins = 2 * (grid->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, grid) + 1);
    double all = grid->isColumnHidden(0) ? 0 : grid->columnWidth(0);
    std::vector<std::pair<int, double>> cut;
    for (const int col : grid->VisibleCols()) {
      double widest = 0;
      for (int row = 1; row < std::min(grid->Rows(), 100); ++row)
        widest = std::max(widest, metrics.horizontalAdvance(grid->Text(row, col)) + margins);
      const int heading = grid->horizontalHeader()->sectionSizeHint(col);
      EXPECT_GE(grid->columnWidth(col), std::min(heading, grid->viewport()->width())) << NameOf(grid) << col;
      if (widest > grid->columnWidth(col)) cut.emplace_back(col, widest - grid->columnWidth(col));
      all += std::max<double>(widest, grid->columnWidth(col));
    }
    // What all columns have and the cut ones lack besides is more than there is.
    if (!cut.empty()) {
      EXPECT_GT(all, grid->viewport()->width()) << NameOf(grid) << " column " << cut.front().first;
    }
  }
}

// Add, Update, Delete, Clear; what ends the screen stands last.
void ButtonsStandInTheOrderOfAllScreens(const QWidget& window) {
  if (window.objectName() == "frmLibrarySearch") return;
  const QWidget* before = nullptr;
  for (const char* name :
       {"cmdOK", "cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear", "btnClear", "cmdCancel", "cmdClose"}) {
    const auto* const button = window.findChild<QAbstractButton*>(name);
    if (button == nullptr || !button->isVisible()) continue;
    if (before != nullptr) {
      const QPoint from = In(window, before).center(), to = In(window, button).center();
      // Where they do not fit beside each other they go on in the next line.
      EXPECT_TRUE(to.y() > from.y() || (to.y() == from.y() && to.x() > from.x())) << name;
    }
    before = button;
  }
}

TEST_P(GeometryTest, EveryScreenFits) {
  int looked = 0;
  ThroughAll([&](const QString& place, QWidget& window) {
    SCOPED_TRACE(place.toStdString());
    // Twice: what is shown later is laid out later still.
    QApplication::processEvents();
    QApplication::processEvents();
    NoWindowIsLargerThanItsDisplay(window);
    CommandsAreInSight(window);
    OneDirectionScrollsAtMost(window);
    looked += NoCaptionIsCut(window);
    TabsAreInSight(window, GetParam().points == 0 && window.width() >= 1000);
    FieldsAreAsHighAsTheirLetters(window);
    FieldsShowTheBeginningOfTheirTexts(window);
    NothingLiesOverSomethingElse(window);
    ListsCutNoTextBesideRoom(window);
    ButtonsStandInTheOrderOfAllScreens(window);
  });
  EXPECT_GT(looked, 150);
}

INSTANTIATE_TEST_SUITE_P(Looks, GeometryTest, testing::ValuesIn(Looks),
                         [](const testing::TestParamInfo<Look>& info) { return std::string(info.param.name); });

}  // namespace
