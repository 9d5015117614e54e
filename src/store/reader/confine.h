#pragma once

namespace store {

/// Before the data file is opened: 256 MiB of memory, 2 s of processor time, no file written, few files open, no
/// core dump, no new privileges, and the end when the program that started this one ends.
void limitResources();

/// When the data file is open and before more of it than the header is taken apart: no other file is opened, made,
/// changed or removed from here on, no program started, no connection made. Kernels that do not offer this go without
/// it.
void shutDoors();

}  // namespace store
