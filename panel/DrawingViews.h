#pragma once

#include <QString>
#include <QStringList>

/// The drawing view that the next download asks for, of whichever page: a view's display text after a detail
/// page has been made, its wire value after a choice. Starts empty. Written by PreviewUI; read by
/// DrawingDownload.
extern QString g_drawingView;

/// @return the display texts in the order of the view list, each with its leading blank.
QStringList drawingViewTexts();

/// @return the wire value of a display text; any other text as it stands.
QString drawingViewWireValue(const QString& text);

/// @return the wire value for a download: the detailed view's where none has been chosen.
QString drawingViewToRequest(const QString& view);

/// @return why the service made no drawing for a display text; empty for any other text, wire values
/// included.
QString unsupportedViewMessage(const QString& view);
