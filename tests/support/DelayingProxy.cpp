#include "support/DelayingProxy.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QByteArray>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* Loopback = "127.0.0.1";
constexpr size_t Piece = 65536;

[[noreturn]] void Fail(const char* what) {
  throw std::runtime_error(std::string("The delaying proxy cannot ") + what + ": " + std::strerror(errno));
}

// The file of a server's unix socket.
QByteArray SocketFile(const ConnectionSettings& server) {
  if (server.engine == Engine::PostgreSql)
    return QString("%1/.s.PGSQL.%2").arg(server.host).arg(server.port ? server.port : 5432).toUtf8();
  return (QFileInfo(server.host).isDir() ? server.host + "/mysqld.sock" : server.host).toUtf8();
}

int ConnectToFile(const QByteArray& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (size_t(path.size()) >= sizeof address.sun_path) return -1;
  std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
  const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return socket;
  ::close(socket);
  return -1;
}

void SendAtOnce(int socket) {
  const int on = 1;
  ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

int ConnectToHost(const ConnectionSettings& server) {
  const int usual = server.engine == Engine::PostgreSql ? 5432 : 3306;
  addrinfo hints{}, *found = nullptr;
  hints.ai_socktype = SOCK_STREAM;
  const QByteArray port = QByteArray::number(server.port ? server.port : usual);
  if (::getaddrinfo(server.host.toUtf8().constData(), port.constData(), &hints, &found) != 0) return -1;
  int connected = -1;
  for (const addrinfo* at = found; at && connected < 0; at = at->ai_next) {
    const int socket = ::socket(at->ai_family, at->ai_socktype | SOCK_CLOEXEC, at->ai_protocol);
    if (::connect(socket, at->ai_addr, at->ai_addrlen) == 0) {
      SendAtOnce(socket);
      connected = socket;
    } else {
      ::close(socket);
    }
  }
  ::freeaddrinfo(found);
  return connected;
}

int ConnectTo(const ConnectionSettings& server) {
  return server.host.startsWith('/') ? ConnectToFile(SocketFile(server)) : ConnectToHost(server);
}

int Listen(int& port) {
  const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  ::inet_pton(AF_INET, Loopback, &address.sin_addr);
  socklen_t length = sizeof address;
  if (::bind(listener, reinterpret_cast<sockaddr*>(&address), length) != 0) Fail("take a port");
  if (::listen(listener, 16) != 0) Fail("listen");
  ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length);
  port = ntohs(address.sin_port);
  return listener;
}

bool SendAll(int socket, const char* bytes, ssize_t count) {
  while (count > 0) {
    const ssize_t sent = ::send(socket, bytes, size_t(count), MSG_NOSIGNAL);
    if (sent < 0 && errno == EINTR) continue;
    if (sent <= 0) return false;
    bytes += sent;
    count -= sent;
  }
  return true;
}

struct Link {
  int client, server;
  QByteArray held;  // of the request, not sent on yet
  Clock::time_point due;
  bool asked = false;  // a request that has no answer yet
  bool ended = false;
  std::optional<DelayingProxy::Break> breaks = {};
};

}  // namespace

// What the thread works on.
struct DelayingProxy::Carrier {
  explicit Carrier(DelayingProxy& proxy)
      : proxy(proxy), listener(Listen(proxy.port_)), bell(::eventfd(0, EFD_CLOEXEC)) {}
  ~Carrier() {
    for (const Link& link : links) ::close(link.client), ::close(link.server);
    ::close(listener);
    ::close(bell);
  }

  void Run() {
    while (Wait()) {
      for (size_t i = 0; i < watched.size(); ++i) {
        if (watched[i].revents == 0) continue;
        Link& link = links[i / 2];
        if (i % 2 == 0) {
          FromClient(link);
        } else {
          FromServer(link);
        }
      }
      const bool cuts = proxy.cuts_.exchange(false);
      for (Link& link : links) SendOn(link), link.ended |= cuts;
      Forget();
      if (takes) Accept();
    }
  }

