#include "platform/controls/GridOrder.h"

#include <QCollator>
#include <QLocale>
#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <numeric>

namespace {

QCollator Collation() {
  const QLocale here;
  QCollator collator(here.language() == QLocale::C ? QLocale(QLocale::English) : here);
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  return collator;
}

template <class Less>
std::vector<int> StableOrder(std::size_t count, Qt::SortOrder order, Less less) {
  std::vector<int> result(count);
  std::iota(result.begin(), result.end(), 0);
  if (order == Qt::AscendingOrder)
    std::stable_sort(result.begin(), result.end(), less);
  else
    std::stable_sort(result.begin(), result.end(), [&](int a, int b) { return less(b, a); });
  return result;
}

std::vector<int> OrderOfTexts(const std::vector<QStringView>& cells, Qt::SortOrder order) {
  const QCollator collator = Collation();
  std::vector<QCollatorSortKey> keys;
  keys.reserve(cells.size());
  for (const QStringView cell : cells) keys.push_back(collator.sortKey(QString::fromRawData(cell.data(), cell.size())));
  return StableOrder(cells.size(), order, [&](int a, int b) {
    return keys[static_cast<std::size_t>(a)].compare(keys[static_cast<std::size_t>(b)]) < 0;
  });
}

std::vector<int> OrderOfNumbers(const std::vector<QStringView>& cells, Qt::SortOrder order) {
  const QCollator collator = Collation();
  constexpr double Infinity = std::numeric_limits<double>::infinity();
  const QChar separator = GridOrder::DecimalSeparator();
  std::vector<double> values;
  values.reserve(cells.size());
  for (const QStringView cell : cells)
    values.push_back(cell.isEmpty() ? -Infinity : GridOrder::Number(cell, separator).value_or(Infinity));
  return StableOrder(cells.size(), order, [&](int a, int b) {
    const auto left = static_cast<std::size_t>(a), right = static_cast<std::size_t>(b);
    if (values[left] != values[right] || values[left] != Infinity) return values[left] < values[right];
    return collator.compare(cells[left], cells[right]) < 0;
  });
}

}  // namespace

namespace GridOrder {

std::vector<int> Order(const std::vector<QStringView>& cells, Qt::SortOrder order, bool numeric) {
  return numeric ? OrderOfNumbers(cells, order) : OrderOfTexts(cells, order);
}

QChar DecimalSeparator() {
  return QLocale().decimalPoint().front();
}

std::optional<double> Number(QStringView cell, QChar separator) {
  std::array<char, 40> digits{};
  const QStringView text = cell.trimmed();
  if (text.isEmpty() || text.size() >= static_cast<qsizetype>(digits.size())) return {};
  std::size_t length = 0;
  for (const QChar ch : text) {
    if (ch == u'+' && length == 0 && text.size() > 1 && text[1] != u'-') continue;
    const bool digit = ch >= u'0' && ch <= u'9';
    if (!digit && ch != u'.' && ch != separator && !(ch == u'-' && length == 0)) return {};
    digits[length++] = digit || ch == u'-' ? ch.toLatin1() : '.';
  }
  double value = 0;
  const char* end = digits.data() + length;
  const auto [stop, error] = std::from_chars(digits.data(), end, value);
  if (error != std::errc() || stop != end) return {};
  return value;
}

}  // namespace GridOrder
