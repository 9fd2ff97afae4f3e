#pragma once

#include <pvInterface/pvEnumerations.h>

#include <QHash>
#include <QString>

#include <optional>

namespace devhost
{

/// What an arranged answer gives besides its result code.
enum class Outcome {
    Usual,  ///< The call does its work and gives its object or value.
    Nothing ///< The call does nothing: objects come back null, values are left as they are, arrays stay
            ///< empty.
};

/// Answers that a test arranged for SDK calls, by the name of the call ("GetWorkspace", "MenuItem.GetID").
class StubbedAnswers
{
public:
    struct Answer {
        pvResult result;
        Outcome outcome;
    };

    /// Has every further call of that name answer @p result with that outcome.
    void fail(const QString& call, pvResult result, Outcome outcome = Outcome::Nothing);
    /// Has every call answer as usual again.
    void clear() { m_answers.clear(); }

    /// @return the answer arranged for the call; nothing when it answers as usual.
    std::optional<Answer> find(const QString& call) const;

private:
    QHash<QString, Answer> m_answers;
};

} // namespace devhost
