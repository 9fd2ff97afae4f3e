#pragma once

#include <QByteArray>
#include <QPixmap>

/// Decodes a picture from outside, its format detected from the data. Vector formats, which can ask for any
/// amount of work, and pictures of more than 16 million pixels count as none; so do cut pictures and bytes
/// that are no image.
/// @return the picture, larger ones reduced to 1024 pixels a side; null when there is none.
QPixmap pictureFromBytes(const QByteArray& bytes);
