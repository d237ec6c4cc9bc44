#pragma once

/// Saves flows over and over, until the process is ended from outside. Writes "ready" whenever
/// each of them has been saved.
int saveFlowsForEver();

/// Starts the program and loads each of these flows by its menu: all have to be there, and whole.
int checkFlows();
