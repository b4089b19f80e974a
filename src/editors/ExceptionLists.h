#pragma once

#include <initializer_list>

class CodeComboBox;

// Lists that several sub-tabs of "Exceptions" offer. An AdoError passes to the caller; the lists then hold "(none)".
namespace ExceptionLists {

// Exception codes that can reject a request (all types but N and T), by description, "(none)" first. One statement
// fills all boxes.
void FillRejectTypes(std::initializer_list<CodeComboBox*> boxes);

}  // namespace ExceptionLists
