#include "shell/Editing.h"

#include <QEvent>

#include "core/ModuleState.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/TextInput.h"

namespace {

template <class Box>
std::function<void()> Trimmer(Box* box, Trim trim) {
  return [box, trim] {
    if (trim == Trim::None) return;
    const QString text = box->Trimmed();
    box->SetText(trim == Trim::BothUpper ? TextInput::Upper(text) : text);
  };
}

// The focus that comes with the window's activation, after a message has closed, is passed on too.
class FocusPasser : public QObject {
 public:
  FocusPasser(QWidget* box, QWidget* next) : QObject(box), next_(next) { box->installEventFilter(this); }
  bool eventFilter(QObject* box, QEvent* event) override {
    if (event->type() != QEvent::FocusIn) return false;
    box->event(event);
    next_->setFocus();
    return true;
  }

 private:
  QWidget* next_;
};

}  // namespace

FieldList& FieldList::Add(TextBox* box, int column, Trim trim) {
  fields_.push_back({box, column, [box] { return box->Text(); }, [box](const QString& text) { box->SetText(text); },
                     Trimmer(box, trim), [box] { box->SetText({}); }});
  return *this;
}

FieldList& FieldList::Add(MemoBox* box, int column, Trim trim) {
  fields_.push_back({box, column, [box] { return box->Text(); }, [box](const QString& text) { box->SetText(text); },
                     Trimmer(box, trim), [box] { box->SetText({}); }});
  return *this;
}

FieldList& FieldList::Add(OptionGroup* pair, int column, const QString& no) {
  fields_.push_back(
      {nullptr, column, [pair, no] { return pair->IsSet(0)   ? QString("Y")
                                            : pair->IsSet(1) ? no
                                                             : QString(); },
       [pair](const QString& text) { pair->Select(text == "Y" ? 0 : 1); }, [] {}, [pair] { pair->Unset(); }});
  return *this;
}

FieldList& FieldList::AddText(CodeComboBox* box, int column) {
  fields_.push_back({box, column, [box] { return box->Text(); }, [box](const QString& text) { box->SetText(text); },
                     [] {}, [box] { box->SetIndex(0); }});
  return *this;
}

FieldList& FieldList::AddCode(CodeComboBox* box, int column) {
  fields_.push_back({box, column, [box] { return box->Code(); },
                     [box](const QString& code) {
                       if (code.isEmpty() || !box->SetCode(code)) box->SetIndex(0);
                     },
                     [] {}, [box] { box->SetIndex(0); }});
  return *this;
}

void FieldList::FillFromRow(const Grid& grid, int row) const {
  const FillingFields filling;
  for (const BoundField& field : fields_) field.set(grid.Text(row, field.column));
}

bool FieldList::EqualsRow(const Grid& grid, int row) const {
  for (const BoundField& field : fields_)
    if (field.get() != grid.Text(row, field.column)) return false;
  return true;
}

void FieldList::WriteRow(Grid& grid, int row) const {
  for (const BoundField& field : fields_) grid.SetText(row, field.column, field.get());
}

void FieldList::TrimAll() const {
  for (const BoundField& field : fields_) field.trim();
}

void FieldList::Clear() const {
  const FillingFields filling;
  for (const BoundField& field : fields_) field.clear();
}

void CompareWithRow(Record& record, const QString& text, const Grid* grid, int column) {
  gstrErrorMessage.clear();
  if (!gbFillingFields) record.Compared(grid->Row() == 0 || grid->Text(grid->Row(), column) != text);
}

void WatchField(Record& record, TextBox* box, const Grid* grid, int column) {
  QObject::connect(box, &TextBox::Change, box,
                   [&record, grid, column](const QString& text) { CompareWithRow(record, text, grid, column); });
}

void WatchField(Record& record, MemoBox* box, const Grid* grid, int column) {
  QObject::connect(box, &MemoBox::Change, box,
                   [&record, box, grid, column] { CompareWithRow(record, box->Text(), grid, column); });
}

void WatchAnyChange(Record& record, TextBox* box) {
  QObject::connect(box, &TextBox::Change, box, [&record] {
    gstrErrorMessage.clear();
    if (!gbFillingFields) record.Touched();
  });
}

void PassFocusOn(TextBox* box, QWidget* next) {
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::ClickFocus);
  new FocusPasser(box, next);
}

void KeepRowOnSort(Grid* grid) {
  QObject::connect(grid, &Grid::BeforeSort, grid, [] { gbSkipGridEvents = true; });
  QObject::connect(grid, &Grid::AfterSort, grid, [] { gbSkipGridEvents = false; });
}
