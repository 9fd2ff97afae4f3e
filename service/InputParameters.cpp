#include "service/InputParameters.h"

#include <QDomElement>
#include <QVector>

void setParameterTypes(const QDomNodeList& parameters)
{
    // The list is put together anew at the first look after each change of the document, so all looks come
    // first.
    QVector<QDomElement> elements;
    for (int i = 0; i < parameters.count(); ++i)
        elements.append(parameters.item(i).toElement());

    const QString type = QLatin1String("xsi:type");
    for (QDomElement& parameter : elements) {
        parameter.removeAttribute(type);
        parameter.setAttribute(type, QLatin1String("InputParameter"));
        QDomElement name = parameter.firstChildElement();
        QDomElement value = name.nextSiblingElement();
        name.setAttribute(type, QLatin1String("Parameter"));
        value.setAttribute(type, QLatin1String("ParameterValue"));
    }
}
