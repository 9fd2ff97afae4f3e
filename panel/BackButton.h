#pragma once

class QPushButton;

/// Gives a page's back button its place in the corner, its icon and its tool tip.
void setUpBackButton(QPushButton* button);
