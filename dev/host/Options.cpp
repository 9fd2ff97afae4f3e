#include "dev/host/Options.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace devhost
{

namespace
{

const char DefaultTourFolder[] = "out/tour";

/// The folder after --tour can be left out, which the parser has no means for.
QStringList withTourFolder(QStringList arguments)
{
    const int tour = arguments.indexOf("--tour");
    if (tour < 0)
        return arguments;
    const bool hasFolder = tour + 1 < arguments.size() && !arguments.at(tour + 1).startsWith('-');
    arguments[tour] = "--tour=" + (hasFolder ? arguments.takeAt(tour + 1) : QString(DefaultTourFolder));
    return arguments;
}

void addOptions(QCommandLineParser& parser, const QString& defaultLibrary)
{
    parser.setApplicationDescription("Development host: loads the add-in library as Plotvane does.");
    parser.addHelpOption();
    parser.addOptions({
        {"library", "Add-in library to load.", "file", defaultLibrary},
        {"language", "Number of the language that the host reports; 2 is English, 1 German.", "number", "2"},
        {"theme", "Colour theme: light or dark.", "theme", "light"},
        {"web-help", "Help opens on the web."},
        {"catalog", "Catalog service: embedded starts one in this process, none starts none.", "which",
         "embedded"},
        {"ca", "PEM file of a certificate authority to trust for the catalog service.", "file"},
        {"slow", "The embedded catalog takes 0 to 300 ms for a reply."},
        {"drawings", "Drawing files of the embedded catalog: whole, noise, or cut short.", "which", "whole"},
        {"size", "Size of the window.", "width x height"},
        {"gallery", "Opens the gallery: standard widgets in the add-in's dark style sheet."},
        {"tour", "Plays the whole scenario by itself and saves screenshots in the folder DIR.", "DIR"},
        {"long", "The tour takes the long scenario: several searches, parts, drawings, and what goes wrong."},
        {"account", "Account that the tour logs in with, instead of the embedded catalog's.",
         "user:password"},
        {"term", "What the tour searches for; the long one takes several in turn, joined by commas.", "text",
         "bolt,washer,gear"},
    });
}

/// @param text "1280x800". @return an invalid size when it is none.
QSize sizeIn(const QString& text)
{
    const auto match = QRegularExpression("^(\\d{3,5})x(\\d{3,5})$").match(text);
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

CatalogFaults faultsIn(const QCommandLineParser& parser)
{
    CatalogFaults faults;
    faults.slow = parser.isSet("slow");
    if (parser.value("drawings") == "noise")
        faults.drawings = CatalogFaults::Drawings::Noise;
    else if (parser.value("drawings") == "cut")
        faults.drawings = CatalogFaults::Drawings::CutShort;
    return faults;
}

} // namespace

Options parseOptions(const QStringList& arguments, const QString& defaultLibrary, QString* error)
{
    QCommandLineParser parser;
    addOptions(parser, defaultLibrary);
    parser.process(withTourFolder(arguments));

    Options options;
    options.library = parser.value("library");
    options.caFile = parser.value("ca");
    options.gallery = parser.isSet("gallery");
    options.tour = parser.isSet("tour");
    options.tourFolder = parser.value("tour");
    options.longScenario = parser.isSet("long");
    options.searchTerms = parser.value("term").split(',');
    const QString account = parser.value("account");
    options.accountUser = account.section(':', 0, 0);
    options.accountPassword = account.section(':', 1);
    options.embeddedCatalog = parser.value("catalog") == "embedded";
    options.catalogFaults = faultsIn(parser);
    options.windowSize = sizeIn(parser.value("size"));
    options.settings.darkTheme = parser.value("theme") == "dark";
    options.settings.webHelp = parser.isSet("web-help");
    bool isNumber = false;
    options.settings.language = parser.value("language").toInt(&isNumber);

    if (!parser.positionalArguments().isEmpty())
        *error = QString("Not understood: %1").arg(parser.positionalArguments().join(' '));
    else if (!isNumber)
        *error = "--language takes a number.";
    else if (!QStringList{"light", "dark"}.contains(parser.value("theme")))
        *error = "--theme takes light or dark.";
    else if (!QStringList{"embedded", "none"}.contains(parser.value("catalog")))
        *error = "--catalog takes embedded or none.";
    else if (!QStringList{"whole", "noise", "cut"}.contains(parser.value("drawings")))
        *error = "--drawings takes whole, noise or cut.";
    else if (parser.isSet("size") && !options.windowSize.isValid())
        *error = "--size takes a width and a height, as 1280x800.";
    else if (parser.isSet("account") && !account.contains(':'))
        *error = "--account takes user:password.";
    else if (options.library.isEmpty())
        *error = "--library is missing: this program was built without the add-in.";
    return options;
}

} // namespace devhost
