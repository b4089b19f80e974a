#include "core/FieldChecks.h"

#include <QUrl>
#include <algorithm>

namespace FieldChecks {

namespace {

bool Refuse(QString& reason, const QString& why) {
  reason = why;
  return false;
}

bool IsDigits(const QString& text) {
  return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= '0' && c <= '9'; });
}

bool HasBlankOrControl(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) {
    return c.isSpace() || c.category() == QChar::Other_Control || c.category() == QChar::Other_Format;
  });
}

bool IsAscii(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
}

// As the name service writes it; empty when it cannot.
QString ServiceForm(const QString& label) {
  return IsAscii(label) ? label : QString::fromLatin1(QUrl::toAce(label));
}

bool IsLabel(const QString& label) {
  const QString form = ServiceForm(label);
  if (form.isEmpty() || form.size() > 63 || form.startsWith('-') || form.endsWith('-')) return false;
  return std::all_of(form.begin(), form.end(), [](QChar c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '_';
  });
}

bool IsHostName(const QString& name) {
  const QString host = name.endsWith('.') ? name.chopped(1) : name;
  qsizetype length = -1;
  for (const QString& label : host.split('.')) {
    if (!IsLabel(label)) return false;
    length += ServiceForm(label).size() + 1;
  }
  return length <= 253;
}

bool IsFourNumbers(const QString& host) {
  const QStringList parts = host.split('.');
  return parts.size() == 4 && std::all_of(parts.begin(), parts.end(), [](const QString& part) {
           const bool leadingZero = part.size() > 1 && part.startsWith('0');
           return IsDigits(part) && part.size() <= 3 && !leadingZero && part.toInt() <= 255;
         });
}

bool IsIPv6(const QString& host) {
  // In brackets a later version of the protocol could stand as well: "v7.".
  if (!host.contains(':') || host.contains('%') || host.startsWith('v', Qt::CaseInsensitive)) return false;
  QUrl url;
  url.setHost('[' + host + ']', QUrl::DecodedMode);
  return url.isValid() && !url.host().isEmpty();
}

bool CheckHost(const QString& host, QString& reason) {
  if (host.isEmpty()) return Refuse(reason, "The network address has no host name.");
  const QString last = (host.endsWith('.') ? host.chopped(1) : host).section('.', -1);
  if (IsDigits(last)) {
    return IsFourNumbers(host) || Refuse(reason, QStringLiteral("'%1' is not a network address: four numbers from 0 to "
                                                                "255, joined by points, are needed.")
                                                     .arg(host));
  }
  return IsHostName(host) || Refuse(reason, QStringLiteral("'%1' is not the name of a host.").arg(host));
}

bool CheckIPv6(const QString& host, QString& reason) {
  return IsIPv6(host) || Refuse(reason, QStringLiteral("'%1' is not an IPv6 address.").arg(host));
}

bool CheckPort(const QString& port, QString& reason) {
  if (IsDigits(port) && port.size() <= 5 && port.toInt() <= 65535) return true;
  return Refuse(reason, QStringLiteral("'%1' is not a port: a number from 0 to 65535 is needed.").arg(port));
}

bool CheckBracketed(const QString& address, QString& reason) {
  const qsizetype close = address.indexOf(']');
  if (close < 0) return Refuse(reason, "The closing bracket of the IPv6 address is missing.");
  if (!CheckIPv6(address.mid(1, close - 1), reason)) return false;
  const QString rest = address.mid(close + 1);
  if (rest.isEmpty()) return true;
  if (!rest.startsWith(':')) return Refuse(reason, "Only a port may stand behind the IPv6 address.");
  return CheckPort(rest.mid(1), reason);
}

bool IsLocalPart(const QString& local) {
  static const QString refused = QStringLiteral("\"(),:;<>[\\]");
  return !local.isEmpty() && local.size() <= 64 && !local.startsWith('.') && !local.endsWith('.') &&
         !local.contains("..") && std::none_of(local.begin(), local.end(), [](QChar c) { return refused.contains(c); });
}

}  // namespace

bool IsEmailAddress(const QString& value, QString& reason) {
  const QString address = value.trimmed();
  if (address.isEmpty()) return Refuse(reason, "The E-mail address is empty.");
  if (HasBlankOrControl(address)) return Refuse(reason, "The E-mail address may not hold blanks.");
  if (address.count('@') != 1) return Refuse(reason, "The E-mail address must hold one '@'.");
  const QString host = address.section('@', 1);
  if (!IsLocalPart(address.section('@', 0, 0)))
    return Refuse(reason, "The part of the E-mail address before the '@' is not valid.");
  if (!host.contains('.') || host.endsWith('.') || IsDigits(host.section('.', -1)) || !IsHostName(host))
    return Refuse(reason, "The part of the E-mail address behind the '@' is not valid.");
  return true;
}

bool IsNetworkAddress(const QString& value, QString& reason) {
  const QString address = value.trimmed();
  if (address.isEmpty()) return Refuse(reason, "The network address is empty.");
  if (HasBlankOrControl(address)) return Refuse(reason, "The network address may not hold blanks.");
  if (address.startsWith('[')) return CheckBracketed(address, reason);
  if (address.count(':') > 1) return CheckIPv6(address, reason);
  if (!CheckHost(address.section(':', 0, 0), reason)) return false;
  return !address.contains(':') || CheckPort(address.section(':', 1), reason);
}

bool IsFaxNumber(const QString& value, QString& reason) {
  static const QString separators = QStringLiteral(" ()-./");
  constexpr int Longest = 25, FewestDigits = 3;
  const QString number = value.trimmed();
  const QString body = number.startsWith('+') ? number.mid(1) : number;
  const auto isDigit = [](QChar c) { return c >= '0' && c <= '9'; };
  if (!std::all_of(body.begin(), body.end(), [&](QChar c) { return isDigit(c) || separators.contains(c); }))
    return Refuse(reason, "The fax number may hold digits, blanks and ( ) - . / only, with + in front.");
  if (number.size() > Longest) return Refuse(reason, "The fax number is longer than 25 characters.");
  if (std::count_if(body.begin(), body.end(), isDigit) < FewestDigits)
    return Refuse(reason, "The fax number needs at least three digits.");
  return true;
}

}  // namespace FieldChecks
