#pragma once

#include <QString>

/// One operation of the catalog service: what is sent where, and which element of the reply carries the
/// result. The order and the fixed values of a request's elements are its template's.
struct ServiceOperation {
    const char* name;          ///< Operation element, and last part of the SOAPAction.
    const char* templateName;  ///< Envelope template in the bundle, below ":/3DPH/".
    const char* documentName;  ///< Name of the request's document.
    const QString& endpoint;   ///< Address it is posted to.
    const char* resultElement; ///< What the reply is read for: the first element of this name, or all.
};

// The operations that are sent. (ModelDetail.xml, GetModelDetail, is in the bundle and has no sender.)
extern const ServiceOperation ServiceLoginOperation;
extern const ServiceOperation GenerateApiKeyOperation;
extern const ServiceOperation UserLoginOperation;
extern const ServiceOperation SearchOperation;
extern const ServiceOperation GetConfigInfoOperation;
extern const ServiceOperation GetConfigParamsOperation;
extern const ServiceOperation GetDownload2DOperation;
