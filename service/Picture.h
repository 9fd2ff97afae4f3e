#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

/// In pixels: more than any pane shows of a picture, and few megabytes.
constexpr QSize MaximumPictureSize(1024, 1024);

/// Decodes a picture from outside, on any thread: a PNG, JPEG, GIF or BMP, told by its data. Other formats
/// count as none, and so do pictures of more than 16 million pixels or 32 scans, cut pictures, and bytes that
/// are no image.
/// @param bound in pixels; larger pictures are reduced to fit, smaller ones stay.
/// @return the picture; null when there is none.
QImage imageFromBytes(const QByteArray& bytes, const QSize& bound = MaximumPictureSize);
