#pragma once

#include <QTextEdit>

/// A text edit whose text can be selected and changed, but not dragged. While text is being dragged the event
/// loop runs, a late reply may take the row away, and Qt's text edit does not survive that.
class DescriptionEdit : public QTextEdit
{
    Q_OBJECT

public:
    using QTextEdit::QTextEdit;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    /// Begins at the text's start. By itself a text edit looks for its cursor, and lays out for that.
    void showEvent(QShowEvent* event) override;
};
