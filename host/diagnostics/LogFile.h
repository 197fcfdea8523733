// A log file for debugging the plug-in.

#pragma once

// Where logmsg writes: "g:\Quillon.log" on every system, unless changed.
extern const char* logfile_name;

// Appends a message, formatted by the rules of printf, to the log file; adds no newline. The first
// call of the process overwrites the file with a line that gives the time. If the file cannot be
// opened, the message is dropped. Returns 0. Main thread only.
int logmsg(const char* format, ...) __attribute__((format(printf, 1, 2)));
