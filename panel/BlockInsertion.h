#pragma once

class pvApplication_c;
class QObject;
class QString;

/// Has the host prompt the user to place a drawing, and inserts it as a block where the user says. Without an
/// active document nothing is asked and nothing inserted.
///
/// The host runs its event loop while the prompt is open.
/// @param application the host; may be null.
/// @param path of the drawing's file.
/// @param asker where it is gone when the prompt returns, nothing is inserted.
void promptAndInsertBlock(pvApplication_c* application, const QString& path, QObject* asker);
