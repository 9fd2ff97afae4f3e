# The catalog service and the service account that the library is built for.
set(PARTHARBOR_SERVICE_HOST "localhost:8443" CACHE STRING "Host (and port) of the catalog service and its web site")
set(PARTHARBOR_SERVICE_CATALOG "partharbor" CACHE STRING "ServiceLogin: catalog")
set(PARTHARBOR_SERVICE_USER "PlotvaneSU" CACHE STRING "ServiceLogin: service user")
set(PARTHARBOR_SERVICE_PASSWORD "TulipWindowCanvas" CACHE STRING "ServiceLogin: password of the service user")
set(PARTHARBOR_SERVICE_ENDUSER "Plotvane" CACHE STRING "ServiceLogin: end user")
# The development tests run against services on free ports, reached under this name through a proxy of their own.
set(DOCKWIDGET_TEST_SERVICE_HOST "catalog.test:8443")
