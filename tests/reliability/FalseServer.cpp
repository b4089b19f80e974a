#include "reliability/FalseServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <openssl/ssl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <memory>
#include <stdexcept>

namespace {

using Context = std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)>;
using Channel = std::unique_ptr<SSL, decltype(&SSL_free)>;

}  // namespace

// One client, in clear until Encrypt.
struct FalseServer::Visit {
  explicit Visit(int socket) : socket(socket) {
    const timeval patience{10, 0};
    ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  }
  ~Visit() { ::close(socket); }
  Visit(const Visit&) = delete;
  Visit& operator=(const Visit&) = delete;

  bool Encrypt(const QString& certificate) {
    const QByteArray file = certificate.toUtf8(), key = QByteArray(file).replace(".pem", ".key");
    SSL_CTX_use_certificate_file(context.get(), file.constData(), SSL_FILETYPE_PEM);
    SSL_CTX_use_PrivateKey_file(context.get(), key.constData(), SSL_FILETYPE_PEM);
    channel.reset(SSL_new(context.get()));
    SSL_set_fd(channel.get(), socket);
    return SSL_accept(channel.get()) == 1;
  }

  // Up to that many bytes; empty when the client has gone.
  QByteArray Read(int most) const {
    QByteArray bytes(most, '\0');
    const ssize_t count =
        channel ? SSL_read(channel.get(), bytes.data(), most) : ::recv(socket, bytes.data(), size_t(most), 0);
    return bytes.left(qMax<ssize_t>(count, 0));
  }
  QByteArray ReadAll(int count) const {
    QByteArray bytes;
    while (bytes.size() < count) {
      const QByteArray piece = Read(count - int(bytes.size()));
      if (piece.isEmpty()) return {};
      bytes += piece;
    }
    return bytes;
  }
  void Write(const QByteArray& bytes) const {
    if (channel) {
      SSL_write(channel.get(), bytes.constData(), int(bytes.size()));
    } else {
      ::send(socket, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL);
    }
  }

  QByteArray AskAsPostgreSql(const std::optional<QString>& certificate) {
    for (;;) {
      const QByteArray length = ReadAll(4);
      if (length.isEmpty()) return {};
      const QByteArray body = ReadAll(int(ntohl(*reinterpret_cast<const quint32*>(length.constData()))) - 4);
      const bool asksForTls = body == QByteArray::fromHex("04d2162f");
      if (!asksForTls && body != QByteArray::fromHex("04d21630")) break;  // 80877103 TLS, 80877104 GSSAPI
      const bool offered = asksForTls && certificate;
      Write(offered ? "S" : "N");
      if (offered && !Encrypt(*certificate)) return {};
    }
    Write(QByteArray::fromHex("520000000800000003"));  // AuthenticationCleartextPassword
    return Read(4096);
  }

  QByteArray ReadPacket(char& number) const {
    const QByteArray head = ReadAll(4);
    if (head.isEmpty()) return {};
    number = head[3];
    return ReadAll(quint8(head[0]) | quint8(head[1]) << 8);
  }
  void WritePacket(const QByteArray& body, int number) const {
    Write(QByteArray(1, char(body.size())) + QByteArray(2, '\0') + char(number) + body);
  }

  QByteArray AskAsMariaDb(const std::optional<QString>& certificate) {
    const QByteArray salt(20, 'x'), zero(1, '\0');
    // Protocol 4.1, databases, plug-ins, and with a certificate TLS.
    const QByteArray abilities = QByteArray::fromHex(certificate ? "0baa" : "0ba2");
    WritePacket(QByteArray("\x0a") + "5.5.5-10.11.0-MariaDB" + zero + QByteArray(4, '\1') + salt.left(8) + zero +
                    abilities + "\x2d" + QByteArray::fromHex("02000800") + "\x15" + QByteArray(10, '\0') + salt.mid(8) +
                    zero + "mysql_native_password" + zero,
                0);
    char number = 0;
    QByteArray answer = ReadPacket(number);
    if (certificate && answer.size() == 32) {  // a login without a name is the wish for TLS
      if (!Encrypt(*certificate)) return {};
      answer = ReadPacket(number);
    }
    if (answer.isEmpty()) return {};
    WritePacket("\xfemysql_clear_password" + zero + salt + zero, number + 1);
    return ReadPacket(number);
  }

  const int socket;
  Context context{SSL_CTX_new(TLS_server_method()), &SSL_CTX_free};
  Channel channel{nullptr, &SSL_free};
};

FalseServer::FalseServer(Engine engine, std::optional<QString> certificate)
    : engine_(engine), certificate_(std::move(certificate)) {
  listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  ::inet_pton(AF_INET, "127.0.0.1", &address.sin_addr);
  socklen_t length = sizeof address;
  if (::bind(listener_, reinterpret_cast<sockaddr*>(&address), length) != 0 || ::listen(listener_, 4) != 0)
    throw std::runtime_error("the false server has no port");
  ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length);
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this] { Serve(); });
}

FalseServer::~FalseServer() {
  ::shutdown(listener_, SHUT_RDWR);
  thread_.join();
  ::close(listener_);
}

void FalseServer::Serve() {
  for (;;) {
    const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (socket < 0) return;
    ++visitors_;
    Visit visit(socket);
    const QByteArray answer =
        engine_ == Engine::PostgreSql ? visit.AskAsPostgreSql(certificate_) : visit.AskAsMariaDb(certificate_);
    const std::lock_guard<std::mutex> lock(mutex_);
    heard_ += answer;
  }
}

QByteArray FalseServer::Heard() const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return heard_;
}
