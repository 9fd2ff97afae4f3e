#include "tests/host/ScriptedHostView.h"

#include <QFile>

namespace test
{

devhost::BlockPromptAnswer ScriptedHostView::promptForBlock(const devhost::BlockPrompt& prompt)
{
    m_prompts.push_back(prompt);
    QFile file(prompt.file);
    m_promptedContents.push_back(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    file.close();
    return HeadlessView::promptForBlock(prompt);
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
