#pragma once

#include <QDialog>

namespace devhost
{

/// Shows a page of text to read, no larger than the screen.
class TextDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @param markdownFile the text; its first heading is in it.
    TextDialog(const QString& title, const QString& markdownFile, QWidget* parent = nullptr);
};

} // namespace devhost
