#pragma once

#include <QScrollArea>

class QToolButton;

namespace devhost
{

/// A tab of the ribbon. Where the window is narrower than its panels, an arrow at either end and the wheel
/// lead to the rest.
class RibbonPage final : public QScrollArea
{
    Q_OBJECT

public:
    /// @param content goes over to the page.
    explicit RibbonPage(QWidget* content);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QToolButton* createArrow(Qt::ArrowType direction, int step);
    void scroll(int step);
    void showArrows();

    QToolButton* m_left = nullptr;
    QToolButton* m_right = nullptr;
};

} // namespace devhost
