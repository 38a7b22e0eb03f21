// SPDX-License-Identifier: MIT
// What a program asks of the system before and behind its work.
#pragma once

namespace kev {

// To be called before anything is opened. A standard stream that is closed would lend its number to the next
// file, and what is meant for the terminal would go into a template; in its place stands one that takes
// nothing. A file that reaches the limit of the process is a failure like a full disk, not the end.
void PrepareProcess();

// A call that this signal would have ended the process for fails instead. Programs that are started get the
// signal as ever.
void OutliveSignal(int signal);

// Hands over what was written to standard output so far. 0, or the system's error number where some of it
// could not be written.
int FlushStandardOutput();

}  // namespace kev
