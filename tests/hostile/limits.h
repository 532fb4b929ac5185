/// \file
/// What a program may use up for one hostile file.
#pragma once

/// Of processor time, which a busy machine does not shorten.
constexpr unsigned kHangSeconds = 10;
constexpr unsigned kQuickMilliseconds = 100;

/// Of the clock, for a program that waits.
constexpr unsigned kWaitSeconds = 60;

constexpr unsigned long long kMemoryLimit = 2ULL << 30U;

/// Small, so that a recursion without end always ends at the stack, in any program, and soon. With the system's usual 8
/// MiB HDF5's virtual dataset that names itself reaches the limit of memory at about the same depth, sometimes before.
constexpr unsigned long long kStackLimit = 256ULL << 10U;

/// A key that declares more values than these is not read to the end, except in the first such cases of a run.
constexpr long kPatience = 100000;

/// As small as the storage's: where a file leads a conversion astray, it leaves a small buffer and the default of 1 MiB
/// not, which HDF5 also zeroes for each element.
constexpr unsigned kConversionBufferBytes = 4096;

/// With which sanitizers and valgrind have to be told to end a program; no program of ours uses it.
constexpr int kCrashExit = 99;
