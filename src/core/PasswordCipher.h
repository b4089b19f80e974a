#pragma once

#include <QByteArray>
#include <QString>

// Encodes passwords that are stored to be used again: AES-256-GCM under the key file of the site ("Ostana.key" beside
// the settings, mode 0600, made at first use). Encoded texts begin with "gcm1$". Whoever reads the key file reads the
// passwords: it protects a copied database or settings file, not the machine.
class PasswordCipherHelper {
 public:
  explicit PasswordCipherHelper(QString keyFile);

  // Empty stays empty. An exception when the key cannot be read or made.
  QString Encode(const QString& plain);
  // An exception when the text was not encoded under this key or was changed.
  QString Decode(const QString& encoded);

 private:
  const QByteArray& Key();

  QString keyFile_;
  QByteArray key_;
};

// Records of logon passwords: "pbkdf2-sha256$<iterations>$<salt>$<hash>", salt and hash in base 64.
namespace PasswordRecord {
inline constexpr int Iterations = 600000;
QString Make(const QString& password, int iterations = Iterations);
bool Matches(const QString& password, const QString& record);
}  // namespace PasswordRecord
