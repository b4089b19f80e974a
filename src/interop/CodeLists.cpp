#include "interop/CodeLists.h"

#include <QCollator>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/CodeComboBox.h"

namespace CodeLists {

namespace {

struct Entry {
  QString code;
  QString description;
};

std::vector<Entry> Read(const QString& sql, const QString& failureLine, const QString& code) {
  std::vector<Entry> entries;
  ForEachRow(sql, failureLine, [&](Recordset& rows) {
    entries.push_back({Value(rows, code).trimmed(), Value(rows, DescriptionColumn(code)).trimmed()});
  });
  return entries;
}

void Put(CodeComboBox& box, const std::vector<Entry>& entries) {
  box.Clear();
  box.AddNone(None);
  for (const Entry& entry : entries) box.Add(entry.description, entry.code);
  box.SetIndex(0);
}

}  // namespace

QString DescriptionColumn(const QString& code) {
  return code + "_DESC" + gclsOF->LanguageSuffix();
}

void Fill(CodeComboBox& box, const QString& sql, const QString& failureLine, const QString& code) {
  Put(box, Read(sql, failureLine, code));
}

void FillSorted(CodeComboBox& box, const QString& sql, const QString& failureLine, const QString& code) {
  std::vector<Entry> entries = Read(sql, failureLine, code);
  QCollator collator;
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  std::stable_sort(entries.begin(), entries.end(), [&](const Entry& left, const Entry& right) {
    return collator.compare(left.description, right.description) < 0;
  });
  Put(box, entries);
}

void Copy(const CodeComboBox& from, CodeComboBox& to) {
  to.Clear();
  to.AddNone(None);
  for (int index = 1; index < from.Count(); ++index) to.Add(from.TextAt(index), from.CodeAt(index));
  to.SetIndex(0);
}

void ShowCode(CodeComboBox& box, const QString& code) {
  if (code.isEmpty())
    box.SetIndex(0);
  else
    box.Hold(code);
}

}  // namespace CodeLists
