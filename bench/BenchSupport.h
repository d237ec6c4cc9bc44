#pragma once

#include <functional>
#include <QImage>
#include <string>

using Filter = std::function<QImage(const QImage&)>;

/// The photo that benchmarks work on: soft shapes with some noise, as photos have.
/// `Alpha::Soft`: it fades and its alpha has noise, too.
enum class Alpha { Opaque, Soft };
QImage benchPhoto(const QSize& size, QImage::Format format = QImage::Format_ARGB32,
                  Alpha alpha = Alpha::Opaque);

/// Registers `name` for a full photo and for the reduced one of the preview, each as fast filter,
/// as plain loop and as a copy of the same words with memcpy. Counters: "ns_px", nanoseconds for
/// each pixel of the source, and "x_copy", the time as a multiple of the median of copies that this
/// program timed at its start.
void benchFilter(const std::string& name, const Filter& fast, const Filter& plain,
                 QImage::Format format = QImage::Format_ARGB32, Alpha alpha = Alpha::Opaque);

/// Runs what is registered, with a kept heap. The answer is main's.
int runBenchmarks(int argc, char** argv);
