#include "dev/host/model/StubbedAnswers.h"

namespace devhost
{

void StubbedAnswers::fail(const QString& call, pvResult result, Outcome outcome)
{
    m_answers.insert(call, Answer{result, outcome});
}

std::optional<StubbedAnswers::Answer> StubbedAnswers::find(const QString& call) const
{
    const auto found = m_answers.constFind(call);
    return found == m_answers.constEnd() ? std::nullopt : std::optional(*found);
}

} // namespace devhost
