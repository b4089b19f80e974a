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

struct Start {
  double ready = 0;     // milliseconds from before the process was made until its window was painted
  double password = 0;  // milliseconds of the password check in it
};

// The number behind `word` in what a process told; ends the benchmark where it is missing.
long long Told(const QByteArray& output, const QByteArray& word) {
  for (const QByteArray& line : output.split('\n'))
    if (line.startsWith(word + ' ')) return line.mid(word.size() + 1).toLongLong();
  std::fprintf(stderr, "no line \"%s\" in:\n%s\n", word.constData(), output.constData());
  std::exit(1);
}

Start Run(const QString& program, const QStringList& arguments, bool withPassword) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  const long long begin = SharedClock();
  process.start(program, arguments);
  if (!process.waitForFinished(60'000)) {
    std::fprintf(stderr, "%s does not end\n", qPrintable(program));
    std::exit(1);
  }
  const QByteArray output = process.readAll();
  Start start;
  start.ready = double(Told(output, "ready") - begin) / 1e6;
  if (withPassword) start.password = double(Told(output, "password")) / 1e6;
  return start;
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
    const double bare = Run(beside + "empty-window", {}, false).ready;
    const double frame = Run(beside + "empty-window", {"--frame"}, false).ready;
    const Start program = Run(beside + "started-program", {"", "admin", "secret"}, true);
    if (round == 0) continue;
    empty.push_back(bare);
    framed.push_back(frame);
    started.push_back(program.ready - program.password);
    password.push_back(program.password);
    toEmpty.push_back(started.back() / bare);
    toFramed.push_back(started.back() / frame);
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
