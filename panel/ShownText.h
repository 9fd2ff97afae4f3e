#pragma once

#include <QString>

/// What a page shows of a text from outside: all of any real one, and of a longer one the first 10,000
/// characters. A label takes minutes to lay out a million, during which the host stands still.
QString shownText(const QString& text);
