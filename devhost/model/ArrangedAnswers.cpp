#include "devhost/model/ArrangedAnswers.h"

namespace devhost
{

void ArrangedAnswers::fail(const QString& call, pvResult result, Outcome outcome)
{
    m_answers.insert(call, Answer{result, outcome});
}

std::optional<ArrangedAnswers::Answer> ArrangedAnswers::find(const QString& call) const
{
    const auto found = m_answers.constFind(call);
    return found == m_answers.constEnd() ? std::nullopt : std::optional(*found);
}

} // namespace devhost
