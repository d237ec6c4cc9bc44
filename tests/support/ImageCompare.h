#pragma once

#include <QImage>
#include <QString>
#include <QTest>

/// Tells how two images differ, or an empty text if they are the same in size, format, resolution,
/// colour space, texts and in each byte of each row (row padding left out). Comparing with ==
/// overlooks resolution, texts and the unused byte of RGB32.
QString imageDifference(const QImage& actual, const QImage& expected);

#define COMPARE_IMAGES(actual, expected) QCOMPARE(imageDifference(actual, expected), QString())
