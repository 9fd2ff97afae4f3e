#include "panel/ShownText.h"

QString shownText(const QString& text)
{
    constexpr int maximumLength = 10'000;
    return text.left(maximumLength);
}
