#include "directory/FaxInput.h"

#include <QCheckBox>
#include <algorithm>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/TextBox.h"
#include "shell/Messages.h"

namespace {
constexpr char16_t Backspace = 8, Enter = 13, NoKey = 0;
}

FaxInput::FaxInput(TextBox* box, QCheckBox* free, QString enterMessage)
    : QObject(box), box_(box), free_(free), enterMessage_(std::move(enterMessage)) {
  // One width for both lengths: the form keeps its shape when the tick comes and goes.
  box_->setMinimumWidth(Form::FieldWidth(box_, FreeLength));
  box_->SetKeyPress([this](char16_t key) { return KeyPress(key); });
  connect(box_, &TextBox::Edited, this, &FaxInput::Change);
  connect(free_, &QCheckBox::toggled, this, &FaxInput::SetLimit);
  SetLimit();
}

bool FaxInput::IsShaped(const QString& text) {
  return text.size() >= FormattedLength && text[0] == '(' && text[4] == ')' && text[5] == ' ' && text[9] == '-';
}

bool FaxInput::IsFormatting() const {
  return !free_->isChecked();
}

bool FaxInput::MayLeave() const {
  return box_->Text().isEmpty() || !IsFormatting() || IsShaped(box_->Text());
}

void FaxInput::Reset() {
  free_->setChecked(!gclsOF->FaxAvailable());
}

void FaxInput::Show(const QString& stored) {
  // The limit comes behind the number, which it would cut.
  box_->setMaxLength(std::max(FreeLength, static_cast<int>(stored.size())));
  box_->SetText(stored);
  free_->setChecked(!gclsOF->FaxAvailable() || (!stored.isEmpty() && !IsShaped(stored)));
  SetLimit();
}

void FaxInput::SetLimit() {
  box_->setMaxLength(std::max(IsFormatting() ? FormattedLength : FreeLength, static_cast<int>(box_->Text().size())));
}

void FaxInput::TellUnfinished() {
  Tell(box_->window(), enterMessage_, MessageStyle::Stop);
}

char16_t FaxInput::KeyPress(char16_t key) {
  if (!IsFormatting()) return key;
  backspace_ = key == Backspace;
  // Selected text is about to be replaced.
  const auto length = box_->Text().size() - box_->selectedText().size();
  if (key == Enter) {
    if (box_->Text().isEmpty() || box_->Text().size() >= FormattedLength) return key;
    TellUnfinished();
    return NoKey;
  }
  const bool digit = key >= u'0' && key <= u'9';
  if (length >= FormattedLength || digit || key == Backspace) return key;
  Prompts().Beep();
  return NoKey;
}

// Each mark comes when the character behind it has been typed, or where it stands at the end of its group.
void FaxInput::Change() {
  if (!IsFormatting() || backspace_) return;
  const QString text = box_->Text();
  if (text.size() == 1 && text[0] != '(') {
    Put("(" + text, 2);
  } else if (text.size() == 5 && text[4] != ')') {
    Put(text.left(4) + ") " + text.mid(4), 7);
  } else if (text.size() == 6 && text[5] != ' ') {
    Put(text.left(5) + " " + text.mid(5), 8);
  } else if (text.size() == 10 && text[9] != '-') {
    Put(text.left(9) + "-" + text.mid(9), 11);
  }
}

void FaxInput::Put(const QString& text, int caret) {
  box_->SetText(text);
  box_->setCursorPosition(caret);
}
