#pragma once

#include <QObject>

/// Scrolls a row of a view into sight when the keyboard's focus comes into it, which Qt does in scroll areas
/// but not in views.
class RowFocus : public QObject
{
    Q_OBJECT

public:
    /// @param row owns it. The controls that it has by now are the ones that can be met; the views are those
    /// that it is in when the focus comes.
    explicit RowFocus(QWidget* row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show();

    QWidget* m_row = nullptr;
};