  // Until something comes, or a held request is due. False when the proxy is to end.
  bool Wait() {
    watched.clear();
    for (const Link& link : links)
      watched.push_back({link.client, POLLIN, 0}), watched.push_back({link.server, POLLIN, 0});
    const size_t ofLinks = watched.size();
    watched.push_back({listener, POLLIN, 0});
    watched.push_back({bell, POLLIN, 0});
    ::poll(watched.data(), watched.size(), Patience());
    takes = watched[ofLinks].revents != 0;
    if (watched[ofLinks + 1].revents != 0) {
      eventfd_t rung;
      ::eventfd_read(bell, &rung);
    }
    watched.resize(ofLinks);
    return !proxy.ends_;
  }

  int Patience() const {
    qint64 least = -1;
    for (const Link& link : links) {
      if (link.held.isEmpty()) continue;
      const auto left = std::chrono::ceil<std::chrono::milliseconds>(link.due - Clock::now()).count();
      least = std::max<qint64>(0, least < 0 ? left : std::min<qint64>(least, left));
    }
    return int(least);
  }

  void Accept() {
    const int client = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0) return;
    SendAtOnce(client);
    const int server = ConnectTo(proxy.server_);
    if (server < 0) {
      ::close(client);
      return;
    }
    ++proxy.sessions_;
    links.push_back({client, server, {}, {}});
  }

  void FromClient(Link& link) {
    const ssize_t count = ::recv(link.client, buffer, Piece, 0);
    if (count <= 0) {
      link.due = Clock::now();  // nobody waits for what is held
      SendOn(link);
      link.ended = true;
      return;
    }
    if (!link.asked) {
      link.due = Clock::now() + std::chrono::milliseconds(proxy.delay_);
      if (proxy.untilBreak_ > 0 && --proxy.untilBreak_ == 0) link.breaks = proxy.break_.load();
    }
    link.asked = true;
    link.held.append(buffer, count);
  }

  void FromServer(Link& link) {
    const ssize_t count = ::recv(link.server, buffer, Piece, 0);
    if (count > 0 && link.asked && link.held.isEmpty()) {
      link.asked = false;
      ++proxy.roundTrips_;
    }
    link.ended |= count <= 0 || link.breaks || !SendAll(link.client, buffer, count);
  }

  static void SendOn(Link& link) {
    if (link.ended || link.held.isEmpty() || link.due > Clock::now()) return;
    const bool torn = link.breaks == Break::InRequest;
    link.ended = !SendAll(link.server, link.held.constData(), torn ? link.held.size() / 2 : link.held.size()) || torn;
    link.held.clear();
  }

  void Forget() {
    const auto ended = [](const Link& link) {
      if (link.ended) ::close(link.client), ::close(link.server);
      return link.ended;
    };
    links.erase(std::remove_if(links.begin(), links.end(), ended), links.end());
  }

  DelayingProxy& proxy;
  int listener, bell;  // the bell wakes the thread
  bool takes = false;
  std::vector<Link> links;
  std::vector<pollfd> watched;
  char buffer[Piece];
};

DelayingProxy::DelayingProxy(const ConnectionSettings& server, std::chrono::milliseconds delay)
    : server_(server), delay_(delay.count()), carrier_(std::make_unique<Carrier>(*this)) {
  thread_ = std::thread([this] { carrier_->Run(); });
}

DelayingProxy::~DelayingProxy() {
  ends_ = true;
  ::eventfd_write(carrier_->bell, 1);
  thread_.join();
}

void DelayingProxy::CutAll() {
  cuts_ = true;
  ::eventfd_write(carrier_->bell, 1);
}

void DelayingProxy::BreakAt(int request, Break where) {
  break_ = where;
  untilBreak_ = request;
}

ConnectionSettings DelayingProxy::Settings() const {
  ConnectionSettings settings = server_;
  settings.host = Loopback;
  settings.port = port_;
  return settings;
}
