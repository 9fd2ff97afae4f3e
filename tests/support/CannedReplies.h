#pragma once

#include "tests/support/ScriptedReply.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

namespace test
{

/// One hit of a search, as the service describes it.
struct Hit {
    QString name;
    QString description = "A part";
    QString image = "pictures/part.png"; ///< below the catalog's web site
    QString supplier = "Supplier";
};

/// @return that many hits, named "Part 1" and so on.
QVector<Hit> hits(int count);

/// @param count what the reply says the number of hits is; the hits' own number when it is null.
ScriptedReply searchReply(const QVector<Hit>& hits, const QString& count = QString());

ScriptedReply configurationsReply(const QStringList& names);

/// @return a PNG of that many pixels, painted in a colour gradient.
QByteArray pngPicture(const QSize& size);

ScriptedReply pictureReply(const QByteArray& bytes);

} // namespace test
