#include "dev/host/headless/HeadlessView.h"

#include <QFile>

namespace devhost
{

namespace
{

class HeadlessPane final : public PaneView
{
public:
    HeadlessPane(std::shared_ptr<QWidget> widget, std::optional<quintptr> reportedHandle)
        : m_widget(std::move(widget)), m_reportedHandle(reportedHandle)
    {
    }

    quintptr windowHandle() const override { return m_reportedHandle.value_or(m_widget->winId()); }
    bool isVisible() const override { return m_widget->isVisible(); }
    void setVisible(bool visible) override { m_widget->setVisible(visible); }

private:
    std::shared_ptr<QWidget> m_widget;
    std::optional<quintptr> m_reportedHandle;
};

} // namespace

void HeadlessView::acceptPromptsAt(double x, double y)
{
    answerPrompts([x, y](const BlockPrompt& prompt) {
        BlockPromptAnswer answer{BlockPromptAnswer::Accepted, prompt.preset};
        answer.placement.x = x;
        answer.placement.y = y;
        return answer;
    });
}

std::unique_ptr<PaneView> HeadlessView::createPane(const QString& title)
{
    auto widget = m_keptPane ? m_keptPane : std::make_shared<QWidget>();
    widget->setWindowTitle(title);
    widget->setAttribute(Qt::WA_NativeWindow);
    widget->resize(400, 700);
    if (m_keepsPane)
        m_keptPane = widget;
    m_paneWidget = widget.get();
    return std::make_unique<HeadlessPane>(widget, m_reportedHandle);
}

BlockPromptAnswer HeadlessView::promptForBlock(const BlockPrompt& prompt)
{
    ++m_promptCount;
    return m_promptScript ? m_promptScript(prompt) : BlockPromptAnswer();
}

std::optional<BlockGeometry> HeadlessView::readBlock(const QString& file, DrawingUnit /*unit*/)
{
    return QFile::exists(file) ? std::optional(BlockGeometry()) : std::nullopt;
}

} // namespace devhost
