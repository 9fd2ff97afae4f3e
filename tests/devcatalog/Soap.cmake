add_library(devcatalog_test_client STATIC
  CatalogClient.h CatalogClient.cpp
  CatalogFixture.h CatalogFixture.cpp
  RightRequests.h RightRequests.cpp)
target_link_libraries(devcatalog_test_client PUBLIC devcatalog Qt5::Network Qt5::Xml Qt5::Test)
dockwidget_warnings(devcatalog_test_client)

foreach(test CatalogServiceTest CatalogStrictnessTest CertificateAuthorityTest)
  dockwidget_add_test(NAME ${test} SOURCES ${test}.cpp LIBRARIES devcatalog_test_client)
endforeach()
