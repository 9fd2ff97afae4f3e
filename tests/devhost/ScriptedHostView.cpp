#include "tests/devhost/ScriptedHostView.h"

#include <QFile>

namespace test
{

namespace
{

class ScriptedPane final : public devhost::PaneView
{
public:
    ScriptedPane(const QString& title, std::optional<quintptr> reportedHandle)
        : m_reportedHandle(reportedHandle)
    {
        m_widget.setWindowTitle(title);
        m_widget.setAttribute(Qt::WA_NativeWindow);
        m_widget.resize(400, 700);
    }

    QWidget* widget() { return &m_widget; }

    quintptr windowHandle() const override { return m_reportedHandle.value_or(m_widget.winId()); }
    bool isVisible() const override { return m_widget.isVisible(); }
    void setVisible(bool visible) override { m_widget.setVisible(visible); }

private:
    QWidget m_widget;
    std::optional<quintptr> m_reportedHandle;
};

} // namespace

void ScriptedHostView::acceptPromptsAt(double x, double y)
{
    answerPrompts([x, y](const devhost::BlockPrompt& prompt) {
        devhost::BlockPromptAnswer answer{devhost::BlockPromptAnswer::Accepted, prompt.preset};
        answer.placement.x = x;
        answer.placement.y = y;
        return answer;
    });
}

std::unique_ptr<devhost::PaneView> ScriptedHostView::createPane(const QString& title)
{
    if (m_refusesPanes)
        return nullptr;
    auto pane = std::make_unique<ScriptedPane>(title, m_reportedHandle);
    m_paneWidget = pane->widget();
    return pane;
}

devhost::BlockPromptAnswer ScriptedHostView::promptForBlock(const devhost::BlockPrompt& prompt)
{
    m_prompts.push_back(prompt);
    QFile file(prompt.file);
    m_promptedContents.push_back(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    return m_promptScript ? m_promptScript(prompt) : devhost::BlockPromptAnswer();
}

std::optional<devhost::BlockGeometry> ScriptedHostView::readBlock(const QString& file)
{
    const auto set = m_blocks.constFind(file);
    if (set != m_blocks.constEnd())
        return *set;
    return QFile::exists(file) ? std::optional(devhost::BlockGeometry()) : std::nullopt;
}

bool ScriptedHostView::openWebHelp(const QString& address)
{
    m_openedHelp.append(address);
    return true;
}

bool ScriptedHostView::openHelpFile(const QString& file, long topic)
{
    m_openedHelp.append(file + '#' + QString::number(topic));
    return true;
}

} // namespace test
