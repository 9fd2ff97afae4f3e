#pragma once

#include <QWidget>

class QString;

/// Shows every standard widget in its main states, so that a style sheet can be judged by eye.
///
/// The message boxes are embedded: they are children of the gallery and look as they do on their own.
class WidgetGallery : public QWidget
{
    Q_OBJECT

public:
    /// @param parent owner of the gallery, or null for a window of its own.
    explicit WidgetGallery(QWidget* parent = nullptr);

    /// Gives the gallery and everything in it this style sheet; its menus and tool tips follow.
    /// @param text the sheet itself, not a path; an empty text restores the application's look.
    void applyStyleSheet(const QString& text);
};
