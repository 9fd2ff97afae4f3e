#include "bench/measuring/CatalogProcess.h"

#include "dev/catalog/CatalogServer.h"
#include "dev/catalog/proxy/ConnectProxy.h"

#include <QCoreApplication>
#include <QNetworkProxy>
#include <QSslConfiguration>
#include <QTextStream>

#include <chrono>
#include <exception>
#include <iostream>
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
    std::string certificateFolder;
    std::chrono::milliseconds delay{0};
};

devcatalog::CatalogServerOptions serverOptions(const Order& order)
{
    devcatalog::CatalogServerOptions options;
    options.serviceHost = order.serviceHost;
    options.serviceAccount = {PARTHARBOR_SERVICE_CATALOG, PARTHARBOR_SERVICE_USER,
                              PARTHARBOR_SERVICE_PASSWORD, PARTHARBOR_SERVICE_ENDUSER};
    options.users = {{CatalogProcess::User, CatalogProcess::Password}};
    options.certificateFolder = order.certificateFolder;
    if (order.delay.count() > 0)
        options.beforeReply = [delay = order.delay](const auto&, auto&) {
            std::this_thread::sleep_for(delay);
        };
    return options;
}

/// Serves, tells where on stdout, and ends with stdin.
void serve(const Order& order, int& argc, char** argv)
{
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

const char* const CatalogProcess::User = "demo@partharbor.example";
const char* const CatalogProcess::Password = "demo";

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
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationFilePath(),
                    {ServeOption, serviceHost, m_certificateFolder.path(), QString::number(delay)});
    while (!m_process.canReadLine())
        if (!m_process.waitForReadyRead(Patience))
            return false;
    const QStringList told = QString::fromLocal8Bit(m_process.readLine()).trimmed().split(' ');
    if (told.size() != 2)
        return false;
    use(told[0].toUShort(), told[1]);
    return true;
}

void CatalogProcess::use(quint16 proxyPort, const QString& caFile)
{
    QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, "127.0.0.1", proxyPort});
    QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    trusting.addCaCertificates(caFile);
    QSslConfiguration::setDefaultConfiguration(trusting);
}

} // namespace bench
