#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <memory>
#include <optional>

#include "platform/ado/ConnectionSettings.h"

// A database server of a case's own on a port of loopback, gone with the object. Its database is "site", its user
// "clerk" has a password and owns it. Throws std::runtime_error with the server's log when it does not start.
class OwnServer {
 public:
  // Whom the certificate it shows names, and who says so.
  enum class Certificate { Right, OfAnotherName, Expired, OfAnotherAuthority };

  explicit OwnServer(Engine engine);
  // A standby of a server of PostgreSQL, which it follows until it is promoted.
  static std::unique_ptr<OwnServer> StandbyOf(OwnServer& primary);
  // A node of a Galera cluster of MariaDB: the first, or one that joins it. False where the machine cannot.
  static bool HasGalera();
  static std::unique_ptr<OwnServer> GaleraNode(const OwnServer* first = nullptr);
  ~OwnServer();
  OwnServer(const OwnServer&) = delete;
  OwnServer& operator=(const OwnServer&) = delete;

  // Starts anew, with that certificate or without encryption.
  void Show(std::optional<Certificate> certificate);
  void Promote();
  // At once, as a machine that loses its power.
  void Kill();
  // A statement of the server's own administrator.
  void Administer(const QString& statement);

  ConnectionSettings Settings() const;
  QString Authority() const { return folder_.filePath("authority.pem"); }
  QString File(Certificate certificate) const;  // PEM; the key lies beside it with the ending ".key"

 private:
  struct Bare {};
  OwnServer(Engine engine, Bare);
  void MakeCertificates();
  void MakeCluster();
  void MakeSite();
  void Start(const QStringList& arguments);
  void Stop();
  bool Answers();
  QStringList AsServer(const QStringList& command) const;
  QByteArray Run(const QStringList& command);

  const Engine engine_;
  QTemporaryDir folder_;
  int port_ = 0;
  QString account_;      // that runs the server, which refuses to run as root; empty for our own
  int clusterPort_ = 0;  // of Galera's own traffic
  QStringList further_;  // arguments of the server
  QProcess server_;
};
