#include "editors/MethodTables.h"

namespace {

enum Flag : size_t { ActiveFlag, PrintFlag, DisplayFlag };

}  // namespace

const MethodTable& DeliveryMethods() {
  static const MethodTable methods{
      .grid = "grd5aTable",
      .codeBox = "txt5aCode",
      .descriptionBox = "txt5aDescription",
      .descriptionLimit = 20,
      .descriptionTwips = 7400,
      .accessibleName = "Delivery methods",
      .table = "ID_DELIV_METHOD",
      .codeColumn = "DELIV_METHOD",
      .flags = {{"fra5aActive", "opt5aActive", "Active:", "ACTIVE_FLAG", "Active"},
                {"fra5aPrint", "opt5aPrint", "Print:", "PRINT_FLAG", "Print"},
                {"fra5aDisplay", "opt5aDisplay", "Display for Patron:", "WEB_FLAG", "Patron", true}},
      .updateOrder = {DisplayFlag, ActiveFlag, PrintFlag},
      .updateYes = "N'Y'",
      .updateNo = "N'N'",  // the only table that keeps a "no"
      .mailIsAlwaysActive = true,
      .buttonMode = "A",
  };
  return methods;
}

const MethodTable& MessagingMethods() {
  static const MethodTable methods{
      .grid = "grd5bTable",
      .codeBox = "txt5bCode",
      .descriptionBox = "txt5bDescription",
      .descriptionLimit = 20,
      .descriptionTwips = 6500,
      .accessibleName = "Messaging methods",
      .table = "ID_MSG_METHOD",
      .codeColumn = "MSG_METHOD",
      .flags = {{"fra5bActive", "opt5bActive", "Active:", "ACTIVE_FLAG", "Active"},
                {"fra5bPrint", "opt5bPrint", "Print:", "PRINT_FLAG", "Print"},
                {"fra5bDisplay", "opt5bDisplay", "Display for Patron:", "WEB_FLAG", "Patron"}},
      .updateOrder = {DisplayFlag, ActiveFlag, PrintFlag},
      .updateYes = "'Y'",  // without the N
      .updateNo = "NULL",
      .mailIsAlwaysActive = true,
      .buttonMode = {},
  };
  return methods;
}

const MethodTable& RequestMethods() {
  static const MethodTable methods{
      .grid = "grd5cTable",
      .codeBox = "txt5cCode",
      .descriptionBox = "txt5cDescription",
      .descriptionLimit = 50,
      .descriptionTwips = 8500,
      .accessibleName = "Request methods",
      .table = "ID_REQ_METHOD",
      .codeColumn = "REQ_METHOD",
      .flags = {{"fra5cActive", "opt5cActive", "Active:", "ACTIVE_FLAG", "Active"}},
      .updateOrder = {ActiveFlag},
      .updateYes = "N'Y'",
      .updateNo = "NULL",
      .mailIsAlwaysActive = false,
      .buttonMode = {},
  };
  return methods;
}
