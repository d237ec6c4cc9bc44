#pragma once

#include <cstddef>
#include <cstdint>

class QApplication;
class QString;

/// The application that a target runs in: offscreen, silent, and in a home of its own. It is made
/// by the first call and lives as long as the process.
QApplication& fuzzApplication();

/// What the fuzzer has made up, as the program reads files: UTF-8, with a mark for what is none.
QString textOf(const uint8_t* data, size_t size);

/// Ends the process as a finding unless `holds`.
void require(bool holds, const char* what);
