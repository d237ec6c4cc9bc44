#pragma once

#include <QImage>

/// The part `part` of what mark.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
/// gives, bit for bit, without the rest: a narrow mark that is scaled to a photo's width can be
/// many times as high as the photo.
///
/// Shape: the part's size, RGB32 or, with an alpha channel, premultiplied. Errors: null if
/// canScalePart() denies. Thread: any.
QImage scaledPart(const QImage& mark, const QSize& size, const QRect& part);

/// Whether scaledPart() can be had: for marks of 8 bits a channel that are scaled up, or left, in
/// both directions.
bool canScalePart(const QImage& mark, const QSize& size);
