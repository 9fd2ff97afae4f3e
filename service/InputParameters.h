#pragma once

class QDomNodeList;

/// Gives the parameters of a configuration, with their first two child elements, the service's type names in
/// place of those they came with.
/// @param parameters the reply's parameter elements; changed in their document.
void setParameterTypes(const QDomNodeList& parameters);
