#pragma once

/// Forgets the peak of this process's resident memory so far. Linux only.
void resetPeak();

/// That peak in megabytes, or -1 where the system doesn't tell.
double peakMegabytes();
