#include "core/PasswordCipher.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <memory>
#include <stdexcept>

namespace {

const QByteArray Mark = "gcm1$";
constexpr int KeyLength = 32, NonceLength = 12, TagLength = 16;  // bytes

using Context = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

[[noreturn]] void Fail(const QString& why) {
  throw std::runtime_error(why.toStdString());
}

unsigned char* Raw(QByteArray& bytes) {
  return reinterpret_cast<unsigned char*>(bytes.data());
}

const unsigned char* Raw(const QByteArray& bytes) {
  return reinterpret_cast<const unsigned char*>(bytes.constData());
}

QByteArray RandomBytes(int count) {
  QByteArray bytes(count, '\0');
  if (RAND_bytes(Raw(bytes), count) != 1) Fail("The machine gives no random numbers.");
  return bytes;
}

// Nonce, encrypted text, tag. The mark is authenticated with it.
QByteArray Seal(const QByteArray& key, const QByteArray& plain) {
  const QByteArray nonce = RandomBytes(NonceLength);
  QByteArray secret(plain.size(), '\0');
  QByteArray tag(TagLength, '\0');
  const Context context(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
  int length = 0;
  const bool sealed = context &&
                      EVP_EncryptInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, Raw(key), Raw(nonce)) == 1 &&
                      EVP_EncryptUpdate(context.get(), nullptr, &length, Raw(Mark), int(Mark.size())) == 1 &&
                      EVP_EncryptUpdate(context.get(), Raw(secret), &length, Raw(plain), int(plain.size())) == 1 &&
                      EVP_EncryptFinal_ex(context.get(), Raw(secret) + length, &length) == 1 &&
                      EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_GET_TAG, TagLength, tag.data()) == 1;
  if (!sealed) Fail("The password could not be encoded.");
  return nonce + secret + tag;
}

// False when the box was not sealed under this key or was changed.
bool Unseal(const QByteArray& key, const QByteArray& box, QByteArray& plain) {
  if (box.size() < NonceLength + TagLength) return false;
  const QByteArray nonce = box.first(NonceLength);
  const QByteArray secret = box.sliced(NonceLength, box.size() - NonceLength - TagLength);
  QByteArray tag = box.last(TagLength);
  plain.fill('\0', secret.size());
  const Context context(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
  int length = 0;
  return context && EVP_DecryptInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, Raw(key), Raw(nonce)) == 1 &&
         EVP_DecryptUpdate(context.get(), nullptr, &length, Raw(Mark), int(Mark.size())) == 1 &&
         EVP_DecryptUpdate(context.get(), Raw(plain), &length, Raw(secret), int(secret.size())) == 1 &&
         EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_SET_TAG, TagLength, tag.data()) == 1 &&
         EVP_DecryptFinal_ex(context.get(), Raw(plain) + length, &length) == 1;
}

// A key file appears whole or not at all, and the first of two programs that make one at once wins.
void MakeKeyFile(const QString& path) {
  QTemporaryFile file(path + ".XXXXXX");
  if (!file.open() || file.write(RandomBytes(KeyLength)) != KeyLength || !file.flush() ||
      !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
    Fail(QStringLiteral("The key file '%1' cannot be made: %2.").arg(path, file.errorString()));
  if (file.rename(path)) {
    file.setAutoRemove(false);
  } else if (!QFileInfo::exists(path)) {
    Fail(QStringLiteral("The key file '%1' cannot be made: %2.").arg(path, file.errorString()));
  }
}

QByteArray ReadKeyFile(const QString& path) {
  // A pipe would hold the program up.
  if (const QFileInfo info(path); info.exists() && !info.isFile())
    Fail(QStringLiteral("The key file '%1' cannot be read: it is not a file.").arg(path));
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    Fail(QStringLiteral("The key file '%1' cannot be read: %2.").arg(path, file.errorString()));
  const QByteArray key = file.read(KeyLength + 1);
  if (key.size() != KeyLength)
    Fail(QStringLiteral("The file '%1' is not a key file: it must hold %2 bytes.").arg(path).arg(KeyLength));
  return key;
}

}  // namespace

PasswordCipherHelper::PasswordCipherHelper(QString keyFile) : keyFile_(std::move(keyFile)) {}

QString PasswordCipherHelper::Encode(const QString& plain) {
  if (plain.isEmpty()) return {};
  if (!QFileInfo::exists(keyFile_)) MakeKeyFile(keyFile_);
  return QString::fromLatin1(Mark + Seal(Key(), plain.toUtf8()).toBase64());
}

QString PasswordCipherHelper::Decode(const QString& encoded) {
  if (encoded.isEmpty()) return {};
  const QByteArray text = encoded.toLatin1();
  if (!text.startsWith(Mark)) Fail("The password was not encoded by this system.");
  const QByteArray letters = text.sliced(Mark.size());
  const QByteArray box = QByteArray::fromBase64(letters);
  QByteArray plain;
  // One box has one writing only: the last letter's spare bits count too.
  if (box.toBase64() != letters || !Unseal(Key(), box, plain))
    Fail(QStringLiteral("The password was not encoded with the key file '%1', or was changed.").arg(keyFile_));
  return QString::fromUtf8(plain);
}

const QByteArray& PasswordCipherHelper::Key() {
  if (key_.isEmpty()) key_ = ReadKeyFile(keyFile_);
  return key_;
}

namespace PasswordRecord {

namespace {

const QByteArray Scheme = "pbkdf2-sha256";
constexpr int SaltLength = 16, HashLength = 32;  // bytes
constexpr int MostIterations = 10'000'000;       // a record that asks for more would hold the logon up for minutes

QByteArray Derive(const QString& password, const QByteArray& salt, int iterations, int length) {
  const QByteArray secret = password.toUtf8();
  QByteArray hash(length, '\0');
  if (PKCS5_PBKDF2_HMAC(secret.constData(), int(secret.size()), Raw(salt), int(salt.size()), iterations, EVP_sha256(),
                        length, Raw(hash)) != 1)
    Fail("The password record could not be computed.");
  return hash;
}

}  // namespace

QString Make(const QString& password, int iterations) {
  const QByteArray salt = RandomBytes(SaltLength);
  const QByteArray hash = Derive(password, salt, iterations, HashLength);
  return QString::fromLatin1(Scheme + '$' + QByteArray::number(iterations) + '$' + salt.toBase64() + '$' +
                             hash.toBase64());
}

bool Matches(const QString& password, const QString& record) {
  const QList<QByteArray> parts = record.toLatin1().split('$');
  if (parts.size() != 4 || parts[0] != Scheme) return false;
  const int iterations = parts[1].toInt();
  const QByteArray salt = QByteArray::fromBase64(parts[2]);
  const QByteArray hash = QByteArray::fromBase64(parts[3]);
  if (iterations < 1 || iterations > MostIterations || salt.isEmpty() || hash.size() != HashLength) return false;
  const QByteArray derived = Derive(password, salt, iterations, HashLength);
  return CRYPTO_memcmp(derived.constData(), hash.constData(), HashLength) == 0;
}

}  // namespace PasswordRecord
