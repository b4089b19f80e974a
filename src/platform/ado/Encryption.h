#pragma once

#include <QString>

struct ConnectionSettings;

// What the link to a server has to promise.
enum class Encryption {
  Off,       // nothing: what the driver and the server agree on
  Required,  // encrypted: who listens reads nothing
  Verify     // encrypted, and the server has a certificate of its name that this machine trusts
};

// As the settings file writes it: "off", "required", "verify".
QString EncryptionName(Encryption encryption);

// False for no host, the folder or file of a unix socket, and the addresses of this machine; of several servers one is
// enough.
bool IsOtherMachine(const QString& hosts);
// Verify for another machine, else Off: what holds where the settings file says nothing.
Encryption UsualEncryption(const QString& host);

// Why no link with these settings can promise what they ask for; empty when one can.
QString WhyNoEncryption(const ConnectionSettings& settings);

// File with the certificates that this machine trusts; empty where there is none.
QString TrustedCertificates();

// What a user can do about a link that did not come to keep the promise.
namespace LinkAdvice {
QString NotEncrypted(const QString& engine, const ConnectionSettings& settings);
// `authority` is the word of the driver's options that names the file of a certificate authority.
QString NotVerified(const QString& engine, const ConnectionSettings& settings, const QString& authority);
}  // namespace LinkAdvice
