#include "panel/DrawingViews.h"

#include <QObject>

QString g_drawingView;

namespace
{

struct DrawingView {
    const char* text;
    const char* wireValue;
    const char* messageText; ///< The display text as the messages know it: one is spelled otherwise.
    const char* unsupported;
};

constexpr DrawingView Views[] = {
    {" Detailed", "eDrawingView_PREDEFINED", " Detailed", "Detailed View is not supported."},
    {" 4 View", "eDrawingView_4VIEW", " 4 View", "4 View is not supported."},
    {" Mulit View", "eDrawingView_MULTI", " Multi View", "Multi View is not supported."},
    {" Front", "eDrawingView_FRONT", " Front", "Front View is not supported."},
    {" Top", "eDrawingView_TOP", " Top", "Top View is not supported."},
    {" Right", "eDrawingView_RIGHT", " Right", "Right View is not supported."},
    {" Back", "eDrawingView_BACK", " Back", "Back View is not supported."},
    {" Bottom", "eDrawingView_BOTTOM", " Bottom", "Bottom View is not supported."},
    {" Left", "eDrawingView_LEFT", " Left", "Left View is not supported."},
    {" Isometric", "eDrawingView_ISOMETRIC", " Isometric", "Isometric View is not supported."},
    {" Dimetric", "eDrawingView_DIMETRIC", " Dimetric", "Dimetric View is not supported."},
    {" Trimetric", "eDrawingView_TRIMETRIC", " Trimetric", "Trimetric View is not supported."},
};

} // namespace

QStringList drawingViewTexts()
{
    QStringList texts;
    for (const DrawingView& view : Views)
        texts.append(QLatin1String(view.text));
    return texts;
}

QString drawingViewWireValue(const QString& text)
{
    for (const DrawingView& view : Views)
        if (text == QLatin1String(view.text))
            return QLatin1String(view.wireValue);
    return text;
}

QString drawingViewToRequest(const QString& view)
{
    if (view.isEmpty() || view == QLatin1String(Views[0].text))
        return QLatin1String(Views[0].wireValue);
    return view;
}

QString unsupportedViewMessage(const QString& view)
{
    for (const DrawingView& row : Views)
        if (view == QLatin1String(row.messageText))
            return QObject::tr(row.unsupported);
    return QString();
}
