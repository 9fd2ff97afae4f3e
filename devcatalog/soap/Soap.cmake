# The service: wire contract, certificates, HTTPS server; and the program around it.
find_package(PkgConfig REQUIRED)
pkg_check_modules(CPP_HTTPLIB REQUIRED IMPORTED_TARGET cpp-httplib)
find_package(pugixml REQUIRED)
find_package(OpenSSL REQUIRED)
find_package(Threads REQUIRED)

target_sources(devcatalog PRIVATE
  Accounts.h
  CatalogServer.h CatalogServer.cpp
  CatalogSite.h CatalogSite.cpp
  CertificateAuthority.h CertificateAuthority.cpp
  CertificateFolder.h CertificateFolder.cpp
  HttpMessages.h
  HttpsListener.h HttpsListener.cpp
  RandomText.h RandomText.cpp
  ServiceHost.h ServiceHost.cpp
  soap/CatalogOperations.h soap/CatalogOperations.cpp
  soap/EnvelopeReader.h soap/EnvelopeReader.cpp
  soap/IssuedValues.h soap/IssuedValues.cpp
  soap/ReplyEnvelope.h soap/ReplyEnvelope.cpp
  soap/SoapFault.h
  soap/SoapService.h soap/SoapService.cpp
  soap/WireContract.h soap/WireContract.cpp
  soap/XmlText.h soap/XmlText.cpp)
target_link_libraries(devcatalog
  PRIVATE pugixml::pugixml PkgConfig::CPP_HTTPLIB OpenSSL::SSL OpenSSL::Crypto Threads::Threads)
# The package names the system's own include folder, whose warnings are not ours.
set_property(TARGET PkgConfig::CPP_HTTPLIB APPEND PROPERTY
  INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${CPP_HTTPLIB_INCLUDE_DIRS})

add_executable(devcatalog-server main.cpp)
target_link_libraries(devcatalog-server PRIVATE devcatalog)
target_compile_definitions(devcatalog-server PRIVATE
  PARTHARBOR_SERVICE_HOST="${PARTHARBOR_SERVICE_HOST}"
  PARTHARBOR_SERVICE_CATALOG="${PARTHARBOR_SERVICE_CATALOG}"
  PARTHARBOR_SERVICE_USER="${PARTHARBOR_SERVICE_USER}"
  PARTHARBOR_SERVICE_PASSWORD="${PARTHARBOR_SERVICE_PASSWORD}"
  PARTHARBOR_SERVICE_ENDUSER="${PARTHARBOR_SERVICE_ENDUSER}")
set_target_properties(devcatalog-server PROPERTIES AUTOMOC OFF AUTOUIC OFF)
dockwidget_warnings(devcatalog-server)
