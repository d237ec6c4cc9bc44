#pragma once

/// Runs a flow over `count` photos of every fate by the batch dialog, and tells the time it took,
/// its peak of memory and how many results there are. Each result has to hold what the operations
/// make of its photo, byte by byte, and the sources must be as they were.
///
/// With `mayMiss` results may be missing, as on a full disk, but none may be there by half. Returns
/// main's answer, 0 if all is well.
int stressBatch(int count, int largestWidth, bool mayMiss);
