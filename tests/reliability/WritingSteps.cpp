#include "reliability/WritingSteps.h"

#include <QSet>
#include <QTabWidget>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/ado/Recordset.h"
#include "platform/controls/Grid.h"

namespace {

void SelectInner(ReliabilityDesk& desk, const char* inner, int index) {
  if (inner && desk.Find<QTabWidget>(inner)->currentIndex() != index) desk.SelectTab(inner, index);
}

bool IsInFront(const ReliabilityDesk& desk, const QString& form) {
  const QWidget* const front = desk.Window();
  return front && front->objectName() == form && front->isVisible();
}

QSet<QString> Stored(ReliabilityDesk& desk, const QString& columns, const QString& table) {
  QSet<QString> values;
  Recordset rows;
  rows.Open(desk.Database().OtherClient(), "SELECT " + columns + " FROM " + table);
  for (; !rows.EOF_(); rows.MoveNext()) {
    QStringList value;
    for (int column = 0; column < rows.FieldCount(); ++column) value += rows.Fields(column).Value().toUpper();
    values.insert(value.join('\t'));
  }
  return values;
}

}  // namespace

namespace Steps {

Step Button(const char* name) {
  return [name](ReliabilityDesk& desk) { desk.Click(name); };
}

Step Entry(const char* menuEntry) {
  return [menuEntry](ReliabilityDesk& desk) { desk.Trigger(menuEntry); };
}

Step Then(Step first, Step second) {
  return [=](ReliabilityDesk& desk) {
    first(desk);
    second(desk);
  };
}

Step AndClose(const char* button) {
  return Then(Button(button), Button("cmdClose"));
}

QString Mark(int round) {
  return "m" + QString::number(round);
}

// --- Opening ---

void FirstRow(ReliabilityDesk& desk, const char* grid) {
  if (desk.Find<Grid>(grid)->Row() < 1 && desk.Rows(grid) > 1) desk.SelectRow(grid, 1);
}

Step Tab(int tab, const char* grid, const char* inner, int innerTab) {
  return [=](ReliabilityDesk& desk) {
    desk.EnterTab(tab);
    SelectInner(desk, inner, innerTab);
    FirstRow(desk, grid);
  };
}

Step TabWithChoice(int tab, const char* combo, const char* code, const char* grid, const char* inner, int innerTab) {
  return [=](ReliabilityDesk& desk) {
    desk.EnterTab(tab);
    SelectInner(desk, inner, innerTab);
    auto* const list = desk.Find<CodeComboBox>(combo);
    const bool chosen = list->Code() == QLatin1String(code) || list->Text() == QLatin1String(code);
    if (!chosen || desk.Rows(grid) < 2) desk.ChooseCode(combo, code);
    FirstRow(desk, grid);
  };
}

Step Dialog(const char* form, const char* grid, const char* inner, int innerTab) {
  return [=](ReliabilityDesk& desk) {
    desk.OpenDialog(form);
    SelectInner(desk, inner, innerTab);
    if (grid) FirstRow(desk, grid);
  };
}

Step ListOfLibrary(const char* form, const char* grid) {
  return [=](ReliabilityDesk& desk) {
    glngNCIPLibraryId = ReliabilityDesk::Auenfels;
    if (IsInFront(desk, form)) desk.Click("cmdCancel");
    desk.OpenLibraryScreen(form);
    FirstRow(desk, grid);
  };
}

Step OfLibrary(const char* form) {
  return [=](ReliabilityDesk& desk) {
    if (IsInFront(desk, form) && gclsOF->LibraryId() != ReliabilityDesk::Auenfels) desk.LeaveUnsaved();
    desk.OpenLibraryScreen(form);
  };
}

Step OfLibrary(const char* form, qint32 library) {
  return [=](ReliabilityDesk& desk) {
    glngNCIPLibraryId = library;
    desk.OpenLibraryScreen(form, library);
  };
}

// --- Entering ---

Preparation Another(const char* combo) {
  return [combo](ReliabilityDesk& desk, int) {
    auto* const list = desk.Find<CodeComboBox>(combo);
    ASSERT_GT(list->Count(), 1) << combo;
    int index = list->Index() + 1;
    if (index >= list->Count()) index = 0;
    while (index < list->Count() && list->CodeAt(index).isEmpty()) ++index;
    ASSERT_LT(index, list->Count()) << combo;
    desk.ChooseAt(combo, index);
  };
}

Preparation FreePair(const char* one, const char* other, const char* table, const char* columnOfOne,
                     const char* columnOfOther) {
  return [=](ReliabilityDesk& desk, int) {
    const QSet<QString> taken = Stored(desk, QString(columnOfOne) + ", " + columnOfOther, table);
    for (int i = 0; i < desk.Find<CodeComboBox>(one)->Count(); ++i) {
      const QString first = desk.Find<CodeComboBox>(one)->CodeAt(i);
      if (first.isEmpty()) continue;
      const auto* const list = desk.Find<CodeComboBox>(other);
      for (int j = 0; j < list->Count(); ++j) {
        const QString second = list->CodeAt(j);
        if (second.isEmpty() || taken.contains((first + '\t' + second).toUpper())) continue;
        desk.ChooseAt(one, i);
        desk.ChooseAt(other, desk.Find<CodeComboBox>(other)->IndexOfCode(second));
        return;
      }
    }
    FAIL() << "every pair is taken in " << table;
  };
}

Preparation FreeEntry(const char* combo, const char* table, const char* column) {
  return [=](ReliabilityDesk& desk, int) {
    const QSet<QString> taken = Stored(desk, column, table);
    const auto* const list = desk.Find<CodeComboBox>(combo);
    for (int index = 0; index < list->Count(); ++index) {
      const QString code = list->CodeAt(index);
      if (!code.isEmpty() && !taken.contains(code.toUpper())) return desk.ChooseAt(combo, index);
    }
    FAIL() << "every code is taken in " << table;
  };
}

Preparation Number(const char* box) {
  return [box](ReliabilityDesk& desk, int round) { desk.Type(box, QString::number(1 + round % 99) + ".5"); };
}

Preparation Both(Preparation one, Preparation other) {
  return [=](ReliabilityDesk& desk, int round) {
    one(desk, round);
    other(desk, round);
  };
}

QString FreeCode(ReliabilityDesk& desk, const QString& box, const QString& table, const QString& column) {
  const QSet<QString> taken = Stored(desk, column, table);
  const auto* const control = desk.Find<TextBox>(box);
  const int limit = control->maxLength() >= 3 ? 3 : control->maxLength();
  const QString letters = "ZYXWVUTSRQPONMLKJIHGFEDCBA9876543210";
  int candidates = 1;
  for (int place = 0; place < limit; ++place) candidates *= int(letters.size());
  for (int candidate = 0; candidate < candidates; ++candidate) {
    QString code;
    for (int place = 0, rest = candidate; place < limit; ++place, rest /= int(letters.size()))
      code += letters[rest % letters.size()];
    if (!taken.contains(code)) return code;
  }
  ADD_FAILURE() << "every code is taken in " << table.toStdString();
  return {};
}

}  // namespace Steps
