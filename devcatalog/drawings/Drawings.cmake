target_sources(devcatalog PRIVATE
  drawings/PartDrawing.cpp
  drawings/families/Actuators.cpp
  drawings/families/Bores.cpp
  drawings/families/Dimensions.cpp
  drawings/families/DriveParts.cpp
  drawings/families/Fasteners.cpp
  drawings/families/PartSolid.cpp
  drawings/families/StructuralParts.cpp
  drawings/solids/Ball.cpp
  drawings/solids/Body.cpp
  drawings/solids/Coil.cpp
  drawings/solids/Curve.cpp
  drawings/solids/Extrusion.cpp
  drawings/solids/HexagonPrism.cpp
  drawings/solids/Profile.cpp
  drawings/solids/Revolution.cpp
  drawings/solids/Sweep.cpp
  drawings/solids/Thread.cpp
  drawings/solids/ToothedWheel.cpp
  drawings/views/Camera.cpp
  drawings/views/CentreLines.cpp
  drawings/views/CurveSplitter.cpp
  drawings/views/HiddenLines.cpp
  drawings/views/IntervalSet.cpp
  drawings/views/LineWork.cpp
  drawings/views/Occluder.cpp
  drawings/views/PolylineChain.cpp
  drawings/views/ShadedPicture.cpp
  drawings/views/ViewDrawing.cpp
)
# QImage and QPainter make the thumbnails.
target_link_libraries(devcatalog PUBLIC Qt5::Gui)
