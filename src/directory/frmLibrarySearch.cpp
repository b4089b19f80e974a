#include "directory/frmLibrarySearch.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "directory/LibrarySearch.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {

constexpr TextKey Keys[] = {
    {"LIBRARY_ScreenName", ""},
    {"LIBRARY_pbSearch", "cmdSearch"},
    {"LIBRARY_pbClear", "cmdClear"},
    {"LIBRARY_Found", "lblFound"},
    {"ID_LIBRARY.INSTITUTION_NAME", "lblInstitution"},
    {"ID_LIBRARY.LIBRARY", "lblLibrary"},
    {"ID_LIBRARY.CONTACT", "lblContact"},
    {"LIBRARY_FrameSimpleSearch", "fraSimpleSearch"},
    {"ID_LIBRARY.PRIME_POST_ZIPCODE", "lblZipPostalCode"},
    {"LIBRARY_MessageSimpleSearch", "lblSimpleSearch"},
    {"LIBRARY_FrameCombinationSearch", "fraCombinationSearch"},
    {"LIBRARY_MessageCombinationSearch", "lblCombinationSearch"},
    {"LIBRARY_pbOk", "cmdOK"},
    {"LIBRARY_pbCancel", "cmdCancel"},
    {"View_ID_LIBRARY.LIBRARY_SYMBOL", "grdViewSearchResults", 1},
    {"View_ID_LIBRARY.INSTITUTION_NAME", "grdViewSearchResults", 2},
    {"View_ID_LIBRARY.LIBRARY", "grdViewSearchResults", 3},
    {"View_ID_LIBRARY.CONTACT", "grdViewSearchResults", 4},
    {"View_ID_LIBRARY.PRIME_POST_ZIPCODE", "grdViewSearchResults", 5},
};

struct Heading {
  const char* caption;
  int width;  // twips
};
constexpr int MarkerWidth = 350;  // twips
constexpr Heading Headings[] = {
    {"Lib. Symbol", 1800}, {"Institution", 4200}, {"Library Name", 4200}, {"Contact", 2500}, {"Zip/Postal Code", 1500}};

// Plain quoted, as the statement of this search has it.
QString Like(const char* column, const QString& value) {
  return QString(" AND ") + column + " LIKE " + LikePattern("%" + value + "%", Sql::Plain) + " ";
}

}  // namespace

std::span<const TextKey> frmLibrarySearch::TextKeys() {
  return Keys;
}

