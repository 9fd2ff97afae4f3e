#include "tests/host/ScriptedHostView.h"

#include <QFile>

namespace test
{

namespace
{

class ScriptedPane final : public devhost::PaneView
{
public:
    ScriptedPane(std::shared_ptr<QWidget> widget, std::optional<quintptr> reportedHandle)
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
    auto widget = m_keptPane ? m_keptPane : std::make_shared<QWidget>();
    widget->setWindowTitle(title);
    widget->setAttribute(Qt::WA_NativeWindow);
    widget->resize(400, 700);
    if (m_keepsPane)
        m_keptPane = widget;
    m_paneWidget = widget.get();
    return std::make_unique<ScriptedPane>(widget, m_reportedHandle);
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
