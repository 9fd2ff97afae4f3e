#pragma once

#include <QString>

// The add-in's two modal boxes. Both run a nested event loop: when they return, the page that opened them may
// be gone, so a caller touches nothing of its own afterwards, or guards it.

/// Shows @p text under the title "Error" with the critical icon.
void showErrorBox(const QString& text);

/// Shows @p text under the title "Message" with the information icon.
void showInformationBox(const QString& text);

/// The error box for a resource that cannot be opened.
/// @param path the resource's path, shown in the text.
void showCannotOpenBox(const QString& path);
