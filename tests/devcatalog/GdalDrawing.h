#pragma once

#include "devcatalog/drawings/Drawing.h"

#include <QMap>
#include <QString>
#include <QVector>

#include <string>

namespace test
{

/// A DWG file as GDAL's CAD driver understands it.
struct GdalDrawing {
    struct Feature {
        QString kind;   ///< the driver's name, for example "CADLine"
        QString colour; ///< "#RRGGBBAA"
        QVector<devcatalog::Point2> points;
    };

    bool opened = false;
    QMap<QString, QVector<Feature>> layers; ///< those with entities only, by name
    QMap<QString, QString> headerVariables; ///< by name, for example "$INSUNITS"

    /// @param bytes the file's content.
    static GdalDrawing read(const std::string& bytes);
};

} // namespace test
