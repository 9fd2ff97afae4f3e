#pragma once

#include <QString>

// Addresses of the catalog service, built once at load from the service host that the build is configured
// with.

/// Endpoint of GenerateApiKeyByDescription.
extern const QString AdminServiceUrl;
/// Endpoint of ServiceLogin.
extern const QString ContentServiceUrl;
/// Endpoint of every other operation.
extern const QString ExternalServiceUrl;
/// XML namespace of the operations and prefix of every SOAPAction; http, not https.
extern const QString ServiceNamespace;
/// Address of the catalog's web site, with its closing "/".
extern const QString ServiceBaseUrl;
