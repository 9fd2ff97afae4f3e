dockwidget_add_test(NAME PartCatalogTest SOURCES PartCatalogTest.cpp LIBRARIES devcatalog)
dockwidget_add_test(NAME PartDrawingTest SOURCES PartDrawingTest.cpp DrawingPieces.cpp DrawingPieces.h
                    LIBRARIES devcatalog)
