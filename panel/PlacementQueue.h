#pragma once

class PreviewUI;

// The host has one prompt for all pages. While it is open the event loop runs, so another download may
// finish.

/// Has a page prompt for its downloaded drawing. While a prompt is open the page waits for it to return; only
/// the newest waits, and an older one that did loses its drawing.
/// @param page whose drawing is complete. It may go at any time.
void placeDrawing(PreviewUI* page);

/// A page's drawing is no longer to be placed.
void withdrawDrawing(const PreviewUI* page);
