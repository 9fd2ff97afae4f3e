#include "dev/host/Options.h"

#include "dev/host/Usage.h"

namespace devhost
{

namespace
{

const char DefaultTourFolder[] = "out/tour";
const char DefaultTerms[] = "bolt,washer,gear";

CatalogFaults faultsIn(const QHash<QString, QString>& values)
{
    CatalogFaults faults;
    faults.slow = values.contains("--slow");
    if (values["--drawings"] == "noise")
        faults.drawings = CatalogFaults::Drawings::Noise;
    else if (values["--drawings"] == "cut")
        faults.drawings = CatalogFaults::Drawings::CutShort;
    return faults;
}

QString given(const QHash<QString, QString>& values, const QString& option, const QString& otherwise)
{
    const QString value = values[option];
    return value.isEmpty() ? otherwise : value;
}

} // namespace

Options parseOptions(const QStringList& arguments, const QString& defaultLibrary, QString* error)
{
    const Usage usage;
    const QHash<QString, QString> values = usage.read(arguments.mid(1), error);

    Options options;
    if (values.contains("--help"))
        options.help = usage.text();
    options.library = given(values, "--library", defaultLibrary);
    options.caFile = values["--ca"];
    options.gallery = values.contains("--gallery");
    options.quiet = values.contains("--quiet");
    options.tour = values.contains("--tour");
    options.tourFolder = given(values, "--tour", DefaultTourFolder);
    options.longScenario = values.contains("--long");
    options.searchTerms = given(values, "--term", DefaultTerms).split(',');
    options.accountUser = values["--account"].section(':', 0, 0);
    options.accountPassword = values["--account"].section(':', 1);
    options.embeddedCatalog = values["--catalog"] != "none";
    options.catalogFaults = faultsIn(values);
    const QString size = values["--size"];
    if (!size.isEmpty())
        options.windowSize = QSize(size.section('x', 0, 0).toInt(), size.section('x', 1).toInt());
    options.settings.darkTheme = values["--theme"] == "dark";
    options.settings.webHelp = values.contains("--web-help");
    options.settings.language = given(values, "--language", "2").toInt();
    if (error->isEmpty() && options.help.isEmpty() && options.library.isEmpty())
        *error = "--library: a FILE that can be read is wanted, for the add-in was not built.";
    return options;
}

} // namespace devhost
