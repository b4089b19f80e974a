#include "reliability/OwnServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QThread>
#include <csignal>
#include <map>
#include <stdexcept>

namespace {

int FreePort() {
  const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  ::inet_pton(AF_INET, "127.0.0.1", &address.sin_addr);
  socklen_t length = sizeof address;
  const bool bound = ::bind(socket, reinterpret_cast<sockaddr*>(&address), length) == 0;
  ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &length);
  ::close(socket);
  if (!bound) throw std::runtime_error("there is no free port for a server");
  return ntohs(address.sin_port);
}

QString PostgreSqlProgram(const QString& name) {
  const QDir versions("/usr/lib/postgresql");
  const QStringList found = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed);
  return found.isEmpty() ? name : versions.filePath(found.first() + "/bin/" + name);
}

}  // namespace

OwnServer::OwnServer(Engine engine, Bare) : engine_(engine), port_(FreePort()) {
  if (::geteuid() == 0) account_ = engine == Engine::MariaDb ? "mysql" : "postgres";
  QFile::setPermissions(folder_.path(), QFile::Permissions(0x7755));
  if (!account_.isEmpty()) Run({"chown", account_, folder_.path()});
  MakeCertificates();
}

OwnServer::OwnServer(Engine engine) : OwnServer(engine, Bare{}) {
  MakeCluster();
  Show(Certificate::Right);
  MakeSite();
}

void OwnServer::MakeSite() {
  if (engine_ == Engine::PostgreSql) {
    Administer("CREATE USER clerk PASSWORD 'Secr3tWord'");
    Administer("CREATE DATABASE site OWNER clerk");
  } else {
    Administer("CREATE DATABASE site CHARACTER SET utf8mb4 COLLATE utf8mb4_bin");
    Administer("CREATE USER clerk@'%' IDENTIFIED BY 'Secr3tWord'");
    Administer("GRANT ALL ON site.* TO clerk@'%'");
  }
}

std::unique_ptr<OwnServer> OwnServer::StandbyOf(OwnServer& primary) {
  std::unique_ptr<OwnServer> standby(new OwnServer(primary.engine_, Bare{}));
  standby->Run(standby->AsServer({PostgreSqlProgram("pg_basebackup"), "--pgdata=" + standby->folder_.filePath("data"),
                                  "--write-recovery-conf", "--checkpoint=fast", "--no-sync", "--username=tabulon",
                                  "--host=" + primary.folder_.path(), "--port=" + QString::number(primary.port_)}));
  standby->Show(Certificate::Right);
  return standby;
}

namespace {

const QString GaleraLibrary = QStringLiteral("/usr/lib/galera/libgalera_smm.so");

}  // namespace

bool OwnServer::HasGalera() {
  return QFile::exists(GaleraLibrary) && QFile::exists("/usr/bin/rsync");
}

std::unique_ptr<OwnServer> OwnServer::GaleraNode(const OwnServer* first) {
  std::unique_ptr<OwnServer> node(new OwnServer(Engine::MariaDb, Bare{}));
  node->MakeCluster();
  node->clusterPort_ = FreePort();
  const QString own = "127.0.0.1:" + QString::number(node->clusterPort_);
  const QString peer = first ? "127.0.0.1:" + QString::number(first->clusterPort_) : QString();
  node->further_ = {
      "--binlog-format=ROW",
      "--default-storage-engine=InnoDB",
      "--innodb-autoinc-lock-mode=2",
      "--wsrep-on=ON",
      "--wsrep-provider=" + GaleraLibrary,
      "--wsrep-cluster-name=tests",
      "--wsrep-node-name=" + QString::number(node->port_),
      "--wsrep-cluster-address=gcomm://" + peer,
      "--wsrep-node-address=127.0.0.1",
      "--wsrep-sst-method=rsync",
      "--wsrep-sst-receive-address=127.0.0.1:" + QString::number(FreePort()),
      QString("--wsrep-provider-options=base_port=%1;gmcast.listen_addr=tcp://%2;ist.recv_addr=127.0.0.1:%3;"
              "evs.suspect_timeout=PT1S;evs.inactive_timeout=PT2S;evs.keepalive_period=PT0.5S")
          .arg(node->clusterPort_)
          .arg(own)
          .arg(FreePort())};
  node->Show({});
  if (!first) node->MakeSite();
  return node;
}

void OwnServer::Promote() {
  Run(AsServer({PostgreSqlProgram("pg_ctl"), "promote", "--wait", "--pgdata=" + folder_.filePath("data")}));
}

void OwnServer::Kill() {
  ::kill(pid_t(server_.processId()), SIGKILL);
  server_.waitForFinished();
}

OwnServer::~OwnServer() {
  Stop();
}

QString OwnServer::File(Certificate certificate) const {
  static const std::map<Certificate, QString> names{{Certificate::Right, "right"},
                                                    {Certificate::OfAnotherName, "name"},
                                                    {Certificate::Expired, "expired"},
                                                    {Certificate::OfAnotherAuthority, "foreign"}};
  return folder_.filePath(names.at(certificate) + ".pem");
}

