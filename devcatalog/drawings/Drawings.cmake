target_sources(devcatalog PRIVATE
  drawings/PartDrawing.cpp
  drawings/PartThumbnail.cpp
)
# QImage and QPainter make the thumbnails.
target_link_libraries(devcatalog PUBLIC Qt5::Gui)
