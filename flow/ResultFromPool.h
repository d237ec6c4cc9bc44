#pragma once

#include "flow/RaceDetector.h"

#include <QtConcurrentRun>

/// Calls a function on a thread of the global pool, waits for it without handling events, and gives
/// its result.
template <class Function> auto resultFromPool(const Function& function)
{
    RaceDetector::release(&function);
    auto result = QtConcurrent::run([&function] {
                      RaceDetector::acquire(&function);
                      auto given = function();
                      RaceDetector::release(&function);
                      return given;
                  }).result();
    RaceDetector::acquire(&function);
    return result;
}
