#include "bench/measuring/CatalogProcess.h"

#include "bench/measuring/ProcessFigures.h"
#include "dev/catalog/BuiltInOptions.h"
#include "dev/catalog/proxy/ConnectProxy.h"

#include <QCoreApplication>
#include <QFile>
#include <QNetworkProxy>
#include <QSslConfiguration>
#include <QTextStream>

#include <chrono>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <mutex>
#include <string>
#include <thread>

namespace bench
{

namespace
{

constexpr const char* ServeOption = "--serve-as-catalog";
constexpr int Patience = 30000; // Milliseconds.

struct Order {
    std::string serviceHost;
    std::filesystem::path folder;
    std::chrono::milliseconds delay{0};
};

/// Called in the catalog's threads.
void record(const devcatalog::HttpRequest& request, const std::filesystem::path& folder)
{
    static std::mutex mutex;
    const std::lock_guard<std::mutex> lock(mutex);
    if (request.operation().isEmpty())
        return;
    const auto file = folder / request.operation().toStdString();
    if (!std::filesystem::exists(file))
        std::ofstream(file, std::ios::binary) << request.path().toStdString() << '\n'
                                              << request.header("SOAPAction").toStdString() << '\n'
                                              << request.body.toStdString();
}

devcatalog::CatalogServerOptions serverOptions(const Order& order)
{
    devcatalog::CatalogServerOptions options = devcatalog::builtInOptions();
    options.serviceHost = order.serviceHost;
    options.port = 0;
    options.certificateFolder = order.folder / "certificates";
    options.beforeReply = [order](const devcatalog::HttpRequest& request, const auto&) {
        record(request, order.folder);
        if (order.delay.count() > 0)
            std::this_thread::sleep_for(order.delay);
    };
    return options;
}

/// Serves, tells where on stdout, and ends with stdin.
void serve(const Order& order, int& argc, char** argv)
{
    // A real catalog runs on a machine of its own and takes no processor from the host.
    yieldToOtherProcesses();
    QCoreApplication application(argc, argv);
    devcatalog::CatalogServer server(serverOptions(order));
    server.start();
    const devcatalog::ConnectProxy proxy(static_cast<quint16>(server.port()));
    std::cout << proxy.port() << ' ' << server.caFile().string() << std::endl;
    std::thread watch([&application] {
        while (std::cin.get() != std::istream::traits_type::eof()) {
        }
        QMetaObject::invokeMethod(&application, "quit", Qt::QueuedConnection);
    });
    QCoreApplication::exec();
    watch.join();
}

} // namespace

CatalogProcess::CatalogProcess() = default;

CatalogProcess::~CatalogProcess()
{
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(Patience))
        m_process.kill();
}

bool CatalogProcess::serveIfAsked(int argc, char** argv)
{
    if (argc != 5 || std::string(argv[1]) != ServeOption)
        return false;
    try {
        serve({argv[2], argv[3], std::chrono::milliseconds(std::stoi(argv[4]))}, argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
    }
    return true;
}

bool CatalogProcess::start(const QString& serviceHost, int delay)
{
    m_serviceHost = serviceHost;
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationFilePath(),
                    {ServeOption, serviceHost, m_folder.path(), QString::number(delay)});
    while (!m_process.canReadLine())
        if (!m_process.waitForReadyRead(Patience))
            return false;
    const QStringList told = QString::fromLocal8Bit(m_process.readLine()).trimmed().split(' ');
    if (told.size() != 2)
        return false;
    use(told[0].toUShort(), told[1]);
    return true;
}

RecordedPost CatalogProcess::recorded(const QString& operation) const
{
    QFile file(m_folder.filePath(operation));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray path = file.readLine().trimmed();
    const QByteArray action = file.readLine().trimmed();
    return {QUrl("https://" + m_serviceHost + QString::fromUtf8(path)), action, file.readAll()};
}

void CatalogProcess::use(quint16 proxyPort, const QString& caFile)
{
    QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, "127.0.0.1", proxyPort});
    QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    trusting.addCaCertificates(caFile);
    QSslConfiguration::setDefaultConfiguration(trusting);
}

} // namespace bench
