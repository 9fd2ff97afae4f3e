target_sources(devcatalog PRIVATE
  parts/Offers.cpp
  parts/PartCatalog.cpp
  parts/SizeTables.cpp
)
# QString brings Unicode case folding and normalisation to the search.
target_link_libraries(devcatalog PUBLIC Qt5::Core)
