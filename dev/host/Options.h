#pragma once

#include "dev/host/model/HostSettings.h"

#include <QSize>
#include <QStringList>

namespace devhost
{

/// How the embedded catalog serves: as it should, or worse, to try the add-in against such a service.
struct CatalogFaults {
    enum class Drawings { Whole, Noise, CutShort };

    bool slow = false; ///< A reply takes 0 to 300 ms, so that replies overtake one another.
    Drawings drawings = Drawings::Whole;
};

/// What the command line of the program asks for.
struct Options {
    QString help;    ///< The usage text when that is all that is asked for; else empty.
    QString library; ///< Path of the add-in library.
    HostSettings settings;
    bool embeddedCatalog = true; ///< Starts the catalog service in this process.
    CatalogFaults catalogFaults;
    QString caFile;       ///< Certificate authority to trust besides those of the system; may be empty.
    QSize windowSize;     ///< Not valid when none was given.
    bool gallery = false; ///< Opens the gallery of styled widgets at the start.
    bool quiet = false;   ///< Leaves out the add-in's debug output.
    bool tour = false;
    QString tourFolder;        ///< Where the tour saves its screenshots.
    bool longScenario = false; ///< The tour goes back and forth, fails, and cancels, too.
    QString accountUser;       ///< The account that the tour logs in with; empty when none was given.
    QString accountPassword;
    QStringList searchTerms; ///< Of the tour, at least one.
};

/// Reads the program's arguments.
/// @param arguments with the program's name first.
/// @param error receives one sentence when an argument is wrong (see Usage); else it stays empty.
Options parseOptions(const QStringList& arguments, const QString& defaultLibrary, QString* error);

} // namespace devhost
