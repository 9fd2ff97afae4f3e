#pragma once

#include <QByteArray>
#include <QPixmap>

/// Decodes a picture from outside: a PNG, JPEG, GIF or BMP, told by its data. Other formats count as none,
/// and so do pictures of more than 16 million pixels or 32 scans, cut pictures, and bytes that are no image.
/// @return the picture, larger ones reduced to 1024 pixels a side; null when there is none.
QPixmap pictureFromBytes(const QByteArray& bytes);
