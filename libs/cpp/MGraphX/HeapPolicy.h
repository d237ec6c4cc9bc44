#pragma once

namespace MGraphX
{

/// Keeps freed image memory in the process for the next image. Fresh pages from the system cost
/// more than most filters take for a whole photo. Call it first thing in main, before other
/// threads. Does nothing where the C library has no such setting.
void keepHeap();

/// Gives the memory kept so far back to the system; call it when a run of photos is over. Any
/// thread.
void releaseHeap();

} // namespace MGraphX
