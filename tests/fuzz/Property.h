#pragma once

#include <QByteArray>
#include <QStringList>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>

// Ends the process where a property does not hold; the fuzzer keeps the input. The texts that it was about are printed
// with everything but plain letters escaped.
inline void Must(bool holds, const char* property, std::initializer_list<QString> about = {}) {
  if (holds) return;
  std::fprintf(stderr, "\nProperty broken: %s\n", property);
  for (const QString& text : about) {
    std::fputs("  \"", stderr);
    for (const QChar letter : text) {
      if (letter >= u' ' && letter <= u'~') {
        std::fputc(letter.toLatin1(), stderr);
      } else {
        std::fprintf(stderr, "\\u%04x", unsigned(letter.unicode()));
      }
    }
    std::fputs("\"\n", stderr);
  }
  std::abort();
}

// An input has a first line with what the target does, and the rest is what it does it to.
struct Parts {
  QByteArray first;
  QByteArray rest;
};

inline Parts PartsOf(const unsigned char* data, size_t size) {
  const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
  const qsizetype end = input.indexOf('\n');
  return end < 0 ? Parts{{}, input} : Parts{input.left(end), input.mid(end + 1)};
}