frmLibrarySearch::frmLibrarySearch(QWidget* parent) : Screen("frmLibrarySearch", "Ostana - Library Search", parent) {
  BuildControls();
  for (TextBox* box : {txtContact, txtZipPostalCode, txtInstitution, txtLibrary}) {
    box->UpperCaseAsTyped();
    box->SetEnterAction([this] { cmdSearch->click(); });
  }
  connect(cmdSearch, &QPushButton::clicked, this, &frmLibrarySearch::cmdSearch_Click);
  connect(cmdClear, &QPushButton::clicked, this, &frmLibrarySearch::cmdClear_Click);
  connect(cmdOK, &QPushButton::clicked, this, [this] { Unload(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(grdViewSearchResults, &Grid::SelChange, this, &frmLibrarySearch::grdViewSearchResults_SelChange);
}

void frmLibrarySearch::BuildControls() {
  Form::Rows simple(fraSimpleSearch);
  simple.Wide(lblSimpleSearch);
  simple.Add("lblContact", "Contact:", txtContact);
  simple.Add("lblZipPostalCode", "Zip/Postal Code:", txtZipPostalCode);
  simple.Stretch();
  Form::Rows combination(fraCombinationSearch);
  combination.Wide(lblCombinationSearch);
  combination.Add("lblInstitution", "Institution:", txtInstitution);
  combination.Add("lblLibrary", "Library Name:", txtLibrary);
  combination.Stretch();

  grdViewSearchResults->SetColWidth(Marker, MarkerWidth);
  int column = Symbol;
  for (const Heading& heading : Headings) {
    grdViewSearchResults->SetHeading(column, heading.caption);
    grdViewSearchResults->SetColWidth(column++, heading.width);
  }
  grdViewSearchResults->HideCol(LibraryId, true);
  grdViewSearchResults->setAccessibleName("Libraries found");
  // The window keeps its shape while there is nothing to list.
  QSizePolicy keepsItsRoom = grdViewSearchResults->sizePolicy();
  keepsItsRoom.setRetainSizeWhenHidden(true);
  grdViewSearchResults->setSizePolicy(keepsItsRoom);

  auto* const frames = new QHBoxLayout;
  frames->addWidget(fraSimpleSearch);
  frames->addWidget(fraCombinationSearch, 1);
  auto* const count = new QHBoxLayout;
  count->addWidget(lblFound);
  count->addWidget(lblValue);
  count->addStretch();
  QVBoxLayout* const page = Form::Column(this);
  page->addLayout(frames);
  page->addWidget(grdViewSearchResults, 1);
  page->addLayout(count);
  page->addLayout(Form::ButtonRow({cmdSearch, cmdClear, cmdOK, cmdCancel}));
  resize(1040, 620);
}

void frmLibrarySearch::Form_Load() {
  const Hourglass hourglass;
  Procedure("frmLibrarySearch.Form_Load", this).OnFailure(Texts::NotifySupport).Run([this] {
    if (!gclsOF->CustomConfigFile().isEmpty()) ID_LoadLibrarySearchText();
    cmdOK->setEnabled(false);
    ShowResults(false);
  });
}

void frmLibrarySearch::ID_LoadLibrarySearchText() {
  const auto missing = [](const QString&) {
    return "Error accessing the 'LIBRARY.CFG' file in '" + gclsOF->ApplicationPath() +
           "'.\nMake sure the 'LIBRARY.CFG' file is in the application directory and try again.";
  };
  LoadCustomText(*this, {"frmLibrarySerach.LoadLibrarySearchText", "Library Search", missing}, TextKeys());
}

void frmLibrarySearch::ShowResults(bool shown) {
  grdViewSearchResults->setVisible(shown);
  lblFound->setVisible(shown);
  lblValue->setVisible(shown);
}

void frmLibrarySearch::cmdSearch_Click() {
  Procedure("frmLibrarySearch.cmdSearch_Click", this).OnFailure(Texts::NotifySupport).Run([this] {
    cmdOK->setEnabled(false);
    grdViewSearchResults->Clear();
    const QString criteria = Criteria();
    if (!criteria.isEmpty()) ShowRows(criteria);
  });
}

QString frmLibrarySearch::Criteria() {
  const auto given = [](const TextBox* box) {
    const QString value = box->Trimmed();
    return value == "%" ? QString() : value;
  };
  const auto refused = [this](const QString& text) {
    Tell(this, text, MessageStyle::Stop);
    return QString();
  };
  QString criteria;
  bool simple = false, combination = false;
  if (const QString value = given(txtContact); !value.isEmpty()) {
    criteria += Like("CONTACT", value);
    simple = true;
  }
  if (const QString value = given(txtZipPostalCode); !value.isEmpty()) {
    if (simple) return refused("For a Simple Search enter only ONE of the Search Field.");
    criteria += Like("PRIME_POST_ZIPCODE", value);
    simple = true;
  }
  for (const auto& [box, column] : {std::pair{txtInstitution, "INSTITUTION_NAME"}, std::pair{txtLibrary, "LIBRARY"}}) {
    const QString value = given(box);
    if (value.isEmpty()) continue;
    if (simple)
      return refused(
          "The search criteria you have entered is not valid.\n"
          "Please try again using either the Simple Search or the Combination Search alone.");
    criteria += Like(column, value);
    combination = true;
  }
  if (simple || combination) return criteria;
  return refused("Enter Search Criteria for a Simple Search or a Combination Search.");
}

void frmLibrarySearch::ShowRows(const QString& criteria) {
  {
    const Hourglass hourglass;
    Recordset rows;
    OpenRows(rows,
             "SELECT   LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT, PRIME_POST_ZIPCODE FROM " +
                 Sql::Table("ID_LIBRARY") +
                 " WHERE    (LIBRARY_TYPE IS Null OR (LIBRARY_TYPE <> N'P') AND (LIBRARY_TYPE <> N'Z'))" + criteria +
                 "ORDER By LIBRARY_SYMBOL ",
             "***** SQL error on ID_LIBRARY  (Select) *****");
    grdViewSearchResults->BeginLoad(static_cast<int>(rows.RecordCount()));
    for (; !rows.EOF_(); rows.MoveNext())
      grdViewSearchResults->LoadRow(
          {Value(rows, 1), Value(rows, 2), Value(rows, 3), Value(rows, 4), Value(rows, 5), Value(rows, 0)});
    grdViewSearchResults->EndLoad();
  }
  const int found = grdViewSearchResults->Rows() - 1;
  ShowResults(found > 0);
  if (found == 0) {
    Tell(this, "There are not records matching the Search Criteria. Try again.", MessageStyle::Information);
    return;
  }
  lblValue->setText(QString::number(found));
  grdViewSearchResults->SetRow(1);
  grdViewSearchResults->setFocus(Qt::OtherFocusReason);
}

void frmLibrarySearch::grdViewSearchResults_SelChange() {
  const int row = grdViewSearchResults->Row();
  if (grdViewSearchResults->Rows() < 2 || row < 1) return;
  gclsOF->SetLibraryId(grdViewSearchResults->Text(row, LibraryId).toInt());
  cmdOK->setEnabled(true);
}

void frmLibrarySearch::cmdClear_Click() {
  Procedure("frmLibrarySearch.cmdClear_Click", this).OnFailure(Texts::NotifySupport).Run([this] {
    for (TextBox* box : {txtContact, txtZipPostalCode, txtInstitution, txtLibrary}) box->clear();
    grdViewSearchResults->Clear();
    lblFound->hide();
    lblValue->hide();
    cmdOK->setEnabled(false);
    txtContact->setFocus(Qt::OtherFocusReason);
  });
}
