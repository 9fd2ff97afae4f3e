#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

namespace bench
{

/// A request that was posted: its address, the value of its SOAPAction header, and its body.
struct RecordedPost {
    QUrl url;
    QByteArray action;
    QByteArray body;
};

/// The development catalog in a process of its own, so that neither its memory nor its threads count here.
/// While it runs, every name that this process asks for leads to it, and its certificates are trusted.
///
/// The program is started again as its own catalog: main() begins with serveIfAsked().
class CatalogProcess
{
public:
    CatalogProcess();
    CatalogProcess(const CatalogProcess&) = delete;
    CatalogProcess& operator=(const CatalogProcess&) = delete;
    /// Ends the process.
    ~CatalogProcess();

    /// @param serviceHost "host:port" as the libraries to measure were built for.
    /// @param delay milliseconds that each reply is kept back.
    /// @return whether it serves; a message for a person is on stderr otherwise.
    bool start(const QString& serviceHost, int delay = 0);

    /// @return the first request of an operation that came, to be sent again; empty when none came.
    RecordedPost recorded(const QString& operation) const;

    /// In the process that start() made: serves until the other one ends. @return whether this is that
    /// process.
    static bool serveIfAsked(int argc, char** argv);

private:
    void use(quint16 proxyPort, const QString& caFile);

    QTemporaryDir m_folder; ///< certificates, and a file for each operation's first request
    QString m_serviceHost;
    QProcess m_process;
};

} // namespace bench
