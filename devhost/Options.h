#pragma once

#include "devhost/model/HostSettings.h"

#include <QStringList>

namespace devhost
{

/// What the command line of the program asks for.
struct Options {
    QString library; ///< Path of the add-in library.
    HostSettings settings;
    bool embeddedCatalog = true; ///< Starts the catalog service in this process.
    QString caFile; ///< Certificate authority to trust besides those of the system; may be empty.
    bool tour = false;
    QString tourFolder;  ///< Where the tour saves its screenshots.
    QString accountUser; ///< The account that the tour logs in with; empty when none was given.
    QString accountPassword;
    QString searchTerm;
};

/// Reads the program's arguments. Help is printed, and ends the program, as the toolkit does it.
/// @param arguments with the program's name first.
/// @param error receives one sentence when an argument is wrong; else it stays empty.
Options parseOptions(const QStringList& arguments, const QString& defaultLibrary, QString* error);

} // namespace devhost
