#pragma once

namespace zolt {

// Keeps the heap that a program load frees for the next one. A few-MB program
// becomes tens of MB of cells; glibc otherwise hands large freed blocks back
// to the kernel and every later read (open, copy from a file, a revert) pays
// for faulting them in again. Call once at the start of main; a no-op where
// the C library has no such tuning.
void KeepFreedHeapForReuse();

} // namespace zolt
