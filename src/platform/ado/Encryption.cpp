#include "platform/ado/Encryption.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>

#include "platform/ado/ConnectionSettings.h"
#include "platform/ado/Nodes.h"

QString EncryptionName(Encryption encryption) {
  switch (encryption) {
    case Encryption::Off:
      break;
    case Encryption::Required:
      return QStringLiteral("required");
    case Encryption::Verify:
      return QStringLiteral("verify");
  }
  return QStringLiteral("off");
}

namespace {

// "@" begins the name of a socket that has no file.
bool IsSocket(const QString& host) {
  return host.startsWith(u'/') || host.startsWith(u'@');
}

bool IsFar(const QString& host) {
  static const QRegularExpression loopback(QStringLiteral("^(localhost|127(\\.\\d{1,3}){3}|\\[?::1\\]?)$"),
                                           QRegularExpression::CaseInsensitiveOption);
  return !host.isEmpty() && !IsSocket(host) && !loopback.match(host).hasMatch();
}

}  // namespace

bool IsOtherMachine(const QString& hosts) {
  ConnectionSettings settings;
  settings.host = hosts;
  const std::vector<ConnectionSettings> nodes = NodesOf(settings);
  return std::any_of(nodes.begin(), nodes.end(), [](const ConnectionSettings& node) { return IsFar(node.host); });
}

Encryption UsualEncryption(const QString& host) {
  return IsOtherMachine(host) ? Encryption::Verify : Encryption::Off;
}

QString WhyNoEncryption(const ConnectionSettings& settings) {
  const bool network = !settings.host.isEmpty() && !IsSocket(settings.host);
  if (settings.encryption == Encryption::Off || (network && settings.engine != Engine::Sqlite)) return {};
  return QStringLiteral(
             "Encryption=%1 in the database section of the settings file asks for a link over the network, and Host "
             "names no server. Write the server's name as Host, or Encryption=off for a database on this machine.")
      .arg(EncryptionName(settings.encryption));
}

QString TrustedCertificates() {
  for (const char* file : {"/etc/ssl/certs/ca-certificates.crt", "/etc/pki/tls/certs/ca-bundle.crt"})
    if (QFile::exists(QLatin1String(file))) return QLatin1String(file);
  return {};
}

QString LinkAdvice::NotEncrypted(const QString& engine, const ConnectionSettings& settings) {
  return QStringLiteral(
             "%1 on %2 does not encrypt the link, as Encryption=%3 in the database section of the settings file asks. "
             "Switch encryption on at the server. With Encryption=off everybody on the way could read all that "
             "passes.")
      .arg(engine, settings.host, EncryptionName(settings.encryption));
}

QString LinkAdvice::NotVerified(const QString& engine, const ConnectionSettings& settings, const QString& authority) {
  return QStringLiteral(
             "The certificate of %1 on %2 could not be verified, as Encryption=%3 in the database section of the "
             "settings file asks. Check that Host is a name in the certificate, that it is in force, and that this "
             "machine trusts its authority: %4=FILE in Options names another one's certificate.")
      .arg(engine, settings.host, EncryptionName(settings.encryption), authority);
}