void OwnServer::MakeCertificates() {
  const QString script = R"(set -e; cd "$1"
key='-newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes'
for authority in authority other; do
  openssl req -x509 $key -keyout $authority.key -out $authority.pem -subj "/CN=$authority of the tests" -days 2
done
make() {
  openssl req $key -keyout $1.key -out $1.csr -subj "/CN=$1"
  echo "subjectAltName=$2" >$1.extension
  openssl x509 -req -in $1.csr -CA $4.pem -CAkey $4.key -CAcreateserial -days $3 -extfile $1.extension -out $1.pem
}
make right DNS:localhost,IP:127.0.0.1 2 authority
make name DNS:db.example.org 2 authority
make expired DNS:localhost,IP:127.0.0.1 -1 authority
make foreign DNS:localhost,IP:127.0.0.1 2 other
)";
  Run(AsServer({"sh", "-c", script, "sh", folder_.path()}));
}

void OwnServer::MakeCluster() {
  const QString data = folder_.filePath("data");
  if (engine_ == Engine::PostgreSql) {
    Run(AsServer({PostgreSqlProgram("initdb"), "--pgdata=" + data, "--username=tabulon", "--auth-local=trust",
                  "--auth-host=scram-sha-256", "--encoding=UTF8", "--locale=C.UTF-8", "--no-sync"}));
  } else {
    Run(AsServer({"mariadb-install-db", "--no-defaults", "--datadir=" + data,
                  "--auth-root-authentication-method=normal", "--skip-test-db"}));
  }
}

void OwnServer::Show(std::optional<Certificate> certificate) {
  Stop();
  QString key = certificate ? File(*certificate) : QString();
  key.replace(".pem", ".key");
  if (engine_ == Engine::PostgreSql) {
    QStringList arguments{PostgreSqlProgram("postgres"), "-D", folder_.filePath("data"),     "-k", folder_.path(), "-p",
                          QString::number(port_),        "-c", "listen_addresses=127.0.0.1", "-c", "fsync=off"};
    if (certificate) {
      arguments += {"-c", "ssl=on", "-c", "ssl_cert_file=" + File(*certificate), "-c", "ssl_key_file=" + key};
    }
    Start(arguments);
    return;
  }
  QStringList arguments{"mariadbd",
                        "--no-defaults",
                        "--datadir=" + folder_.filePath("data"),
                        "--socket=" + folder_.filePath("s"),
                        "--pid-file=" + folder_.filePath("pid"),
                        "--port=" + QString::number(port_),
                        "--bind-address=127.0.0.1",
                        "--debug-no-sync",
                        "--innodb-flush-method=nosync"};
  if (certificate) {
    arguments += {"--ssl-ca=" + Authority(), "--ssl-cert=" + File(*certificate), "--ssl-key=" + key};
  } else {
    arguments += "--skip-ssl";
  }
  Start(arguments + further_);
}

void OwnServer::Start(const QStringList& arguments) {
  server_.setProcessChannelMode(QProcess::MergedChannels);
  server_.setStandardOutputFile(folder_.filePath("log"));
  const QStringList command = AsServer(arguments);
  server_.start(command.first(), command.mid(1));
  // Its own log is the only place that tells why a server does not come up.
  for (int round = 0; round < 300; ++round) {
    if (!server_.waitForStarted() || server_.state() == QProcess::NotRunning) break;
    if (Answers()) return;
    QThread::msleep(100);
  }
  QFile log(folder_.filePath("log"));
  const QByteArray said = log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
  throw std::runtime_error("the server of the case did not start: " + said.right(2000).toStdString());
}

bool OwnServer::Answers() {
  try {
    Administer("SELECT 1");
    return true;
  } catch (const std::runtime_error&) {
    return false;
  }
}

void OwnServer::Stop() {
  if (server_.state() == QProcess::NotRunning) return;
  // The server itself: the program that gave up its rights has become it.
  ::kill(pid_t(server_.processId()), engine_ == Engine::PostgreSql ? SIGINT : SIGTERM);
  if (!server_.waitForFinished(20000)) server_.kill(), server_.waitForFinished();
}

void OwnServer::Administer(const QString& statement) {
  if (engine_ == Engine::PostgreSql) {
    Run({PostgreSqlProgram("psql"), "--no-psqlrc", "--quiet", "--host=" + folder_.path(),
         "--port=" + QString::number(port_), "--username=tabulon", "--dbname=postgres", "--command=" + statement});
  } else {
    Run({"mariadb", "--no-defaults", "--socket=" + folder_.filePath("s"), "--user=root", "--execute=" + statement});
  }
}

ConnectionSettings OwnServer::Settings() const {
  ConnectionSettings settings;
  settings.engine = engine_;
  settings.host = "127.0.0.1";
  settings.port = port_;
  settings.name = "site";
  settings.user = "clerk";
  settings.password = "Secr3tWord";
  return settings;
}

// Ends with this process, whatever becomes of it.
QStringList OwnServer::AsServer(const QStringList& command) const {
  QStringList prefix{"setpriv", "--pdeathsig", "KILL"};
  if (!account_.isEmpty()) prefix += {"--reuid=" + account_, "--regid=" + account_, "--clear-groups"};
  return prefix + command;
}

QByteArray OwnServer::Run(const QStringList& command) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.setWorkingDirectory("/");
  process.start(command.first(), command.mid(1));
  const bool ended = process.waitForFinished(60000);
  const QByteArray said = process.readAll();
  if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
    throw std::runtime_error(command.first().toStdString() + " failed: " + said.right(2000).toStdString());
  return said;
}
