#pragma once

namespace store {

/// Before the data file is opened: 256 MiB of memory, 2 s of processor time, no file written, few files open, no
/// core dump, no new privileges, and the end when the program that started this one ends.
void limitResources();

/// When the data file is open, and before more of it than the header is taken apart: no other file is opened, made or
/// removed from here on. Kernels without Landlock go without it.
void shutFiles();

/// From here on this process can read what is open, write to its output and to its messages, and use memory. Any other
/// system call ends it at once. False, and nothing changed, if the kernel offers no filter of system calls.
bool allowReadingAlone();

}  // namespace store
