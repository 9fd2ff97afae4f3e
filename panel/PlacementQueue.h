#pragma once

#include <memory>

class DownloadedFile;
class QObject;
class pvApplication_c;

// The host has one prompt for all pages. While it is open the event loop runs, so another download may
// finish.

/// Has the host prompt for a drawing and insert it if the user accepts; the file is removed in any case.
/// While a prompt is open the drawing waits for it to return; only the newest waits, and one that is
/// superseded is removed.
/// @param file of the complete drawing.
/// @param application the host; may be null.
/// @param asker whose drawing it is. Where it has gone when the prompt returns, nothing is inserted; one that
///        goes while its drawing waits calls withdrawDrawing().
void placeDrawing(std::unique_ptr<DownloadedFile> file, pvApplication_c* application, QObject* asker);

/// Removes a drawing that waits; one that the host prompts for already stays.
void withdrawDrawing(const QObject* asker);
