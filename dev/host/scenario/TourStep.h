#pragma once

#include <QString>
#include <QVector>

#include <functional>

namespace devhost
{

/// What there was to see when an outcome was looked for.
struct Observation {
    bool isOutcome = false;
    QString text; ///< What was seen, in one line.
};

/// One step of a scenario: something a user does, and what is to be seen then.
struct TourStep {
    QString name; ///< What the user does, in the imperative.
    /// Does it. @return why it cannot be done yet, and is tried again; empty once it is done. May be empty.
    std::function<QString()> act;
    /// Looks for the outcome until it is there. May be empty where a box is the outcome.
    std::function<Observation()> look;
    QString box;      ///< Text of the message box that has to come; any other box ends the tour.
    QString retryBox; ///< Text of a box after which the step is done again.
    int seconds = 20; ///< How long until the outcome must have been seen.
};

using Scenario = QVector<TourStep>;

} // namespace devhost
