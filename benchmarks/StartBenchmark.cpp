// From the start of the process to the first tab, beside an empty window and an empty frame of the same kind: they are
// started in turn, so that a machine whose pace changes does not bend the ratios.
//   bench_start [ROUNDS]      21 rounds without an argument; the first one warms the caches and is not counted
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "StartClock.h"
#include "tools/Command.h"

namespace {

// The number behind `word` in what a process told; ends the benchmark where it is missing.
long long Told(const QByteArray& output, const QByteArray& word) {
  for (const QByteArray& line : output.split('\n'))
    if (line.startsWith(word + ' ')) return line.mid(word.size() + 1).toLongLong();
  std::fprintf(stderr, "no line \"%s\" in:\n%s\n", word.constData(), output.constData());
  std::exit(1);
}

// What the process told behind `word`.
long long Run(const QString& program, const QStringList& arguments, const QByteArray& word) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  if (!process.waitForFinished(60'000)) {
    std::fprintf(stderr, "%s does not end\n", qPrintable(program));
    std::exit(1);
  }
  return Told(process.readAll(), word);
}

// Milliseconds from before the process was made until its window was painted.
double UntilReady(const QString& program, const QStringList& arguments) {
  const long long begin = SharedClock();
  return double(Run(program, arguments, "ready") - begin) / 1e6;
}

bool MakeSite(const QTemporaryDir& folder) {
  qputenv("OSTANA_HOME", folder.path().toUtf8());
  QFile settings(folder.filePath("Ostana.ini"));
  if (!settings.open(QIODevice::WriteOnly)) return false;
  settings.write("[Database]\nEngine=SQLITE\nName=sample.db\n[System]\nSingleInstance=0\n");
  settings.close();
  return QDir::setCurrent(folder.path()) && RunTabulonDb({"create", "--sample"}) == ExitCode::Done;
}

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 21;
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QTemporaryDir folder;
  if (!MakeSite(folder)) return 1;
  const QString beside = QCoreApplication::applicationDirPath() + '/';
  std::vector<double> empty, framed, started, password, toEmpty, toFramed;
  for (int round = 0; round <= rounds; ++round) {
    const double bare = UntilReady(beside + "empty-window", {});
    const double frame = UntilReady(beside + "empty-window", {"--frame"});
    const double check = double(Run(beside + "started-program", {"--password"}, "password")) / 1e6;
    const double program = UntilReady(beside + "started-program", {"", "admin", "secret"}) - check;
    if (round == 0) continue;
    empty.push_back(bare);
    framed.push_back(frame);
    started.push_back(program);
    password.push_back(check);
    toEmpty.push_back(program / bare);
    toFramed.push_back(program / frame);
  }
  std::printf("medians of %d rounds\n", rounds);
  std::printf("empty window painted              %7.1f ms\n", Median(empty));
  std::printf("empty frame painted               %7.1f ms\n", Median(framed));
  std::printf("first tab painted                 %7.1f ms, password check not counted\n", Median(started));
  std::printf("password check                    %7.1f ms\n", Median(password));
  std::printf("first tab beside the empty window %7.2f\n", Median(toEmpty));
  std::printf("first tab beside the empty frame  %7.2f\n", Median(toFramed));
  return 0;
}
