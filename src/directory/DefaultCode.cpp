#include "directory/DefaultCode.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "directory/CustomText.h"
#include "platform/controls/CodeComboBox.h"
#include "shell/Messages.h"

void DefaultCode::Configure(const CustomText& texts) {
  code_ = texts.Value(facts_.key).trimmed().toUpper();
  description_.clear();
  if (code_.isEmpty()) return;
  description_ = FirstValue(facts_.select + gclsOF->LanguageSuffix() + " FROM " + Sql::Table(facts_.table) +
                                " WHERE    " + facts_.column + " = " + Sql::National(code_),
                            facts_.failureLine);
}

void DefaultCode::Choose(QWidget* form, bool listWasRead) {
  box_->Hold(*facts_.builtIn ? QString(facts_.builtIn) : QString());
  if (code_.isEmpty() || box_->SetCode(code_)) return;
  if (!listWasRead) return box_->Hold(code_);
  if (*facts_.warning)
    Tell(form,
         facts_.warning + (description_.isEmpty() ? code_ : description_) +
             "* has not been registered and cannot be set.",
         MessageStyle::Warning);
  code_.clear();
}
