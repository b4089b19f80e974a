#include <QFileInfo>

#include "core/PasswordCipher.h"
#include "core/SiteSettings.h"
#include "platform/files/IniFile.h"
#include "tools/Command.h"
#include "tools/Terminal.h"

int RunEncodePassword(const QStringList& arguments) {
  CommandArguments command("encode-password",
                           "Asks for the password of the database's user and prints it as the setting PasswordEncoded "
                           "holds it, encoded under the key file beside the settings. The key file is made when it is "
                           "missing; the settings are left as they are.");
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 0, exitCode)) return exitCode;
  // The settings are not read: a value that the key no longer fits must not stand in the way of a new one.
  const QString settings = Files::FindIgnoringCase(FindApplicationPath(), "Ostana.ini");
  if (!QFileInfo(settings).isFile())
    return Refuse("There is no settings file \"" + settings + "\". Set OSTANA_HOME to the directory of the site.");
  const std::optional<QString> password = Terminal::AskNewPassword("the database's user");
  if (!password) return ExitCode::Refused;
  try {
    Terminal::Print("PasswordEncoded=" + PasswordCipherHelper(KeyFileOf(settings)).Encode(*password));
  } catch (const std::exception& error) {
    return Refuse(QString::fromUtf8(error.what()));
  }
  return ExitCode::Done;
}
