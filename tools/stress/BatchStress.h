#pragma once

/// Runs a flow over `count` photos of every fate by the batch dialog, and tells the time it took,
/// its peak of memory and how many results there are. Each result has to hold what the operations
/// make of its photo, byte by byte, and the sources must be as they were.
///
/// With `sameShape` each operation of the flow keeps the photo's size, and memory has to stay
/// within that of the largest photo. With `mayMiss` results may be missing, as on a full disk, but
/// none may be there by half. Writes "ready" when the run is started. Returns main's answer, 0 if
/// all is well.
int stressBatch(int count, int largestWidth, bool sameShape, bool mayMiss);

/// Looks at what a run has left that was ended from outside: all results have to be whole, and at
/// most one unfinished file may lie beside them. Returns main's answer.
int checkResults();
