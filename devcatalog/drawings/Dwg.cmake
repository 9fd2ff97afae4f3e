# The writer of DWG files and what it needs.
target_sources(devcatalog PRIVATE
  drawings/BitWriter.cpp
  drawings/DrawingCheck.cpp
  drawings/DrawingExtents.cpp
  drawings/DwgClasses.cpp
  drawings/DwgCrc.cpp
  drawings/DwgDictionaries.cpp
  drawings/DwgDimensionVariables.cpp
  drawings/DwgDocument.cpp
  drawings/DwgEntities.cpp
  drawings/DwgFile.cpp
  drawings/DwgGuid.cpp
  drawings/DwgHeaderVariables.cpp
  drawings/DwgObject.cpp
  drawings/DwgObjectMap.cpp
  drawings/DwgSpaces.cpp
  drawings/DwgTables.cpp
  drawings/DwgText.cpp
  drawings/DwgWriter.cpp)
