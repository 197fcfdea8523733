// A log file for whoever debugs the plug-in.

#pragma once

// Where logmsg writes: "g:\Quillon.log" on any system, unless it is changed.
extern const char* logfile_name;

// Appends a message, formatted by the rules of printf, to the log file, without a newline of its
// own. The first call of the process starts the file anew with the time. A file that cannot be
// opened drops the message. Always 0. Main thread only.
int logmsg(const char* format, ...) __attribute__((format(printf, 1, 2)));
