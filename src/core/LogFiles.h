#pragma once

#include <QString>

// The log files of the system, below "Logs" of the process's current directory. These procedures work without the
// common services; a failure while logging is dropped.

// Full path of the log (".log") or of its previous generation (".old").
QString LogFilePath(const QString& application, const QString& qualifier, const QString& extension);

void ID_WriteStartupLogEntry(const QString& application, const QString& qualifier);

// The application's own name is that of the executable's title, "Tabulon". Always True.
bool ID_WriteClassFailedLog(const QString& message, const QString& detail, const QString& level, QString& qualifier);

// Levels "L" entry, "S" continuation, "C" critical with version line and rotation above 100000 bytes.
void WriteLogLines(const QString& application, const QString& qualifier, const QString& message, const QString& detail,
                   const QString& level);

inline constexpr qint64 LogRotationSize = 100000;  // bytes on disk; a file of exactly this size is kept
