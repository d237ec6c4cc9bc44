#pragma once

#include <QString>

class QFileInfo;

/// A photo's name: its file name up to the last dot. "a.b.jpeg" is "a.b", ".hidden" is empty, and a
/// name without a dot stays whole.
QString baseNameOf(const QFileInfo& file);
