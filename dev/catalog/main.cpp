/// The development catalog as a program of its own.

#include "dev/catalog/BuiltInOptions.h"

#include <QCoreApplication>

#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

constexpr const char* Usage =
    "Usage: devcatalog-server [--port N] [--certificates DIR] [--log]\n"
    "Serves the development catalog on this machine until it is ended.\n"
    "  --port N            listen at this port, 0 for any free one, instead of the service host's\n"
    "  --certificates DIR  keep the certificate authority here instead of in the user's cache\n"
    "  --log               print a line for each request\n";

int parsePort(const std::string& text)
{
    const bool isNumber =
        !text.empty() && text.size() <= 5 && text.find_first_not_of("0123456789") == std::string::npos;
    const int port = isNumber ? std::stoi(text) : -1;
    if (port < 0 || port > 65535)
        throw std::invalid_argument("'" + text + "' is no port.");
    return port;
}

devcatalog::CatalogServerOptions parseArguments(const std::vector<std::string>& arguments)
{
    devcatalog::CatalogServerOptions options = devcatalog::builtInOptions();
    options.preparesPictures = true;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        const bool hasValue = argument + 1 != arguments.end();
        if (*argument == "--port" && hasValue)
            options.port = parsePort(*++argument);
        else if (*argument == "--certificates" && hasValue)
            options.certificateFolder = *++argument;
        else if (*argument == "--log")
            options.log = [](const std::string& line) { std::cout << line << std::endl; };
        else
            throw std::invalid_argument("'" + *argument + "' is not understood.\n" + Usage);
    }
    return options;
}

int run(const std::vector<std::string>& arguments)
{
    if (!arguments.empty() && arguments.front() == "--help") {
        std::cout << Usage;
        return 0;
    }
    const devcatalog::CatalogServerOptions options = parseArguments(arguments);
    devcatalog::CatalogServer server(options);
    server.start();
    std::cout << "The development catalog serves https://" << server.serviceHost() << " at port "
              << server.port() << " of 127.0.0.1.\nIts certificate authority: " << server.caFile().string()
              << "\nLog in as " << options.users.front().userId << ", password "
              << options.users.front().password << "." << std::endl;
    return QCoreApplication::exec(); // a signal ends the program; it holds nothing that would be lost
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        return 1;
    }
}
